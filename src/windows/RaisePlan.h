// SPDX-License-Identifier: GPL-3.0-or-later
// The helping hand of a human in debt: what a computer in the same place would give up to
// bring the balance back to 0, worked out on a copy of the player's holdings, so that the
// proposal is the computer's own choice and nothing moves until the human says yes.
#pragma once

#include <string>
#include <vector>

#include "base/Integer.h"

namespace gw {

class player;

struct RaiseStep {
    enum class Kind { SellHotel, Mortgage };
    Kind kind;
    Integer cellId;
    bool operator==(const RaiseStep&) const = default;
};

struct RaisePlan {
    // The sales and mortgages in the order the computer makes them.
    std::vector<RaiseStep> steps;
    // True when the steps bring the balance to 0 or more; a computer would go bankrupt
    // otherwise, and the hand offers nothing.
    bool covers = false;
    // What the steps bring in.
    Integer raised = 0;
};

// Runs autoMakeMoney(0) on a copy of p's money and cells, apart from the game.
RaisePlan planRaise(const player& p);
// Makes the steps of the plan on the real player, each only while its rule still allows it.
void carryOutRaise(player& p, const RaisePlan& plan);
// One line naming every cell of the plan, as the human is asked to confirm it.
std::string describeRaise(const player& p, const RaisePlan& plan);

}  // namespace gw
