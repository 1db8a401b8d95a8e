// SPDX-License-Identifier: GPL-3.0-or-later
#include "MonkeyOptions.h"

#include <limits>

#include "cli/CommandLine.h"

namespace gw::monkey {

MonkeyOptions parseMonkeyOptions(std::span<const std::string_view> args) {
    MonkeyOptions o;
    cli::CommandLine line("gildenway-monkey");
    line.number("--seed", 0, std::numeric_limits<std::uint64_t>::max(),
                [&o](std::uint64_t v) { o.seed = v; });
    line.number("--steps", 1, kMaxSteps, [&o](std::uint64_t v) { o.steps = static_cast<long>(v); });
    o.error = line.read(args);
    o.help = line.helpAsked();
    return o;
}

}  // namespace gw::monkey
