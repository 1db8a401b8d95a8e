#include "app/QtDelay.h"

#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace gw::app {

void QtDelay::wait(Integer ticks) {
    if (ticks <= 0) return;
    QEventLoop loop;
    loops_.push_back(&loop);
    QTimer::singleShot(ticks * tickMs_, Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    loops_.erase(std::find(loops_.begin(), loops_.end(), &loop));
}

void QtDelay::cutShort() {
    for (QEventLoop* loop : loops_) loop->quit();
}

}  // namespace gw::app
