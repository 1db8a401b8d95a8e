// The last step of every effect, the same for all so the set plays at one level: no DC,
// a short fade at each end, the peak at -3 dBFS, and trailing silence that the game's
// player may swallow without cutting into the sound.
#pragma once

#include "Signal.h"

namespace gw::soundgen {

constexpr double kPeakLevel = 0.7079;     // -3 dBFS
constexpr double kFadeInSeconds = 0.002;  // short, so clicks keep their edge
constexpr double kSilenceSeconds = 0.2;

// `fadeOutSeconds` should lie in 20-50 ms. The raw tail is cut where it falls 60 dB
// below the peak, or at `maxSeconds`, so recipes may leave generous room for decays.
Signal master(Signal raw, double fadeOutSeconds, double maxSeconds);

}  // namespace gw::soundgen
