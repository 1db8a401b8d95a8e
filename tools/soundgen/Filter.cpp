// SPDX-License-Identifier: GPL-3.0-or-later
// Coefficients of the second-order filters and their direct-form processing.
#include "Filter.h"

#include <cmath>

namespace gw::soundgen {

namespace {

struct Angle {
    double cosine;
    double alpha;
};

Angle angleOf(double frequency, double q) {
    const double w = kTwoPi * frequency / kSampleRate;
    return {std::cos(w), std::sin(w) / (2.0 * q)};
}

}  // namespace

Biquad::Biquad(double b0, double b1, double b2, double a0, double a1, double a2)
    : b0_(b0 / a0), b1_(b1 / a0), b2_(b2 / a0), a1_(a1 / a0), a2_(a2 / a0) {}

Biquad Biquad::lowpass(double cutoff, double q) {
    const auto [c, alpha] = angleOf(cutoff, q);
    return {(1 - c) / 2, 1 - c, (1 - c) / 2, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad Biquad::highpass(double cutoff, double q) {
    const auto [c, alpha] = angleOf(cutoff, q);
    return {(1 + c) / 2, -(1 + c), (1 + c) / 2, 1 + alpha, -2 * c, 1 - alpha};
}

Biquad Biquad::bandpass(double centre, double q) {
    const auto [c, alpha] = angleOf(centre, q);
    return {alpha, 0.0, -alpha, 1 + alpha, -2 * c, 1 - alpha};
}

float Biquad::process(float input) {
    const double output = b0_ * input + b1_ * x1_ + b2_ * x2_ - a1_ * y1_ - a2_ * y2_;
    x2_ = x1_;
    x1_ = input;
    y2_ = y1_;
    y1_ = output;
    return static_cast<float>(output);
}

void Biquad::apply(Signal& signal) {
    for (float& sample : signal) sample = process(sample);
}

}  // namespace gw::soundgen
