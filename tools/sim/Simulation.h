// Headless games of computer players only: one game at a time through playGame, or many
// spread over threads through playGames. The same seed always gives the same games.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

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
    int winnerSeat = -1;    // the winner's place in the order of seating, from 0
    int bankruptcies = 0;
    int trades = 0;      // sales between players that were carried out
    int selfTrades = 0;  // of those, sales by a buyer who already owned the cell
    int hotelsBuilt = 0;
    long long lostAtBound = 0;  // money that a balance stuck at 32767 did not take in
    std::string violation;      // what broke, with the seed, game and turn; empty if nothing
};

struct RunConfig {
    int games = 100;
    int players = 4;
    std::uint64_t seed = 1;
    int maxTurns = 10000;
    int jobs = 1;
    bool check = false;
};

// Each game counts as exactly one of finished, capped, stalled or stopped by a fault.
struct Summary {
    int games = 0;
    int finished = 0;
    int capped = 0;
    int stalled = 0;
    long long turns = 0;
    double meanTurns = 0;
    double medianTurns = 0;
    int p95Turns = 0;
    std::vector<int> winsBySeat;
    long long bankruptcies = 0;
    long long trades = 0;
    long long selfTrades = 0;
    long long hotelsBuilt = 0;
    long long lostAtBound = 0;
    int violations = 0;
};

// The seed of game `game` of a run with seed `seed`.
std::uint64_t gameSeed(std::uint64_t seed, int game);
// The name of the computer player in seat `seat`.
std::string seatName(int seat);

GameResult playGame(const GameConfig& config);
// All games of a run, in the order of their index whatever the number of jobs.
std::vector<GameResult> playGames(const RunConfig& config);
Summary summarize(const std::vector<GameResult>& results, int players);

}  // namespace gw::sim
