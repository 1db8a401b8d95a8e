// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/PacedDelay.h"

namespace gw {

void PacedDelay::wait(Integer ticks) {
    const long long start = clock_.nowMs();
    for (;;) {
        const long long left = paceWaitMs(pace_, ticks, tickMs_) - (clock_.nowMs() - start);
        if (left <= 0) break;
        // Woken by a change of pace: measure again what is left at the new pace.
        if (clock_.waitMs(left) != WaitClock::End::Woken) {
            lastServedMs_ = clock_.nowMs();
            return;
        }
    }
    serveNowAndThen();
}

void PacedDelay::setPace(Pace pace) {
    if (pace == pace_) return;
    pace_ = pace;
    clock_.wake();
}

void PacedDelay::serveNowAndThen() {
    const long long now = clock_.nowMs();
    if (now - lastServedMs_ < kServeEveryMs) return;
    lastServedMs_ = now;
    clock_.serveEvents();
}

}  // namespace gw
