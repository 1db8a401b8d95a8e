// SPDX-License-Identifier: GPL-3.0-or-later
// Humans played by clicks, always the same way: buy what the card offers, pay what it
// asks, let go what they cannot buy, close what is left, throw, end the turn, go bankrupt when
// nothing else is open. With a seeded source of chance a game of humans and computers then repeats
// exactly.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace gw {
class GameRun;
}

namespace gw::test {

// One click for the human whose turn it is; false when no click is open.
bool clickAsSteadyHuman(GameRun& run);

// Seats the players through the set-up window, in order: a name and whether a computer.
void seatPlayers(GameRun& run, const std::vector<std::pair<std::string, bool>>& seats);

// Clicks for the humans until the game is over; false if it stalls or runs too long.
bool playToTheEnd(GameRun& run, long maxClicks = 200000);

}  // namespace gw::test
