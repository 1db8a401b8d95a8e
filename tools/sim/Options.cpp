// The simulator's options: a table of the numeric ones with their ranges, and the
// switches.
#include "Options.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstdint>
#include <limits>
#include <vector>

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

struct Numeric {
    std::string_view name;
    std::uint64_t low;
    std::uint64_t high;
    void (*set)(Options&, std::uint64_t);
    bool withSignature;  // whether it still means something with --signature
};

const std::array<Numeric, 5> kNumeric{{
    {"--games", 1, kMaxCount,
     [](Options& o, std::uint64_t v) { o.run.games = static_cast<int>(v); }, false},
    {"--players", 2, 6, [](Options& o, std::uint64_t v) { o.run.players = static_cast<int>(v); },
     false},
    {"--seed", 0, std::numeric_limits<std::uint64_t>::max(),
     [](Options& o, std::uint64_t v) { o.run.seed = v; }, true},
    {"--max-turns", 1, kMaxCount,
     [](Options& o, std::uint64_t v) { o.run.maxTurns = static_cast<int>(v); }, false},
    {"--jobs", 1, 1024, [](Options& o, std::uint64_t v) { o.run.jobs = static_cast<int>(v); },
     true},
}};

constexpr std::array<std::string_view, 3> kSwitches{"--check", "--signature", "--help"};

std::string quoted(std::string_view text) {
    std::string out(1, '\'');
    out.append(text);
    out.push_back('\'');
    return out;
}

std::string accepts(const Numeric& option) {
    return "a whole number from " + std::to_string(option.low) + " to " +
           std::to_string(option.high);
}

std::string allOptions() {
    std::string list;
    for (const Numeric& option : kNumeric) list += std::string(option.name) + ", ";
    for (std::string_view name : kSwitches) list += std::string(name) + ", ";
    return list.substr(0, list.size() - 2);
}

// Only digits, with no sign: "-3" and "+3" are refused like any other text.
bool readNumber(std::string_view text, const Numeric& option, std::uint64_t& out) {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc{} || end != text.data() + text.size()) return false;
    if (value < option.low || value > option.high) return false;
    out = value;
    return true;
}

}  // namespace

ParsedOptions parseOptions(std::span<const std::string_view> args, unsigned cores) {
    ParsedOptions parsed;
    Options& o = parsed.options;
    o.run.jobs = static_cast<int>(std::clamp(cores, 1u, 1024u));
    std::vector<std::string_view> seen;
    const auto fail = [&](std::string text) {
        parsed.error = std::move(text);
        return parsed;
    };
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string_view name = args[i];
        if (!name.starts_with("--") || name == "--") {
            return fail(quoted(name) +
                        " is not an option; options start with -- (see gildenway-sim --help)");
        }
        std::string_view value;
        bool hasValue = false;
        if (const auto eq = name.find('='); eq != std::string_view::npos) {
            value = name.substr(eq + 1);
            name = name.substr(0, eq);
            hasValue = true;
        }
        if (std::find(seen.begin(), seen.end(), name) != seen.end()) {
            return fail(std::string(name) + " is given twice");
        }
        seen.push_back(name);

        if (std::find(kSwitches.begin(), kSwitches.end(), name) != kSwitches.end()) {
            if (hasValue) return fail(std::string(name) + " is a switch and takes no value");
            if (name == "--help") {
                o.help = true;
                return parsed;
            }
            (name == "--check" ? o.run.check : o.signature) = true;
            continue;
        }
        const auto option = std::find_if(kNumeric.begin(), kNumeric.end(),
                                         [&](const Numeric& n) { return n.name == name; });
        if (option == kNumeric.end()) {
            return fail(std::string(name) + " is not an option; the options are " + allOptions());
        }
        // A following option is not taken for the missing value.
        if (!hasValue && i + 1 < args.size() && !args[i + 1].starts_with("--")) {
            value = args[++i];
            hasValue = true;
        }
        if (!hasValue || value.empty()) {
            return fail(std::string(name) + " needs a value: " + accepts(*option));
        }
        std::uint64_t number = 0;
        if (!readNumber(value, *option, number)) {
            return fail(std::string(name) + " takes " + accepts(*option) + ", not " +
                        quoted(value));
        }
        option->set(o, number);
    }
    if (o.signature) {
        for (const Numeric& option : kNumeric) {
            if (!option.withSignature &&
                std::find(seen.begin(), seen.end(), option.name) != seen.end()) {
                return fail(std::string(option.name) +
                            " does not go with --signature, which plays a fixed set of games");
            }
        }
    }
    return parsed;
}

}  // namespace gw::sim
