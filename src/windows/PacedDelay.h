// SPDX-License-Identifier: GPL-3.0-or-later
// The game's waits at the chosen pace. A wait asks a clock to wait for the time the pace
// gives; a change of pace wakes every wait in progress, which then waits only for what
// is left of its new length, or ends at once. With no time to wait, the clock still
// serves the queued events now and then, so the windows keep answering (and the pace
// can be changed back) through a long run of instant computer turns.
#pragma once

#include "ports/Delay.h"
#include "windows/Pace.h"

namespace gw {

// What a real wait rests on: a clock, a wait that serves events, and a way to wake it.
class WaitClock {
public:
    enum class End { Elapsed, Woken, CutShort };

    virtual ~WaitClock() = default;
    virtual long long nowMs() = 0;
    // Serves events for up to `ms`; ends early when woken or cut short.
    virtual End waitMs(long long ms) = 0;
    // Every waitMs in progress returns Woken.
    virtual void wake() = 0;
    // One pass over the events already queued, without waiting.
    virtual void serveEvents() = 0;
};

class PacedDelay final : public Delay {
public:
    explicit PacedDelay(WaitClock& clock, int tickMs = kTickMs) : clock_(clock), tickMs_(tickMs) {}

    void wait(Integer ticks) override;

    Pace pace() const { return pace_; }
    // Takes effect at once, also for the waits in progress.
    void setPace(Pace pace);

    // How often a run without waits lets the windows answer.
    static constexpr long long kServeEveryMs = 100;

private:
    void serveNowAndThen();

    WaitClock& clock_;
    int tickMs_;
    Pace pace_ = Pace::Designed;
    // Long ago, so that the first wait without time serves the events.
    long long lastServedMs_ = -kServeEveryMs;
};

}  // namespace gw
