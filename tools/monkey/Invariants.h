// What must hold between any two clicks of a run, whatever was clicked: positions on the
// ring, balances inside their range, owners' tables that agree with the cells, hotels only
// on owned, free streets of a whole district, a way out for a human in debt, a main window
// that is usable whenever no card is up, and no turn of more than three throws.
#pragma once

#include <string>

namespace gw {
class GameRun;
}

namespace gw::monkey {

inline constexpr int kMaxThrowsPerTurn = 3;

// The first invariant found broken, described; empty when all hold.
std::string brokenInvariant(const GameRun& run);

}  // namespace gw::monkey
