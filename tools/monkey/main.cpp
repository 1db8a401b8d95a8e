// gildenway-monkey: random clicks and typing through whole runs of the program's window
// models, checking the game's invariants after every step.
#include <charconv>
#include <cstdio>
#include <string_view>

#include "Monkey.h"

namespace {

template <class T>
bool readNumber(std::string_view text, T& out) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), out);
    return error == std::errc{} && end == text.data() + text.size();
}

}  // namespace

int main(int argc, char** argv) {
    std::uint64_t seed = 1;
    long steps = 100000;
    for (int i = 1; i < argc; ++i) {
        const std::string_view arg = argv[i];
        if (arg == "--help") {
            std::puts("usage: gildenway-monkey [--seed S] [--steps N]");
            return 0;
        }
        const bool hasValue = i + 1 < argc;
        if (arg == "--seed" && hasValue && readNumber(argv[i + 1], seed)) {
            ++i;
        } else if (arg == "--steps" && hasValue && readNumber(argv[i + 1], steps) && steps > 0) {
            ++i;
        } else {
            std::fprintf(
                stderr,
                "gildenway-monkey: %s: expected --seed S (0 to 2^64-1) or --steps N (1 or more)\n",
                argv[i]);
            return 2;
        }
    }
    const gw::monkey::MonkeyResult result = gw::monkey::runMonkey(seed, steps);
    std::printf("%ld steps, %d games ended, seed %llu\n", result.steps, result.games,
                static_cast<unsigned long long>(seed));
    if (!result.failure.empty()) {
        std::fprintf(stderr, "broken: %s\n", result.failure.c_str());
        return 1;
    }
    return 0;
}
