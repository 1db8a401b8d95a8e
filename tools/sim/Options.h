// SPDX-License-Identifier: GPL-3.0-or-later
// The simulator's command line: what each option accepts, read into a run's settings or
// into one line that says what was wrong.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "Simulation.h"

namespace gw::sim {

struct Options {
    RunConfig run;
    bool help = false;
    bool signature = false;  // play the fixed games of the determinism signature
};

struct ParsedOptions {
    Options options;
    std::string error;  // one line naming the option and what it accepts; empty if none
    bool ok() const { return error.empty(); }
};

// The text of --help.
extern const char* const kUsage;

// Reads the arguments after the program's name. Options come as "--name value" or
// "--name=value"; `cores` is the default number of jobs.
ParsedOptions parseOptions(std::span<const std::string_view> args, unsigned cores);

}  // namespace gw::sim
