// SPDX-License-Identifier: GPL-3.0-or-later
// A careless person at the window models: seeded random clicks on whatever is shown and
// open, random typing, cards closed by their frames, clicks landing inside waits, and
// after every step a check of the game's invariants. Runs a whole program again and
// again: set-up, play, the end, a new game.
#pragma once

#include <cstdint>
#include <string>

namespace gw::monkey {

struct MonkeyResult {
    long steps = 0;
    int games = 0;        // games that reached the end window
    std::string failure;  // the broken invariant, with the seed and the step; empty if none
};

MonkeyResult runMonkey(std::uint64_t seed, long steps);

}  // namespace gw::monkey
