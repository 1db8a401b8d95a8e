// SPDX-License-Identifier: GPL-3.0-or-later
// Mixing and measuring whole signals.
#include "Signal.h"

#include <algorithm>
#include <cmath>

namespace gw::soundgen {

void mixInto(Signal& target, const Signal& source, double atSeconds, double gain) {
    const std::size_t start = samplesIn(atSeconds);
    if (target.size() < start + source.size()) target.resize(start + source.size(), 0.0f);
    for (std::size_t i = 0; i < source.size(); ++i) {
        target[start + i] += static_cast<float>(source[i] * gain);
    }
}

double peakOf(const Signal& signal) {
    double peak = 0.0;
    for (const float sample : signal) peak = std::max(peak, std::abs(static_cast<double>(sample)));
    return peak;
}

}  // namespace gw::soundgen
