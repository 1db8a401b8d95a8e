// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of the tools without a toolkit: whole-number options with their ranges
// and switches, given as "--name value" or "--name=value", each at most once. A bad line
// gets one line naming the option and what it accepts.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace gw::cli {

// Digits only, no sign, no blank: "-3", "+3" and "3x" are refused like any other text.
std::optional<std::uint64_t> readWholeNumber(std::string_view text, std::uint64_t low,
                                             std::uint64_t high);

// "a whole number from LOW to HIGH"
std::string wholeNumberRange(std::uint64_t low, std::uint64_t high);

class CommandLine {
public:
    // `program` names the tool in the hint given for a word that is no option.
    explicit CommandLine(std::string program);

    void number(std::string_view name, std::uint64_t low, std::uint64_t high,
                std::function<void(std::uint64_t)> set);
    void flag(std::string_view name, std::function<void()> set);

    // Reads the words after the program's name and returns what is wrong, or "" when
    // nothing is. "--help" stops the reading: what follows it is not looked at.
    std::string read(std::span<const std::string_view> args);

    bool helpAsked() const { return helpAsked_; }
    bool given(std::string_view name) const;

private:
    struct Option {
        std::string name;
        bool takesNumber = false;
        std::uint64_t low = 0;
        std::uint64_t high = 0;
        std::function<void(std::uint64_t)> setNumber;
        std::function<void()> setFlag;
    };
    const Option* find(std::string_view name) const;
    std::string allNames() const;
    std::string readNumber(const Option& option, std::string_view value, bool hasValue);

    std::string program_;
    std::vector<Option> options_;
    std::vector<std::string> seen_;
    bool helpAsked_ = false;
};

}  // namespace gw::cli
