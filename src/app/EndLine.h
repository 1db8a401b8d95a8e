// SPDX-License-Identifier: GPL-3.0-or-later
// The one line a run of computer players prints when its game is over: the winner, the
// computer turns played and a hash of the end state, so that runs of the same seed at
// different paces can be compared from outside.
#pragma once

#include <string>

namespace gw {
class GameRun;
}

namespace gw::app {

// "game over: Computer 3 won after 412 computer turns, end state fnv1a 0123456789abcdef"
std::string endLine(GameRun& run);

}  // namespace gw::app
