// SPDX-License-Identifier: GPL-3.0-or-later
// A command line as a test writes it, split at blanks and handed to a parser as main hands
// it the words of argv.
#pragma once

#include <span>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

namespace gw::test {

template <class Parse>
auto parseLine(const std::string& line, Parse parse) {
    std::istringstream in(line);
    std::vector<std::string> words;
    for (std::string word; in >> word;) words.push_back(word);
    const std::vector<std::string_view> args(words.begin(), words.end());
    return parse(std::span<const std::string_view>(args));
}

}  // namespace gw::test
