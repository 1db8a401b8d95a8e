// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtDelay.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QTimer>
#include <algorithm>

namespace gw::app {

QtDelay::QtDelay(int tickMs) : paced_(*this, tickMs) {
    clock_.start();
}

WaitClock::End QtDelay::waitMs(long long ms) {
    QEventLoop loop;
    Running running{&loop, End::Elapsed};
    loops_.push_back(&running);
    QTimer::singleShot(static_cast<int>(ms), Qt::PreciseTimer, &loop, &QEventLoop::quit);
    loop.exec();
    loops_.erase(std::find(loops_.begin(), loops_.end(), &running));
    return running.end;
}

void QtDelay::wake() {
    endAll(End::Woken);
}

void QtDelay::cutShort() {
    endAll(End::CutShort);
}

void QtDelay::serveEvents() {
    QCoreApplication::processEvents();
}

void QtDelay::endAll(End end) {
    for (Running* running : loops_) {
        // A wait cut short stays cut short, whatever wakes it after.
        if (running->end != End::CutShort) running->end = end;
        running->loop->quit();
    }
}

}  // namespace gw::app
