// The real wait: a nested event loop ended by a precise timer, so windows keep answering
// while the rules stand still. Each wait has its own deadline.
#pragma once

#include <vector>

#include "windows/Delay.h"

class QEventLoop;

namespace gw::app {

class QtDelay final : public Delay {
public:
    explicit QtDelay(int tickMs = kTickMs) : tickMs_(tickMs) {}

    void wait(Integer ticks) override;
    // Ends every wait now running; the program is closing or starting a new game.
    void cutShort();
    int depth() const { return static_cast<int>(loops_.size()); }

private:
    int tickMs_;
    std::vector<QEventLoop*> loops_;
};

}  // namespace gw::app
