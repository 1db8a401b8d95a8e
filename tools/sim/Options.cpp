// SPDX-License-Identifier: GPL-3.0-or-later
// The simulator's options: the numeric ones with their ranges, and the switches.
#include "Options.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <limits>

#include "cli/CommandLine.h"

namespace gw::sim {

const char* const kUsage =
    "usage: gildenway-sim [options]\n"
    "  --games N      games to play, 1 to 1000000000 (default 100)\n"
    "  --players P    computer players a game, 2 to 6 (default 4)\n"
    "  --seed S       seed of the run, 0 to 2^64-1; the same seed plays the same games\n"
    "                 (default 1)\n"
    "  --max-turns T  computer turns after which a game is cut off, 1 to 1000000000\n"
    "                 (default 10000)\n"
    "  --jobs J       threads to play on, 1 to 1024 (default: one a core)\n"
    "  --check        check the money and the board after every turn; exit 1 on a fault\n"
    "  --signature    play a fixed set of games of 2 to 6 players and print the number of\n"
    "                 turns and one hash of their end states; takes --seed, --jobs, --check\n"
    "  --help         show this text\n";

namespace {

constexpr std::uint64_t kMaxCount = 1000000000;

// The options that mean nothing with --signature, which plays a fixed set of games.
constexpr std::array<std::string_view, 3> kNotWithSignature{"--games", "--players", "--max-turns"};

}  // namespace

ParsedOptions parseOptions(std::span<const std::string_view> args, unsigned cores) {
    ParsedOptions parsed;
    Options& o = parsed.options;
    o.run.jobs = static_cast<int>(std::clamp(cores, 1u, 1024u));
    const auto count = [](int& field) {
        return [&field](std::uint64_t v) { field = static_cast<int>(v); };
    };
    cli::CommandLine line("gildenway-sim");
    line.number("--games", 1, kMaxCount, count(o.run.games));
    line.number("--players", 2, 6, count(o.run.players));
    line.number("--seed", 0, std::numeric_limits<std::uint64_t>::max(),
                [&o](std::uint64_t v) { o.run.seed = v; });
    line.number("--max-turns", 1, kMaxCount, count(o.run.maxTurns));
    line.number("--jobs", 1, 1024, count(o.run.jobs));
    line.flag("--check", [&o] { o.run.check = true; });
    line.flag("--signature", [&o] { o.signature = true; });
    parsed.error = line.read(args);
    o.help = line.helpAsked();
    if (parsed.ok() && o.signature && !o.help) {
        for (const std::string_view name : kNotWithSignature) {
            if (line.given(name)) {
                parsed.error = std::string(name) +
                               " does not go with --signature, which plays a fixed set of games";
                break;
            }
        }
    }
    return parsed;
}

}  // namespace gw::sim
