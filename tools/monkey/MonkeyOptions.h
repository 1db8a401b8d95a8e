// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of gildenway-monkey: --seed S and --steps N, or --help.
#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

namespace gw::monkey {

struct MonkeyOptions {
    std::uint64_t seed = 1;
    long steps = 100000;
    bool help = false;
    std::string error;  // one line naming the option and what it accepts; empty if none
};

inline constexpr long kMaxSteps = 1000000000;
inline constexpr std::string_view kMonkeyUsage =
    "usage: gildenway-monkey [--seed S] [--steps N]\n"
    "  --seed S   seed of the run, 0 to 2^64-1 (default 1)\n"
    "  --steps N  random clicks and keys, 1 to 1000000000 (default 100000)\n"
    "  --help     show this text";

MonkeyOptions parseMonkeyOptions(std::span<const std::string_view> args);

}  // namespace gw::monkey
