// SPDX-License-Identifier: GPL-3.0-or-later
// The last step of every effect, the same for all so the set plays at one level: no DC,
// a short fade at each end, the loudness of the sounding part at -17 dBFS RMS (an accent a
// little above), peaks limited under full scale, and trailing silence that the game's
// player may swallow without cutting into the sound.
#pragma once

#include "Signal.h"

namespace gw::soundgen {

constexpr double kLoudnessDb = -17.0;     // RMS of the sounding part, dBFS
constexpr double kAccentDb = 2.0;         // the siren and "Bankrupt" stand out on purpose
constexpr double kCeilingDb = -1.0;       // the limiter's ceiling: no sample at full scale
constexpr double kFadeInSeconds = 0.002;  // short, so clicks keep their edge
constexpr double kSilenceSeconds = 0.2;

// `fadeOutSeconds` should lie in 20-50 ms. The raw tail is cut where it falls 60 dB
// below the peak, or at `maxSeconds`, so recipes may leave generous room for decays.
// `accentDb` lifts the sound above the common loudness.
Signal master(Signal raw, double fadeOutSeconds, double maxSeconds, double accentDb = 0.0);

}  // namespace gw::soundgen
