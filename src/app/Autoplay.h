// SPDX-License-Identifier: GPL-3.0-or-later
// Plays the set-up window as a person would, seating computer players only, so the whole
// program can be run to the end of a game without anyone at the mouse.
#pragma once

namespace gw {
class GameRun;
}
namespace gw::view {
class Dispatch;
}

namespace gw::app {

// Adds `computers` computer players with the first tokens and starts the game.
void seatComputers(view::Dispatch& dispatch, GameRun& run, int computers);

}  // namespace gw::app
