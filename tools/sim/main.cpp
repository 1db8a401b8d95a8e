// SPDX-License-Identifier: GPL-3.0-or-later
// gildenway-sim: plays many games of computer players without windows and reports how
// they went, optionally checking the rules' bookkeeping after every turn; or plays the
// fixed games of the determinism signature and prints its line.
#include <algorithm>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <string_view>
#include <thread>
#include <vector>

#include "Options.h"
#include "Signature.h"
#include "Simulation.h"

namespace {

using gw::sim::RunConfig;
using gw::sim::Summary;

double perGame(long long count, long long games) {
    return static_cast<double>(count) / static_cast<double>(std::max(games, 1LL));
}

void report(const RunConfig& run, const Summary& s, double seconds) {
    std::printf("gildenway-sim: %lld games of %d players, seed %llu, turn cap %d, jobs %d%s\n",
                s.games, run.players, static_cast<unsigned long long>(run.seed), run.maxTurns,
                run.jobs, run.check ? ", checked" : "");
    std::printf("games finished: %lld, capped: %lld", s.finished, s.capped);
    if (s.stalled != 0) std::printf(", stalled: %lld", s.stalled);
    if (s.violations != 0) std::printf(", stopped by a fault: %lld", s.violations);
    if (s.finished == 0) {
        std::printf("\nturns per finished game: none finished\n");
    } else {
        std::printf("\nturns per finished game: mean %.1f, median %.1f, 95th percentile %lld\n",
                    s.meanTurns(), s.medianTurns(), s.p95Turns());
    }
    std::printf("wins by seat in the order of play (1 moved first):");
    for (std::size_t seat = 0; seat < s.winsBySeat.size(); ++seat) {
        std::printf(" %zu: %lld (%.1f%%)", seat + 1, s.winsBySeat[seat],
                    100.0 * perGame(s.winsBySeat[seat], s.finished));
    }
    std::printf("\nbankruptcies: %lld (%.2f a game)\n", s.bankruptcies,
                perGame(s.bankruptcies, s.games));
    std::printf("trades: %lld (%.2f a game), of which %lld bought by their own owner\n", s.trades,
                perGame(s.trades, s.games), s.selfTrades);
    std::printf("hotels built: %lld (%.1f a game)\n", s.hotelsBuilt,
                perGame(s.hotelsBuilt, s.games));
    if (run.check) {
        std::printf("money not taken in at the 16-bit bound: %lld\n", s.lostAtBound);
    }
    // More jobs than cores share the cores: the rate per core divides by the busy ones.
    const unsigned cores = std::max(std::thread::hardware_concurrency(), 1u);
    const int busy = std::min(run.jobs, static_cast<int>(cores));
    const double rate = seconds > 0 ? static_cast<double>(s.turns) / seconds : 0;
    std::printf(
        "throughput: %.0f computer turns/s with %d jobs, %.0f per core (%lld turns in %.2f s)\n",
        rate, run.jobs, rate / busy, s.turns, seconds);
}

int simulate(const RunConfig& run) {
    const auto start = std::chrono::steady_clock::now();
    const Summary summary = gw::sim::playGames(run);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;
    report(run, summary, elapsed.count());
    for (const auto& [game, fault] : summary.faults) std::cerr << "fault: " << fault << '\n';
    if (summary.violations > static_cast<long long>(summary.faults.size())) {
        std::cerr << "and " << summary.violations - static_cast<long long>(summary.faults.size())
                  << " more faults\n";
    }
    return summary.violations == 0 ? 0 : 1;
}

int signature(const RunConfig& run) {
    const gw::sim::Signature s = gw::sim::playSignature(run.seed, run.jobs, run.check);
    std::cout << s.line() << '\n';
    if (s.violations == 0) return 0;
    std::cerr << "fault: " << s.firstFault << '\n';
    if (s.violations > 1) std::cerr << "and " << s.violations - 1 << " more faults\n";
    return 1;
}

}  // namespace

int main(int argc, char** argv) {
    const std::vector<std::string_view> args(argv + std::min(argc, 1), argv + argc);
    const gw::sim::ParsedOptions parsed =
        gw::sim::parseOptions(args, std::thread::hardware_concurrency());
    if (!parsed.ok()) {
        std::cerr << "gildenway-sim: " << parsed.error << '\n';
        return 2;
    }
    const gw::sim::Options& options = parsed.options;
    if (options.help) {
        std::cout << gw::sim::kUsage;
        return 0;
    }
    return options.signature ? signature(options.run) : simulate(options.run);
}
