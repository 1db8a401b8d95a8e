// SPDX-License-Identifier: GPL-3.0-or-later
// Reading the words of a command line against the table of its options.
#include "cli/CommandLine.h"

#include <algorithm>
#include <charconv>

namespace gw::cli {

namespace {

constexpr std::string_view kHelp = "--help";

std::string quoted(std::string_view text) {
    std::string out(1, '\'');
    out.append(text);
    out.push_back('\'');
    return out;
}

}  // namespace

std::optional<std::uint64_t> readWholeNumber(std::string_view text, std::uint64_t low,
                                             std::uint64_t high) {
    std::uint64_t value = 0;
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (text.empty() || error != std::errc{} || end != text.data() + text.size()) return {};
    if (value < low || value > high) return {};
    return value;
}

std::string wholeNumberRange(std::uint64_t low, std::uint64_t high) {
    return "a whole number from " + std::to_string(low) + " to " + std::to_string(high);
}

CommandLine::CommandLine(std::string program) : program_(std::move(program)) {}

void CommandLine::number(std::string_view name, std::uint64_t low, std::uint64_t high,
                         std::function<void(std::uint64_t)> set) {
    options_.push_back({std::string(name), true, low, high, std::move(set), {}});
}

void CommandLine::flag(std::string_view name, std::function<void()> set) {
    options_.push_back({std::string(name), false, 0, 0, {}, std::move(set)});
}

bool CommandLine::given(std::string_view name) const {
    return std::find(seen_.begin(), seen_.end(), name) != seen_.end();
}

const CommandLine::Option* CommandLine::find(std::string_view name) const {
    const auto found = std::find_if(options_.begin(), options_.end(),
                                    [name](const Option& o) { return o.name == name; });
    return found == options_.end() ? nullptr : &*found;
}

std::string CommandLine::allNames() const {
    std::string list;
    for (const Option& option : options_) list += option.name + ", ";
    return list + std::string(kHelp);
}

std::string CommandLine::readNumber(const Option& option, std::string_view value, bool hasValue) {
    const std::string accepts = wholeNumberRange(option.low, option.high);
    if (!hasValue || value.empty()) return option.name + " needs a value: " + accepts;
    const std::optional<std::uint64_t> number = readWholeNumber(value, option.low, option.high);
    if (!number) return option.name + " takes " + accepts + ", not " + quoted(value);
    option.setNumber(*number);
    return {};
}

std::string CommandLine::read(std::span<const std::string_view> args) {
    for (std::size_t i = 0; i < args.size(); ++i) {
        std::string_view name = args[i];
        if (!name.starts_with("--") || name == "--") {
            return quoted(name) + " is not an option; options start with -- (see " + program_ +
                   " --help)";
        }
        std::string_view value;
        bool hasValue = false;
        if (const auto eq = name.find('='); eq != std::string_view::npos) {
            value = name.substr(eq + 1);
            name = name.substr(0, eq);
            hasValue = true;
        }
        if (given(name)) return std::string(name) + " is given twice";
        seen_.emplace_back(name);

        const Option* option = find(name);
        if (name == kHelp || (option && !option->takesNumber)) {
            if (hasValue) return std::string(name) + " is a switch and takes no value";
            if (name == kHelp) {
                helpAsked_ = true;
                return {};
            }
            option->setFlag();
            continue;
        }
        if (!option) {
            return std::string(name) + " is not an option; the options are " + allNames();
        }
        // A following option is not taken for the missing value.
        if (!hasValue && i + 1 < args.size() && !args[i + 1].starts_with("--")) {
            value = args[++i];
            hasValue = true;
        }
        if (std::string error = readNumber(*option, value, hasValue); !error.empty()) return error;
    }
    return {};
}

}  // namespace gw::cli
