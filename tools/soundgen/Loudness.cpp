// SPDX-License-Identifier: GPL-3.0-or-later
// Windowed RMS and a look-ahead peak limiter.
#include "Loudness.h"

#include <algorithm>
#include <cmath>

namespace gw::soundgen {

namespace {

constexpr double kWindowSeconds = 0.010;
constexpr double kSoundingRangeDb = 30.0;
constexpr double kLookAheadSeconds = 0.0015;
constexpr double kReleaseSeconds = 0.060;

// Minimum of `values` over [i - reach, i + reach] for every i.
std::vector<double> runningMinimum(const std::vector<double>& values, std::size_t reach) {
    std::vector<double> out(values.size());
    for (std::size_t i = 0; i < values.size(); ++i) {
        const std::size_t from = i >= reach ? i - reach : 0;
        const std::size_t to = std::min(values.size(), i + reach + 1);
        out[i] = *std::min_element(values.begin() + static_cast<std::ptrdiff_t>(from),
                                   values.begin() + static_cast<std::ptrdiff_t>(to));
    }
    return out;
}

// Mean of `values` over [i - reach, i + reach], the missing ends counted as 1 (no change).
std::vector<double> runningMean(const std::vector<double>& values, std::size_t reach) {
    std::vector<double> out(values.size());
    const double width = static_cast<double>(2 * reach + 1);
    double sum = width;  // every value of the first window counts as 1 until it is read
    const auto at = [&](std::ptrdiff_t i) {
        return i >= 0 && i < static_cast<std::ptrdiff_t>(values.size())
                   ? values[static_cast<std::size_t>(i)]
                   : 1.0;
    };
    const auto r = static_cast<std::ptrdiff_t>(reach);
    for (std::ptrdiff_t i = -r; i <= r; ++i) sum += at(i) - 1.0;
    for (std::size_t i = 0; i < values.size(); ++i) {
        out[i] = sum / width;
        const auto k = static_cast<std::ptrdiff_t>(i);
        sum += at(k + r + 1) - at(k - r);
    }
    return out;
}

}  // namespace

double decibelsOf(double level) {
    return 20.0 * std::log10(level);
}

double levelOf(double decibels) {
    return std::pow(10.0, decibels / 20.0);
}

double soundingRms(const Signal& signal) {
    const std::size_t window = samplesIn(kWindowSeconds);
    std::vector<double> energies;
    for (std::size_t at = 0; at + window <= signal.size(); at += window) {
        double sum = 0.0;
        for (std::size_t i = at; i < at + window; ++i) sum += double{signal[i]} * signal[i];
        energies.push_back(sum / static_cast<double>(window));
    }
    if (energies.empty()) return 0.0;
    const double loudest = *std::max_element(energies.begin(), energies.end());
    const double floor = loudest * std::pow(10.0, -kSoundingRangeDb / 10.0);
    double sum = 0.0;
    int counted = 0;
    for (double energy : energies) {
        if (energy < floor) continue;
        sum += energy;
        ++counted;
    }
    return counted == 0 ? 0.0 : std::sqrt(sum / counted);
}

void limit(Signal& signal, double ceiling) {
    std::vector<double> needed(signal.size());
    for (std::size_t i = 0; i < signal.size(); ++i) {
        const double magnitude = std::abs(double{signal[i]});
        needed[i] = magnitude > ceiling ? ceiling / magnitude : 1.0;
    }
    // Each window that the mean looks at holds the peak's own dip, so the smoothed gain is
    // never above what the peak needs, and it falls over the look-ahead, not in one step.
    const std::size_t reach = samplesIn(kLookAheadSeconds);
    const std::vector<double> smooth = runningMean(runningMinimum(needed, reach), reach);
    const double recovery = 1.0 - std::exp(-1.0 / (kReleaseSeconds * kSampleRate));
    double gain = 1.0;
    for (std::size_t i = 0; i < signal.size(); ++i) {
        gain = std::min(smooth[i], gain + (1.0 - gain) * recovery);
        signal[i] = static_cast<float>(std::clamp(signal[i] * gain, -ceiling, ceiling));
    }
}

}  // namespace gw::soundgen
