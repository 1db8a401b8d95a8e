// SPDX-License-Identifier: GPL-3.0-or-later
// Levelling, fading and padding a finished recipe.
#include "Master.h"

#include <algorithm>
#include <cmath>

#include "Filter.h"
#include "Loudness.h"

namespace gw::soundgen {

namespace {

// Half a cosine from 0 to 1: no corner at either end of the fade, so no click.
double smoothRise(double x) {
    return 0.5 - 0.5 * std::cos(std::numbers::pi * x);
}

void cutQuietTail(Signal& signal) {
    const double floor = peakOf(signal) * 0.001;  // -60 dB
    auto last = std::find_if(signal.rbegin(), signal.rend(),
                             [floor](float s) { return std::abs(s) > floor; });
    signal.erase(last.base(), signal.end());
}

void fade(Signal& signal, double inSeconds, double outSeconds) {
    const std::size_t in = std::min(samplesIn(inSeconds), signal.size());
    const std::size_t out = std::min(samplesIn(outSeconds), signal.size());
    for (std::size_t i = 0; i < in; ++i) {
        signal[i] *= static_cast<float>(smoothRise(static_cast<double>(i) / in));
    }
    for (std::size_t i = 0; i < out; ++i) {
        signal[signal.size() - 1 - i] *=
            static_cast<float>(smoothRise(static_cast<double>(i) / out));
    }
}

// Gain to the loudness asked for, then the limiter; the limiter takes a little of the
// loudness of a sound with sharp peaks back, so a few rounds settle both.
void level(Signal& signal, double loudnessDb) {
    const double ceiling = levelOf(kCeilingDb);
    for (int round = 0; round < 4; ++round) {
        const double rms = soundingRms(signal);
        if (rms <= 0.0) return;
        const auto gain = static_cast<float>(levelOf(loudnessDb) / rms);
        for (float& sample : signal) sample *= gain;
        limit(signal, ceiling);
    }
}

}  // namespace

Signal master(Signal raw, double fadeOutSeconds, double maxSeconds, double accentDb) {
    Biquad::highpass(20.0).apply(raw);  // takes out DC and inaudible rumble
    cutQuietTail(raw);
    if (raw.size() > samplesIn(maxSeconds)) raw.resize(samplesIn(maxSeconds));
    fade(raw, kFadeInSeconds, fadeOutSeconds);
    level(raw, kLoudnessDb + accentDb);
    raw.resize(raw.size() + samplesIn(kSilenceSeconds), 0.0f);
    return raw;
}

}  // namespace gw::soundgen
