// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Random.h"

#include <chrono>
#include <cstring>

namespace gw {
namespace {

std::uint64_t splitmix(std::uint64_t& x) {
    std::uint64_t z = (x += 0x9e3779b97f4a7c15ULL);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

std::uint64_t rotl(std::uint64_t x, int k) {
    return (x << k) | (x >> (64 - k));
}

float secondsSinceMidnight() {
    using namespace std::chrono;
    const auto now = system_clock::now().time_since_epoch();
    const auto day = duration_cast<nanoseconds>(now) % duration_cast<nanoseconds>(hours(24));
    return static_cast<float>(duration<double>(day).count());
}

}  // namespace

Xoshiro::Xoshiro(std::uint64_t seed) {
    for (auto& word : s_) word = splitmix(seed);
}

std::uint64_t Xoshiro::next() {
    const std::uint64_t result = rotl(s_[1] * 5, 7) * 9;
    const std::uint64_t t = s_[1] << 17;
    s_[2] ^= s_[0];
    s_[3] ^= s_[1];
    s_[1] ^= s_[2];
    s_[0] ^= s_[3];
    s_[2] ^= t;
    s_[3] = rotl(s_[3], 45);
    return result;
}

void Xoshiro::mix(std::uint64_t value) {
    s_[0] ^= splitmix(value);
    s_[2] ^= splitmix(value);
    next();
}

double Xoshiro::nextUnit() {
    // 24 bits: exactly representable in single precision, strictly below 1.
    return static_cast<double>(next() >> 40) * (1.0 / 16777216.0);
}

ClockRandom::ClockRandom()
    : gen_(
          static_cast<std::uint64_t>(std::chrono::steady_clock::now().time_since_epoch().count())) {
}

double ClockRandom::draw() {
    const float clock = secondsSinceMidnight();
    std::uint32_t bits = 0;
    std::memcpy(&bits, &clock, sizeof bits);
    gen_.mix(bits);
    return gen_.nextUnit();
}

ScriptedRandom::ScriptedRandom(std::vector<double> values, std::uint64_t fallbackSeed)
    : values_(std::move(values)), fallback_(fallbackSeed) {}

double ScriptedRandom::draw() {
    if (next_ < values_.size()) return values_[next_++];
    return fallback_.draw();
}

void ScriptedRandom::pushFaces(std::initializer_list<int> faces) {
    for (int f : faces) push(face(f));
}

double ScriptedRandom::face(int face) {
    // face = v mod 6 + 1 with v = whole(r * 10000) + 1
    const int v = face == 1 ? 6 : face - 1;
    return (v - 1 + 0.5) / 10000.0;
}

double ScriptedRandom::digit(int digit) {
    const int v = digit == 0 ? 10 : digit;
    return (v - 1 + 0.5) / 10000.0;
}

double ScriptedRandom::slot(int slot, int size) {
    return (slot + 0.5) / size;
}

}  // namespace gw
