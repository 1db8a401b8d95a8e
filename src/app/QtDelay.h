// SPDX-License-Identifier: GPL-3.0-or-later
// The real wait: a nested event loop ended by a precise timer, so windows keep answering
// while the rules stand still. Each wait has its own deadline; how long it is comes from
// the pace, which may change while a wait runs.
#pragma once

#include <QElapsedTimer>
#include <vector>

#include "windows/PacedDelay.h"

class QEventLoop;

namespace gw::app {

class QtDelay final : public Delay, private WaitClock {
public:
    explicit QtDelay(int tickMs = kTickMs);

    void wait(Integer ticks) override { paced_.wait(ticks); }
    // Ends every wait now running; the program is closing or starting a new game.
    void cutShort();
    int depth() const { return static_cast<int>(loops_.size()); }
    PacedDelay& pacing() { return paced_; }

private:
    struct Running {
        QEventLoop* loop;
        End end;
    };

    long long nowMs() override { return clock_.elapsed(); }
    End waitMs(long long ms) override;
    void wake() override;
    void serveEvents() override;
    void endAll(End end);

    QElapsedTimer clock_;
    PacedDelay paced_;
    std::vector<Running*> loops_;
};

}  // namespace gw::app
