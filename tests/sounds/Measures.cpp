// SPDX-License-Identifier: GPL-3.0-or-later
// Levels, lengths, hits and pitch estimates of a sample buffer.
#include "Measures.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>

namespace gw::soundtest {

double peak(const Samples& samples) {
    int loudest = 0;
    for (const std::int16_t s : samples) loudest = std::max(loudest, std::abs(int{s}));
    return loudest;
}

double rms(const Samples& samples) {
    double sum = 0.0;
    for (const std::int16_t s : samples) sum += static_cast<double>(s) * s;
    return samples.empty() ? 0.0 : std::sqrt(sum / samples.size());
}

double mean(const Samples& samples) {
    double sum = 0.0;
    for (const std::int16_t s : samples) sum += s;
    return samples.empty() ? 0.0 : sum / samples.size();
}

double soundingRms(const Samples& samples, int rate) {
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

std::size_t trailingSilence(const Samples& samples) {
    const auto loud = std::find_if(samples.rbegin(), samples.rend(),
                                   [](std::int16_t s) { return std::abs(int{s}) > kSilenceLevel; });
    return static_cast<std::size_t>(loud - samples.rbegin());
}

std::size_t soundLength(const Samples& samples) {
    return samples.size() - trailingSilence(samples);
}

std::vector<std::size_t> onsets(const Samples& samples, int rate) {
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

double crossingRate(const Samples& samples, std::size_t from, std::size_t to, int rate) {
    to = std::min(to, samples.size());
    if (to <= from + 1) return 0.0;
    int crossings = 0;
    for (std::size_t i = from + 1; i < to; ++i) {
        if ((samples[i - 1] < 0) != (samples[i] < 0)) ++crossings;
    }
    return crossings * static_cast<double>(rate) / (to - from);
}

}  // namespace gw::soundtest
