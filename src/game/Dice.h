// SPDX-License-Identifier: GPL-3.0-or-later
// One six-sided die. The face comes from a reseeded draw spread over 10000 values
// and taken modulo 6, so faces 2 to 5 are a little likelier than 1 and 6.
#pragma once

#include "base/Integer.h"

namespace gw {

class Random;

class Dice {
public:
    explicit Dice(Random& random) : random_(random) {}
    void roll();
    Integer getValue() const { return value_; }
    // The face that a draw r gives.
    static Integer faceOf(double r);

private:
    Random& random_;
    Integer value_ = 0;
};

}  // namespace gw
