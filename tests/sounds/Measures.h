// SPDX-License-Identifier: GPL-3.0-or-later
// Listening by numbers: the few measurements the sound tests make on 16-bit samples.
// Full scale is 32767; times are in seconds at the file's rate.
#pragma once

#include <cstdint>
#include <vector>

namespace gw::soundtest {

using Samples = std::vector<std::int16_t>;

// Samples at or under this magnitude count as silence (about -70 dBFS).
constexpr int kSilenceLevel = 10;

double peak(const Samples& samples);
double rms(const Samples& samples);
double mean(const Samples& samples);

// RMS of the sounding part, as the ear weighs a short effect: the 10 ms windows within
// 30 dB of the loudest window, so gaps, fades and the trailing silence do not count.
double soundingRms(const Samples& samples, int rate);

// Samples from the end back to the last one louder than silence.
std::size_t trailingSilence(const Samples& samples);

// Length of the sound before its trailing silence.
std::size_t soundLength(const Samples& samples);

// Starts of distinct hits: where the 1 ms envelope climbs over 30% of the loudest hit
// after falling under 10% since the last one.
std::vector<std::size_t> onsets(const Samples& samples, int rate);

// Sign changes per second in [from, to): a rough pitch for a signal with one strong partial.
double crossingRate(const Samples& samples, std::size_t from, std::size_t to, int rate);

}  // namespace gw::soundtest
