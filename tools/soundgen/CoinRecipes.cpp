// SPDX-License-Identifier: GPL-3.0-or-later
// Coins: small discs that ring with a few bright, inharmonic partials and die fast. Paying
// runs down in pitch, receiving runs up and lets the last coin ring.
#include <array>
#include <cstdint>
#include <span>
#include <vector>

#include "Recipes.h"
#include "Room.h"
#include "Tone.h"

namespace gw::soundgen {

namespace {

// One coin, struck at `frequency`; partials above 5.2 kHz are left out so the set stays
// bright without turning shrill. The nearly equal pair of partials gives the shimmer.
Signal clink(Noise& noise, double frequency, double ring) {
    const std::array<Partial, 5> kDisc = {{{1.0, 1.0, ring},
                                           {1.0021, 0.7, ring},
                                           {1.47, 0.6, ring * 0.6},
                                           {1.83, 0.35, ring * 0.4},
                                           {2.09, 0.25, ring * 0.3}}};
    std::vector<Partial> audible;
    for (const Partial& partial : kDisc) {
        if (frequency * partial.ratio <= 5200.0) audible.push_back(partial);
    }
    Signal coin = strike(frequency, audible, ring * 8.0, 0.0003);
    mixInto(coin, noiseBurst(noise, Biquad::bandpass(6000.0, 0.7), 0.01, 0.0001, 0.0012), 0.0, 0.3);
    return coin;
}

struct Coin {
    double at;
    double frequency;
    double ring;
    double gain;
};

constexpr std::array<Coin, 4> kPaid = {{{0.000, 3100.0, 0.06, 1.0},
                                        {0.065, 2750.0, 0.06, 0.9},
                                        {0.125, 2450.0, 0.06, 0.85},
                                        {0.200, 2150.0, 0.07, 0.8}}};
constexpr std::array<Coin, 4> kReceived = {{{0.000, 2150.0, 0.05, 0.75},
                                            {0.055, 2500.0, 0.05, 0.8},
                                            {0.110, 2850.0, 0.05, 0.9},
                                            {0.165, 3250.0, 0.12, 1.0}}};

// A run of coins clinking with noise from the run's own seed.
Signal coins(std::uint32_t seed, std::span<const Coin> run) {
    Noise noise(seed);
    Signal dry;
    for (const Coin& coin : run) {
        mixInto(dry, clink(noise, coin.frequency, coin.ring), coin.at, coin.gain);
    }
    return dry;
}

}  // namespace

Draft coinsPaid() {
    return {inRoom(coins(3001, kPaid), {.wet = 0.1, .reverbTime = 0.35}, 0.2), 0.04, 0.5};
}

Draft coinsReceived() {
    return {inRoom(coins(3002, kReceived), {.wet = 0.12, .reverbTime = 0.4}, 0.25), 0.05, 0.6};
}

}  // namespace gw::soundgen
