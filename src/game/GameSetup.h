// SPDX-License-Identifier: GPL-3.0-or-later
// The players of a new game as the set-up window composed them, in the order added.
// The set-up window produces it; the program, tests, simulator and benchmark build it.
#pragma once

#include <string>
#include <vector>

#include "base/Integer.h"

namespace gw {

struct GameSetup {
    struct Seat {
        std::string name;
        bool computer = false;
        Integer token = 0;  // 0 to 13, the picture of the player's token
    };
    std::vector<Seat> seats;

    GameSetup& add(std::string name, bool computer, Integer token) {
        seats.push_back({std::move(name), computer, token});
        return *this;
    }
};

}  // namespace gw
