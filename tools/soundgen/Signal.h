// SPDX-License-Identifier: GPL-3.0-or-later
// The sample buffer every part of the generator passes around: mono floats at 44.1 kHz,
// full scale at 1.0. Mixing and timing helpers work in seconds so recipes read like scores.
#pragma once

#include <cstddef>
#include <numbers>
#include <vector>

namespace gw::soundgen {

using Signal = std::vector<float>;

constexpr int kSampleRate = 44100;
constexpr double kTwoPi = 2.0 * std::numbers::pi;

constexpr std::size_t samplesIn(double seconds) {
    return seconds <= 0.0 ? 0 : static_cast<std::size_t>(seconds * kSampleRate + 0.5);
}

constexpr double secondsAt(std::size_t index) {
    return static_cast<double>(index) / kSampleRate;
}

// Adds `source` times `gain` into `target` from `atSeconds` on, growing `target` as needed.
void mixInto(Signal& target, const Signal& source, double atSeconds, double gain = 1.0);

double peakOf(const Signal& signal);

}  // namespace gw::soundgen
