// SPDX-License-Identifier: GPL-3.0-or-later
// The struck, thumped and noisy primitives.
#include "Tone.h"

#include <cmath>

namespace gw::soundgen {

double attackDecay(double t, double attack, double decay) {
    if (t < 0.0) return 0.0;
    if (t < attack) return t / attack;
    return std::exp(-(t - attack) / decay);
}

Signal strike(double frequency, std::span<const Partial> partials, double seconds, double attack) {
    Signal out(samplesIn(seconds), 0.0f);
    for (const Partial& partial : partials) {
        const double f = frequency * partial.ratio;
        if (f > 18000.0) continue;
        const double step = kTwoPi * f / kSampleRate;
        for (std::size_t i = 0; i < out.size(); ++i) {
            const double t = secondsAt(i);
            out[i] += static_cast<float>(partial.gain * attackDecay(t, attack, partial.decay) *
                                         std::sin(step * static_cast<double>(i)));
        }
    }
    const std::size_t tail = out.size() / 10;
    for (std::size_t i = 0; i < tail; ++i) {
        out[out.size() - 1 - i] *= static_cast<float>(i) / static_cast<float>(tail);
    }
    return out;
}

Signal thump(double from, double to, double glideTime, double seconds, double attack,
             double decay) {
    Signal out(samplesIn(seconds), 0.0f);
    double phase = 0.0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double t = secondsAt(i);
        const double f = to + (from - to) * std::exp(-t / glideTime);
        out[i] = static_cast<float>(attackDecay(t, attack, decay) * std::sin(phase));
        phase += kTwoPi * f / kSampleRate;
    }
    return out;
}

Signal noiseBurst(Noise& noise, Biquad filter, double seconds, double attack, double decay) {
    Signal out(samplesIn(seconds), 0.0f);
    for (std::size_t i = 0; i < out.size(); ++i) {
        out[i] = static_cast<float>(attackDecay(secondsAt(i), attack, decay)) * noise.white();
    }
    filter.apply(out);
    if (const double peak = peakOf(out); peak > 0.0) {
        for (float& sample : out) sample = static_cast<float>(sample / peak);
    }
    return out;
}

}  // namespace gw::soundgen
