// SPDX-License-Identifier: GPL-3.0-or-later
// The few sound primitives every recipe is built from: struck partials (chimes, metal,
// coins), sine thumps with a pitch glide, and filtered noise bursts. Each returns a fresh
// signal that starts at its onset; recipes place them in time with mixInto.
#pragma once

#include <span>

#include "Filter.h"
#include "Noise.h"
#include "Signal.h"

namespace gw::soundgen {

// One mode of a struck body: its frequency as a multiple of the strike's, its level, and
// the time its level takes to fall to 1/e.
struct Partial {
    double ratio;
    double gain;
    double decay;
};

// A linear rise over `attack` seconds, then an exponential fall with time constant `decay`.
double attackDecay(double t, double attack, double decay);

// Sum of decaying sine partials over `frequency`; partials above 18 kHz are left out.
// The last tenth is faded, so a strike cut before it has died away does not click.
Signal strike(double frequency, std::span<const Partial> partials, double seconds,
              double attack = 0.002);

// A sine whose pitch falls (or rises) from `from` towards `to` with time constant
// `glideTime`, under an attack-decay envelope: kicks, thumps and stamps.
Signal thump(double from, double to, double glideTime, double seconds, double attack, double decay);

// White noise through `filter` under an attack-decay envelope: hits, scrapes, rattles.
// Scaled to a peak of 1 whatever the filter's width, so recipes mix bursts by ear.
Signal noiseBurst(Noise& noise, Biquad filter, double seconds, double attack, double decay);

}  // namespace gw::soundgen
