// SPDX-License-Identifier: GPL-3.0-or-later
// gildenway-monkey: random clicks and typing through whole runs of the program's window
// models, checking the game's invariants after every step.
#include <cstdio>
#include <string_view>
#include <vector>

#include "Monkey.h"
#include "MonkeyOptions.h"

int main(int argc, char** argv) {
    const std::vector<std::string_view> args(argv + 1, argv + argc);
    const gw::monkey::MonkeyOptions options = gw::monkey::parseMonkeyOptions(args);
    if (options.help) {
        std::printf("%s\n", gw::monkey::kMonkeyUsage.data());
        return 0;
    }
    if (!options.error.empty()) {
        std::fprintf(stderr, "gildenway-monkey: %s\n", options.error.c_str());
        return 2;
    }
    const gw::monkey::MonkeyResult result = gw::monkey::runMonkey(options.seed, options.steps);
    std::printf("%ld steps, %d games ended, seed %llu\n", result.steps, result.games,
                static_cast<unsigned long long>(options.seed));
    if (!result.failure.empty()) {
        std::fprintf(stderr, "broken: %s\n", result.failure.c_str());
        return 1;
    }
    return 0;
}
