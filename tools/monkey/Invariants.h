// SPDX-License-Identifier: GPL-3.0-or-later
// What must hold between any two clicks of a run, whatever was clicked: positions on the
// ring, balances inside their range, owners' tables that agree with the cells, hotels only
// on owned, free streets, a way out for a human in debt, a main window that is usable
// whenever no card is up, and no turn of more than three throws.
#pragma once

#include <array>
#include <string>

#include "base/Integer.h"
#include "base/Limits.h"

namespace gw {
class Board;
class GameRun;
}  // namespace gw

namespace gw::monkey {

// The first invariant found broken, described; empty when all hold.
std::string brokenInvariant(const GameRun& run);

// What must hold even in the middle of a turn, inside its waits: no more than three throws
// since the turn passed on (the count starts again with the next turn).
std::string brokenWithinATurn(const Board& board);

// Hotels are built only on a street of a district its owner holds whole. A later sale of
// another street of the district leaves them standing, so each rise is checked as it is
// seen: call this often enough that a build and a sale never fall between two calls.
class HotelWatch {
public:
    std::string check(const Board& board);

private:
    std::array<Integer, kCellCount> seen_{};
};

}  // namespace gw::monkey
