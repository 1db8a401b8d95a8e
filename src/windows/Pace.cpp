// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Pace.h"

namespace gw {

namespace {

// A fast wait is a quarter of the designed one.
constexpr long long kFastDivisor = 4;

}  // namespace

std::string_view paceCaption(Pace pace) {
    switch (pace) {
        case Pace::Designed:
            return "As designed";
        case Pace::Fast:
            return "Fast";
        case Pace::Instant:
            return "Instant";
    }
    return {};
}

std::string_view paceName(Pace pace) {
    switch (pace) {
        case Pace::Designed:
            return "designed";
        case Pace::Fast:
            return "fast";
        case Pace::Instant:
            return "instant";
    }
    return {};
}

std::optional<Pace> paceFromName(std::string_view name) {
    for (const Pace pace : kPaces) {
        if (paceName(pace) == name) return pace;
    }
    return std::nullopt;
}

long long paceWaitMs(Pace pace, Integer ticks, int tickMs) {
    if (ticks <= 0 || tickMs <= 0) return 0;
    const long long designed = static_cast<long long>(ticks) * tickMs;
    switch (pace) {
        case Pace::Designed:
            return designed;
        case Pace::Fast:
            return designed / kFastDivisor;
        case Pace::Instant:
            return 0;
    }
    return designed;
}

bool paceSounds(Pace pace) {
    return pace != Pace::Instant;
}

}  // namespace gw
