// gildenway-sim: plays many games of computer players without windows and reports how
// they went, optionally checking the rules' bookkeeping after every turn.
#include <algorithm>
#include <charconv>
#include <chrono>
#include <cstdint>
#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <string_view>
#include <thread>

#include "Simulation.h"

namespace {

constexpr const char* kUsage =
    "usage: gildenway-sim [options]\n"
    "  --games N      games to play (default 100)\n"
    "  --players P    computer players a game, 2 to 6 (default 4)\n"
    "  --seed S       seed of the run; the same seed plays the same games (default 1)\n"
    "  --max-turns T  computer turns after which a game is cut off (default 10000)\n"
    "  --jobs J       threads to play on (default: one a core)\n"
    "  --check        check the money and the board after every turn; exit 1 on a fault\n"
    "  --help         show this text\n";

// Reads a whole number within [low, high] into `out`; false, and `out` untouched, if not.
template <typename T>
bool read(std::string_view text, T low, T high, T& out) {
    T value{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size() || value < low || value > high) {
        return false;
    }
    out = value;
    return true;
}

struct Options {
    gw::sim::RunConfig run;
    bool help = false;
    std::string error;  // what was wrong with the command line; empty if nothing
};

// Options come as "--name value" or "--name=value".
Options parse(int argc, char** argv) {
    Options o;
    const unsigned cores = std::thread::hardware_concurrency();
    o.run.jobs = cores == 0 ? 1 : static_cast<int>(cores);
    for (int i = 1; i < argc && o.error.empty(); ++i) {
        std::string_view arg = argv[i];
        std::string_view value;
        bool hasValue = false;
        if (const auto eq = arg.find('='); eq != std::string_view::npos) {
            value = arg.substr(eq + 1);
            arg = arg.substr(0, eq);
            hasValue = true;
        }
        const std::string name(arg);
        if (arg == "--help" || arg == "--check") {
            if (hasValue) o.error = name + " takes no value";
            if (arg == "--help") o.help = true;
            if (arg == "--check") o.run.check = true;
            continue;
        }
        if (!hasValue) {
            if (i + 1 == argc) {
                o.error = name + " needs a value";
                continue;
            }
            value = argv[++i];
        }
        constexpr int kMaxCount = 1000000000;
        bool ok = false;
        if (arg == "--games") {
            ok = read(value, 1, kMaxCount, o.run.games);
        } else if (arg == "--players") {
            ok = read(value, 2, 6, o.run.players);
        } else if (arg == "--seed") {
            ok = read(value, std::uint64_t{0}, UINT64_MAX, o.run.seed);
        } else if (arg == "--max-turns") {
            ok = read(value, 1, kMaxCount, o.run.maxTurns);
        } else if (arg == "--jobs") {
            ok = read(value, 1, 1024, o.run.jobs);
        } else {
            o.error = "unknown option " + name;
            continue;
        }
        if (!ok) o.error = "bad value '" + std::string(value) + "' for " + name;
    }
    return o;
}

void report(const gw::sim::RunConfig& run, const gw::sim::Summary& s, double seconds) {
    const auto share = [&](long long count) { return 100.0 * count / std::max(s.games, 1); };
    std::printf("gildenway-sim: %d games of %d players, seed %llu, turn cap %d, jobs %d%s\n",
                s.games, run.players, static_cast<unsigned long long>(run.seed), run.maxTurns,
                run.jobs, run.check ? ", checked" : "");
    std::printf("games finished: %d, capped: %d", s.finished, s.capped);
    if (s.stalled != 0) std::printf(", stalled: %d", s.stalled);
    if (s.violations != 0) std::printf(", stopped by a fault: %d", s.violations);
    std::printf("\nturns per game: mean %.1f, median %.1f, 95th percentile %d\n", s.meanTurns,
                s.medianTurns, s.p95Turns);
    std::printf("wins by seat:");
    for (std::size_t seat = 0; seat < s.winsBySeat.size(); ++seat) {
        std::printf(" %zu: %d (%.1f%%)", seat + 1, s.winsBySeat[seat], share(s.winsBySeat[seat]));
    }
    std::printf("\nbankruptcies: %lld (%.2f a game)\n", s.bankruptcies,
                static_cast<double>(s.bankruptcies) / std::max(s.games, 1));
    std::printf("trades: %lld (%.2f a game), of which %lld bought by their own owner\n", s.trades,
                static_cast<double>(s.trades) / std::max(s.games, 1), s.selfTrades);
    std::printf("hotels built: %lld (%.1f a game)\n", s.hotelsBuilt,
                static_cast<double>(s.hotelsBuilt) / std::max(s.games, 1));
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

}  // namespace

int main(int argc, char** argv) {
    const Options options = parse(argc, argv);
    if (!options.error.empty()) {
        std::cerr << "gildenway-sim: " << options.error << "\n" << kUsage;
        return 2;
    }
    if (options.help) {
        std::cout << kUsage;
        return 0;
    }
    const gw::sim::RunConfig& run = options.run;
    const auto start = std::chrono::steady_clock::now();
    const std::vector<gw::sim::GameResult> results = gw::sim::playGames(run);
    const std::chrono::duration<double> elapsed = std::chrono::steady_clock::now() - start;

    const gw::sim::Summary summary = gw::sim::summarize(results, run.players);
    report(run, summary, elapsed.count());
    for (const gw::sim::GameResult& r : results) {
        if (!r.violation.empty()) std::cerr << "fault: " << r.violation << '\n';
    }
    return summary.violations == 0 ? 0 : 1;
}
