// SPDX-License-Identifier: GPL-3.0-or-later
// The game's one number type and the two ways numbers are made from arithmetic:
// saturation at the 16-bit bounds and rounding of a double-precision product.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>

namespace gw {

// Money, counts, cell indices and ids are all 16-bit signed.
using Integer = std::int16_t;

constexpr Integer kIntegerMax = std::numeric_limits<Integer>::max();
constexpr Integer kIntegerMin = std::numeric_limits<Integer>::min();

// A wider result brought back into range: it sticks at the bound instead of wrapping.
constexpr Integer saturate(long long value) {
    if (value > kIntegerMax) return kIntegerMax;
    if (value < kIntegerMin) return kIntegerMin;
    return static_cast<Integer>(value);
}

constexpr Integer addSat(Integer a, Integer b) {
    return saturate(static_cast<long long>(a) + b);
}
constexpr Integer subSat(Integer a, Integer b) {
    return saturate(static_cast<long long>(a) - b);
}

// Rounds to the nearest whole number, ties to the even one, then saturates.
inline Integer rounded(double value) {
    if (!(value < 32767.5)) return kIntegerMax;  // also catches NaN
    if (value < -32768.5) return kIntegerMin;
    const double floor = std::floor(value);
    const double rest = value - floor;
    long long whole = static_cast<long long>(floor);
    if (rest > 0.5 || (rest == 0.5 && whole % 2 != 0)) ++whole;
    return saturate(whole);
}

}  // namespace gw
