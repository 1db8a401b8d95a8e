// SPDX-License-Identifier: GPL-3.0-or-later
// What a run of games came to, gathered one game at a time and in any order, so that
// the memory it takes does not grow with the number of games.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace gw::sim {

struct GameResult;

// Each game counts as exactly one of finished, capped, stalled or stopped by a fault.
// The turn figures are over the finished games only: a capped or stalled game ends
// where it was cut off, not where play ended it.
class Summary {
public:
    // The faults whose text is kept, those of the lowest game indices.
    static constexpr std::size_t kKeptFaults = 10;

    explicit Summary(int players);

    void add(const GameResult& result);
    // Adds the games of another part of the same run.
    void merge(const Summary& other);

    double meanTurns() const;
    double medianTurns() const;
    // The nearest rank: the fewest turns that at least 95 finished games in 100 took.
    long long p95Turns() const;

    bool operator==(const Summary&) const = default;

    long long games = 0;
    long long finished = 0;
    long long capped = 0;
    long long stalled = 0;
    long long violations = 0;
    long long turns = 0;          // computer turns of every game
    long long finishedTurns = 0;  // computer turns of the finished games
    // Wins by seat in the order of play: [0] counts the games won by the first to move.
    std::vector<long long> winsBySeat;
    long long bankruptcies = 0;
    long long trades = 0;
    long long selfTrades = 0;
    long long hotelsBuilt = 0;
    long long lostAtBound = 0;
    // The game index and text of the first faults, in the order of the index.
    std::vector<std::pair<int, std::string>> faults;

private:
    // The turns that the finished game of rank `rank` (from 1, fewest turns first) took.
    long long turnsAtRank(long long rank) const;

    // byTurns[t]: how many finished games took t turns; no longer than the longest one.
    std::vector<long long> byTurns_;
};

}  // namespace gw::sim
