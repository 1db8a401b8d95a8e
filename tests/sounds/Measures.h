// SPDX-License-Identifier: GPL-3.0-or-later
// Listening by numbers: the few measurements the sound tests make on 16-bit samples.
// Full scale is 32767; times are in seconds at the file's rate.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <vector>

namespace gw::soundtest {

using Samples = std::vector<std::int16_t>;

// Samples at or under this magnitude count as silence (about -70 dBFS).
constexpr int kSilenceLevel = 10;

inline double peak(const Samples& samples) {
    int loudest = 0;
    for (const std::int16_t s : samples) loudest = std::max(loudest, std::abs(int{s}));
    return loudest;
}
inline double rms(const Samples& samples) {
    double sum = 0.0;
    for (const std::int16_t s : samples) sum += static_cast<double>(s) * s;
    return samples.empty() ? 0.0 : std::sqrt(sum / samples.size());
}
inline double mean(const Samples& samples) {
    double sum = 0.0;
    for (const std::int16_t s : samples) sum += s;
    return samples.empty() ? 0.0 : sum / samples.size();
}

// RMS of the sounding part, as the ear weighs a short effect: the 10 ms windows within
// 30 dB of the loudest window, so gaps, fades and the trailing silence do not count.
inline double soundingRms(const Samples& samples, int rate) {
    const std::size_t window = static_cast<std::size_t>(rate) / 100;
    std::vector<double> energies;
    for (std::size_t at = 0; at + window <= samples.size(); at += window) {
        const double level = rms(Samples(samples.begin() + at, samples.begin() + at + window));
        energies.push_back(level * level);
    }
    if (energies.empty()) return 0.0;
    const double floor = *std::max_element(energies.begin(), energies.end()) / 1000.0;  // -30 dB
    double sum = 0.0;
    int counted = 0;
    for (const double energy : energies) {
        if (energy < floor) continue;
        sum += energy;
        ++counted;
    }
    return std::sqrt(sum / counted);
}

// Samples from the end back to the last one louder than silence.
inline std::size_t trailingSilence(const Samples& samples) {
    const auto loud = std::find_if(samples.rbegin(), samples.rend(),
                                   [](std::int16_t s) { return std::abs(int{s}) > kSilenceLevel; });
    return static_cast<std::size_t>(loud - samples.rbegin());
}

// Length of the sound before its trailing silence.
inline std::size_t soundLength(const Samples& samples) {
    return samples.size() - trailingSilence(samples);
}

// Starts of distinct hits: where the 1 ms envelope climbs over 30% of the loudest hit
// after falling under 10% since the last one.
inline std::vector<std::size_t> onsets(const Samples& samples, int rate) {
    const std::size_t frame = static_cast<std::size_t>(rate) / 1000;
    std::vector<double> envelope;
    for (std::size_t at = 0; at + frame <= samples.size(); at += frame) {
        const Samples slice(samples.begin() + at, samples.begin() + at + frame);
        envelope.push_back(peak(slice));
    }
    const double top = envelope.empty() ? 0.0 : *std::max_element(envelope.begin(), envelope.end());
    std::vector<std::size_t> starts;
    bool quiet = true;
    for (std::size_t i = 0; i < envelope.size(); ++i) {
        if (quiet && envelope[i] > 0.3 * top) {
            starts.push_back(i * frame);
            quiet = false;
        } else if (!quiet && envelope[i] < 0.1 * top) {
            quiet = true;
        }
    }
    return starts;
}

// Sign changes per second in [from, to): a rough pitch for a signal with one strong partial.
inline double crossingRate(const Samples& samples, std::size_t from, std::size_t to, int rate) {
    to = std::min(to, samples.size());
    if (to <= from + 1) return 0.0;
    int crossings = 0;
    for (std::size_t i = from + 1; i < to; ++i) {
        if ((samples[i - 1] < 0) != (samples[i] < 0)) ++crossings;
    }
    return crossings * static_cast<double>(rate) / (to - from);
}

}  // namespace gw::soundtest
