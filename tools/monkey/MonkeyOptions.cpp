#include "MonkeyOptions.h"

#include <charconv>

namespace gw::monkey {
namespace {

template <class T>
bool readNumber(std::string_view text, T& out) {
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), out);
    return error == std::errc{} && end == text.data() + text.size();
}

}  // namespace

MonkeyOptions parseMonkeyOptions(std::span<const std::string_view> args) {
    MonkeyOptions o;
    for (std::size_t i = 0; i < args.size() && o.error.empty(); ++i) {
        const std::string_view arg = args[i];
        if (arg == "--help") {
            o.help = true;
            return o;
        }
        const bool known = arg == "--seed" || arg == "--steps";
        if (!known) {
            o.error = std::string(arg) + " is not an option; try --help";
            break;
        }
        const std::string what = arg == "--seed" ? "a whole number from 0 to 18446744073709551615"
                                                 : "a whole number of 1 or more";
        if (i + 1 == args.size()) {
            o.error = std::string(arg) + " needs a value: " + what;
            break;
        }
        const std::string_view value = args[++i];
        const bool good =
            arg == "--seed" ? readNumber(value, o.seed) : readNumber(value, o.steps) && o.steps > 0;
        if (!good)
            o.error = std::string(arg) + " takes " + what + ", not \"" + std::string(value) + "\"";
    }
    return o;
}

}  // namespace gw::monkey
