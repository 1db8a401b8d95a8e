// SPDX-License-Identifier: GPL-3.0-or-later
// Random numbers that come out the same on every machine and every build, so the
// generated files only change when a recipe does. Each recipe seeds its own source.
#pragma once

#include <cstdint>
#include <random>

namespace gw::soundgen {

class Noise {
public:
    explicit Noise(std::uint32_t seed) : engine_(seed) {}

    // Uniform in [0, 1). std::mt19937's output is fixed by the standard; the library's
    // distributions are not, so the conversion is done here.
    double unit() { return static_cast<double>(engine_() >> 8) / 16777216.0; }

    double between(double low, double high) { return low + (high - low) * unit(); }

    float white() { return static_cast<float>(2.0 * unit() - 1.0); }

private:
    std::mt19937 engine_;
};

}  // namespace gw::soundgen
