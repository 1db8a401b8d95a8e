// SPDX-License-Identifier: GPL-3.0-or-later
// The game's source of chance. Every random number of a game is one "reseeded draw":
// a number r with 0 <= r < 1. The real game reseeds from the clock before each draw;
// tests and tools use a fixed seed or a scripted list instead.
#pragma once

#include <cstdint>
#include <memory>
#include <vector>

namespace gw {

class Random {
public:
    virtual ~Random() = default;
    // One reseeded draw, 0 <= r < 1, of single precision.
    virtual double draw() = 0;
};

// A small, fast generator (xoshiro256**) that the three sources share.
class Xoshiro {
public:
    explicit Xoshiro(std::uint64_t seed);
    std::uint64_t next();
    // Mixes a value into the running state without replacing it.
    void mix(std::uint64_t value);
    // The next number as a single-precision value in [0, 1).
    double nextUnit();

private:
    std::uint64_t s_[4];
};

// Reseeded from the clock (seconds since midnight, single precision) before every draw.
// The clock value is mixed into the running state, so two draws within one tick differ.
class ClockRandom final : public Random {
public:
    ClockRandom();
    double draw() override;

private:
    Xoshiro gen_;
};

// The same sequence for the same seed: simulations, benchmarks and tests.
class SeededRandom final : public Random {
public:
    explicit SeededRandom(std::uint64_t seed) : gen_(seed) {}
    double draw() override { return gen_.nextUnit(); }

private:
    Xoshiro gen_;
};

// Gives the listed values in order, then falls back to a seeded sequence.
class ScriptedRandom final : public Random {
public:
    explicit ScriptedRandom(std::vector<double> values = {}, std::uint64_t fallbackSeed = 1);
    double draw() override;
    void push(double value) { values_.push_back(value); }
    void pushFaces(std::initializer_list<int> faces);
    std::size_t remaining() const { return values_.size() - next_; }

    // Values that give a wanted outcome from the game's formulas.
    static double face(int face);            // a die showing `face`
    static double digit(int digit);          // (whole part of r * 10000 + 1) mod 10 == digit
    static double slot(int slot, int size);  // whole part of r * size == slot

private:
    std::vector<double> values_;
    std::size_t next_ = 0;
    SeededRandom fallback_;
};

}  // namespace gw
