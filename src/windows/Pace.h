// SPDX-License-Identifier: GPL-3.0-or-later
// How fast the game shows itself: the waits as designed, a quarter of them, or none.
// The pace changes only what the eye and the ear get; every effect, message and draw of
// chance comes in the same order at every pace.
#pragma once

#include <array>
#include <optional>
#include <string_view>

#include "base/Integer.h"

namespace gw {

enum class Pace { Designed, Fast, Instant };

constexpr std::array<Pace, 3> kPaces = {Pace::Designed, Pace::Fast, Pace::Instant};
// A game watched again goes at this pace; its Stop plays the rest at Instant.
constexpr Pace kReplayPace = Pace::Fast;

// The menu's caption: "As designed", "Fast", "Instant".
std::string_view paceCaption(Pace pace);
// The command line's word: "designed", "fast", "instant".
std::string_view paceName(Pace pace);
std::optional<Pace> paceFromName(std::string_view name);

// How long a wait of `ticks` lasts at `pace`, in milliseconds, with ticks of `tickMs`.
long long paceWaitMs(Pace pace, Integer ticks, int tickMs);
// Whether sounds are played at `pace`.
bool paceSounds(Pace pace);

}  // namespace gw
