// SPDX-License-Identifier: GPL-3.0-or-later
// Game > Pace on the main window: "As designed", "Fast" and "Instant", one checked. The
// entries set the pace of the waits at once; the menu stays open to clicks while a card
// is up, so a computer's card can be hurried too.
#pragma once

#include <array>

#include "windows/PacedDelay.h"

class QAction;
class QMainWindow;

namespace gw::view {

class PaceMenu {
public:
    PaceMenu(QMainWindow& window, PacedDelay& pacing);

    // Checks the entry of the pace now in force.
    void refresh();
    QAction& entry(Pace pace) const { return *entries_[static_cast<std::size_t>(pace)]; }

private:
    PacedDelay& pacing_;
    std::array<QAction*, kPaces.size()> entries_{};
};

}  // namespace gw::view
