// SPDX-License-Identifier: GPL-3.0-or-later
// The counts of a run and the distribution of the finished games' turns.
#include "Summary.h"

#include <algorithm>

#include "Simulation.h"

namespace gw::sim {

Summary::Summary(int players) : winsBySeat(static_cast<std::size_t>(std::max(players, 0)), 0) {}

void Summary::add(const GameResult& r) {
    ++games;
    turns += r.turns;
    if (!r.violation.empty()) {
        ++violations;
        faults.emplace_back(r.game, r.violation);
        std::sort(faults.begin(), faults.end());
        if (faults.size() > kKeptFaults) faults.pop_back();
    } else if (r.finished) {
        ++finished;
        finishedTurns += r.turns;
        const auto t = static_cast<std::size_t>(std::max(r.turns, 0));
        if (t >= byTurns_.size()) byTurns_.resize(t + 1, 0);
        ++byTurns_[t];
        if (r.winnerSeat >= 0 && static_cast<std::size_t>(r.winnerSeat) < winsBySeat.size()) {
            ++winsBySeat[static_cast<std::size_t>(r.winnerSeat)];
        }
    } else if (r.stalled) {
        ++stalled;
    } else {
        ++capped;
    }
    bankruptcies += r.bankruptcies;
    trades += r.trades;
    selfTrades += r.selfTrades;
    hotelsBuilt += r.hotelsBuilt;
    lostAtBound += r.lostAtBound;
}

void Summary::merge(const Summary& o) {
    games += o.games;
    finished += o.finished;
    capped += o.capped;
    stalled += o.stalled;
    violations += o.violations;
    turns += o.turns;
    finishedTurns += o.finishedTurns;
    if (winsBySeat.size() < o.winsBySeat.size()) winsBySeat.resize(o.winsBySeat.size(), 0);
    for (std::size_t s = 0; s < o.winsBySeat.size(); ++s) winsBySeat[s] += o.winsBySeat[s];
    bankruptcies += o.bankruptcies;
    trades += o.trades;
    selfTrades += o.selfTrades;
    hotelsBuilt += o.hotelsBuilt;
    lostAtBound += o.lostAtBound;
    faults.insert(faults.end(), o.faults.begin(), o.faults.end());
    std::sort(faults.begin(), faults.end());
    if (faults.size() > kKeptFaults) faults.resize(kKeptFaults);
    if (byTurns_.size() < o.byTurns_.size()) byTurns_.resize(o.byTurns_.size(), 0);
    for (std::size_t t = 0; t < o.byTurns_.size(); ++t) byTurns_[t] += o.byTurns_[t];
}

double Summary::meanTurns() const {
    return finished == 0 ? 0.0 : static_cast<double>(finishedTurns) / static_cast<double>(finished);
}

long long Summary::turnsAtRank(long long rank) const {
    long long below = 0;
    for (std::size_t t = 0; t < byTurns_.size(); ++t) {
        below += byTurns_[t];
        if (below >= rank) return static_cast<long long>(t);
    }
    return 0;
}

double Summary::medianTurns() const {
    if (finished == 0) return 0.0;
    const long long low = turnsAtRank((finished + 1) / 2);
    const long long high = turnsAtRank(finished / 2 + 1);
    return (static_cast<double>(low) + static_cast<double>(high)) / 2.0;
}

long long Summary::p95Turns() const {
    if (finished == 0) return 0;
    // In whole numbers: ceil(0.95 n) with no rounding of 0.95.
    return turnsAtRank((95 * finished + 99) / 100);
}

}  // namespace gw::sim
