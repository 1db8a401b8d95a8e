// SPDX-License-Identifier: GPL-3.0-or-later
// The chime and the brass: additive synthesis with envelopes per partial.
#include "Voices.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "Filter.h"
#include "Tone.h"

namespace gw::soundgen {

double pitch(int midiNote) {
    return 440.0 * std::pow(2.0, (midiNote - 69) / 12.0);
}

Signal chime(Noise& noise, double frequency, double ring) {
    // 2.76 and 5.40 are the first overtones of a free bar; they die fast, the fundamental
    // sings on, which is what makes it a chime and not an organ.
    const std::array<Partial, 5> partials = {{{1.0, 1.0, ring},
                                              {2.0, 0.18, ring * 0.45},
                                              {2.76, 0.22, 0.09},
                                              {5.40, 0.09, 0.035},
                                              {8.93, 0.04, 0.015}}};
    Signal out = strike(frequency, partials, 7.0 * ring);
    const Signal tick =
        noiseBurst(noise, Biquad::bandpass(frequency * 3.0, 1.5), 0.02, 0.0005, 0.003);
    mixInto(out, tick, 0.0, 0.25);
    return out;
}

namespace {

// Attack, decay to a sustain level, and release after `held`.
double brassEnvelope(double t, double held) {
    constexpr double kAttack = 0.03, kDecay = 0.12, kSustain = 0.8, kRelease = 0.09;
    double level = 0.0;
    if (t < kAttack) {
        level = t / kAttack;
    } else {
        level = kSustain + (1.0 - kSustain) * std::exp(-(t - kAttack) / kDecay * 3.0);
    }
    if (t > held) level *= std::max(0.0, 1.0 - (t - held) / kRelease);
    return level;
}

}  // namespace

Signal brass(double frequency, double held, double brightness) {
    constexpr double kRelease = 0.09;
    Signal out(samplesIn(held + kRelease), 0.0f);
    double phase = 0.0;
    for (std::size_t i = 0; i < out.size(); ++i) {
        const double t = secondsAt(i);
        // A player lips up into the note, and a long note gets a gentle vibrato.
        const double scoop = 1.0 - 0.025 * std::exp(-t / 0.025);
        const double vibrato =
            0.004 * std::clamp((t - 0.2) / 0.2, 0.0, 1.0) * std::sin(kTwoPi * 5.5 * t);
        const double level = brassEnvelope(t, held);
        double sum = 0.0;
        for (int n = 1; n * frequency < 16000.0 && n <= 12; ++n) {
            // Upper harmonics follow a steeper power of the level: the note brightens as it
            // swells, the sound of a real bell of brass rather than a filtered sawtooth.
            const double steepness = 1.0 + (n - 1) * 0.35 / std::max(brightness, 0.1);
            sum += std::pow(level, steepness) / n * std::sin(n * phase);
        }
        out[i] = static_cast<float>(sum);
        phase += kTwoPi * frequency * scoop * (1.0 + vibrato) / kSampleRate;
    }
    Biquad::lowpass(1500.0 + 2500.0 * brightness).apply(out);
    return out;
}

}  // namespace gw::soundgen
