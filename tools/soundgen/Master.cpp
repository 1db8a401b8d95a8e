// Levelling, fading and padding a finished recipe.
#include "Master.h"

#include <algorithm>
#include <cmath>

#include "Filter.h"

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

}  // namespace

Signal master(Signal raw, double fadeOutSeconds, double maxSeconds) {
    Biquad::highpass(20.0).apply(raw);  // takes out DC and inaudible rumble
    cutQuietTail(raw);
    if (raw.size() > samplesIn(maxSeconds)) raw.resize(samplesIn(maxSeconds));
    fade(raw, kFadeInSeconds, fadeOutSeconds);
    if (const double peak = peakOf(raw); peak > 0.0) {
        const auto gain = static_cast<float>(kPeakLevel / peak);
        for (float& sample : raw) sample *= gain;
    }
    raw.resize(raw.size() + samplesIn(kSilenceSeconds), 0.0f);
    return raw;
}

}  // namespace gw::soundgen
