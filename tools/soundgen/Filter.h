// SPDX-License-Identifier: GPL-3.0-or-later
// Second-order filters (the usual audio cookbook forms) for shaping noise and tones.
#pragma once

#include "Signal.h"

namespace gw::soundgen {

class Biquad {
public:
    static Biquad lowpass(double cutoff, double q = 0.7071);
    static Biquad highpass(double cutoff, double q = 0.7071);
    // Unity gain at `centre`; a higher q gives a narrower band.
    static Biquad bandpass(double centre, double q);

    float process(float input);
    void apply(Signal& signal);

private:
    Biquad(double b0, double b1, double b2, double a0, double a1, double a2);

    double b0_, b1_, b2_, a1_, a2_;
    double x1_ = 0.0, x2_ = 0.0, y1_ = 0.0, y2_ = 0.0;
};

}  // namespace gw::soundgen
