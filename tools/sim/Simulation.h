// SPDX-License-Identifier: GPL-3.0-or-later
// Headless games of computer players only: one game at a time through playGame, or many
// spread over threads through playGames. The same seed always gives the same games.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "Summary.h"

namespace gw::sim {

struct GameConfig {
    std::uint64_t seed = 1;  // the run's seed; each game draws from its own seed made from it
    int game = 0;            // the game's index in the run
    int players = 4;         // 2 to 6 computer players; other counts are brought into range
    int maxTurns = 10000;    // computer turns before the game is cut off
    bool check = false;      // check the ledger and the board after every turn
};

struct GameResult {
    int game = 0;
    int turns = 0;
    bool finished = false;  // one player left
    bool stalled = false;   // the turns stopped by themselves with several players left
    int winnerSeat = -1;    // the winner's place in the order of play: 0 moved first
    int bankruptcies = 0;
    int trades = 0;      // sales between players that were carried out
    int selfTrades = 0;  // of those, sales by a buyer who already owned the cell
    int hotelsBuilt = 0;
    long long lostAtBound = 0;   // money that a balance stuck at 32767 did not take in
    std::string violation;       // what broke, with the seed, game and turn; empty if nothing
    std::uint64_t endState = 0;  // the hash of the board where the game ended
};

struct RunConfig {
    int games = 100;
    int players = 4;
    std::uint64_t seed = 1;
    int maxTurns = 10000;
    int jobs = 1;
    bool check = false;
};

// The seed of game `game` of a run with seed `seed`.
std::uint64_t gameSeed(std::uint64_t seed, int game);
// The name of the computer player in seat `seat`.
std::string seatName(int seat);

GameResult playGame(const GameConfig& config);
// Plays the games of a run and sums them up as they end; nothing is kept of a game but
// what the summary counts, so a run of any length takes the same memory.
Summary playGames(const RunConfig& config);
// Runs `work` on `jobs` threads at once, this one included, and waits for them all.
void onThreads(int jobs, const std::function<void()>& work);

}  // namespace gw::sim
