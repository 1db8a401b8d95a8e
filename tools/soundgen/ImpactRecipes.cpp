// SPDX-License-Identifier: GPL-3.0-or-later
// The unpitched effects: things hitting things. Each is a short noise transient for the
// contact, a decaying body (sine thump or struck partials) for the material, and for the
// bigger ones a little room.
#include <array>

#include "Recipes.h"
#include "Room.h"
#include "Tone.h"

namespace gw::soundgen {

Draft tokenClick() {
    Noise noise(2001);
    Signal dry = noiseBurst(noise, Biquad::bandpass(3000.0, 1.2), 0.06, 0.0003, 0.0025);
    constexpr std::array<Partial, 2> kTip = {{{1.0, 1.0, 0.008}, {2.3, 0.4, 0.004}}};
    mixInto(dry, strike(1250.0, kTip, 0.06, 0.0005), 0.0, 0.5);
    mixInto(dry, thump(300.0, 180.0, 0.01, 0.05, 0.001, 0.008), 0.0, 0.4);
    return {dry, 0.02};
}

namespace {

// One die landing: a hard tick, the die's own plastic "tock" and a dull knock of the table.
Signal dieHit(Noise& noise, double resonance) {
    Signal hit = noiseBurst(noise, Biquad::bandpass(noise.between(2500.0, 4500.0), 1.8), 0.03,
                            0.0002, 0.003);
    constexpr std::array<Partial, 3> kDie = {
        {{1.0, 1.0, 0.007}, {1.7, 0.5, 0.005}, {2.9, 0.25, 0.003}}};
    mixInto(hit, strike(resonance, kDie, 0.04, 0.0003), 0.0, 0.6);
    mixInto(hit, noiseBurst(noise, Biquad::lowpass(500.0), 0.03, 0.0005, 0.006), 0.0, 0.7);
    return hit;
}

}  // namespace

Draft diceRattle() {
    // Eight hits of two dice, each a little later and softer than the one before, as the
    // dice run out of energy; the jitter keeps it from sounding like a metronome.
    constexpr std::array<double, 7> kGaps = {0.040, 0.046, 0.055, 0.066, 0.082, 0.104, 0.135};
    constexpr std::array<double, 8> kLevels = {1.0, 0.9, 0.95, 0.8, 0.75, 0.7, 0.6, 0.5};
    Noise noise(2002);
    Signal dry;
    double at = 0.0;
    for (std::size_t i = 0; i < kLevels.size(); ++i) {
        const double die = i % 2 == 0 ? 1500.0 : 1900.0;
        mixInto(dry, dieHit(noise, die * noise.between(0.92, 1.08)), at,
                kLevels[i] * noise.between(0.85, 1.0));
        if (i < kGaps.size()) at += kGaps[i] * noise.between(0.85, 1.15);
    }
    return {inRoom(dry, {.wet = 0.08, .reverbTime = 0.35}, 0.15), 0.03};
}

Draft footstep() {
    // Felt on card: a low thump with a whisper of scuff on top so small speakers carry it.
    // It is over well inside the 160 ms between steps.
    Noise noise(2003);
    Signal dry = thump(170.0, 85.0, 0.012, 0.08, 0.003, 0.016);
    mixInto(dry, noiseBurst(noise, Biquad::lowpass(600.0), 0.08, 0.002, 0.012), 0.0, 0.5);
    mixInto(dry, noiseBurst(noise, Biquad::bandpass(1800.0, 0.8), 0.05, 0.002, 0.01), 0.0, 0.08);
    return {dry, 0.02};
}

namespace {

// A hammer on a nail in wood: a crack, the wooden body, the nail's ring and a low thud.
// The ring rises with `blow` as the nail goes in.
Signal hammerBlow(Noise& noise, int blow) {
    Signal knock = noiseBurst(noise, Biquad::bandpass(3500.0, 1.0), 0.05, 0.0002, 0.003);
    mixInto(knock, noiseBurst(noise, Biquad::bandpass(650.0, 2.5), 0.12, 0.0005, 0.025), 0.0, 0.9);
    constexpr std::array<Partial, 3> kNail = {
        {{1.0, 1.0, 0.05}, {2.76, 0.5, 0.02}, {5.4, 0.2, 0.008}}};
    mixInto(knock, strike(1400.0 + 70.0 * blow, kNail, 0.2, 0.0003), 0.0, 0.3);
    mixInto(knock, thump(160.0, 110.0, 0.02, 0.12, 0.001, 0.03), 0.0, 0.6);
    return knock;
}

}  // namespace

Draft hammerKnocks() {
    Noise noise(2004);
    Signal dry;
    for (int blow = 0; blow < 3; ++blow) {
        mixInto(dry, hammerBlow(noise, blow), 0.26 * blow, 0.9 + 0.05 * blow);
    }
    return {inRoom(dry, {.wet = 0.12, .reverbTime = 0.4}, 0.3), 0.04, 0.85};
}

Draft stampThud() {
    // The stamp lifts off its pad with a faint tick, then lands: rubber on paper on a desk,
    // all low and no ring.
    Noise noise(2005);
    Signal dry = noiseBurst(noise, Biquad::bandpass(1400.0, 1.2), 0.03, 0.001, 0.006);
    for (float& sample : dry) sample *= 0.15f;
    constexpr double kLand = 0.035;
    mixInto(dry, thump(130.0, 65.0, 0.02, 0.25, 0.002, 0.05), kLand, 1.0);
    mixInto(dry, noiseBurst(noise, Biquad::lowpass(500.0), 0.15, 0.001, 0.03), kLand, 0.6);
    mixInto(dry, noiseBurst(noise, Biquad::bandpass(900.0, 0.8), 0.05, 0.0005, 0.01), kLand, 0.25);
    constexpr std::array<Partial, 2> kDesk = {{{1.0, 1.0, 0.07}, {2.3, 0.3, 0.03}}};
    mixInto(dry, strike(210.0, kDesk, 0.3, 0.002), kLand, 0.3);
    return {inRoom(dry, {.wet = 0.08, .reverbTime = 0.4}, 0.2), 0.03};
}

Draft cellDoorClank() {
    // The latch, then the barred door slamming: the modes of an iron bar (1, 2.76, 5.40 ...)
    // and of the door's plate ringing together with its lock, one rebound, and the stone
    // room's low boom.
    Noise noise(2006);
    Signal dry = noiseBurst(noise, Biquad::bandpass(4200.0, 2.0), 0.03, 0.0002, 0.004);
    for (float& sample : dry) sample *= 0.5f;
    constexpr std::array<Partial, 8> kIron = {{{1.0, 1.0, 0.30},
                                               {2.76, 0.8, 0.22},
                                               {3.91, 0.5, 0.22},
                                               {5.40, 0.6, 0.18},
                                               {6.93, 0.35, 0.12},
                                               {8.93, 0.45, 0.10},
                                               {11.2, 0.25, 0.07},
                                               {13.34, 0.3, 0.06}}};
    const Signal iron = strike(173.0, kIron, 1.2, 0.0008);
    const Signal impact = noiseBurst(noise, Biquad::bandpass(2200.0, 0.9), 0.08, 0.0003, 0.012);
    constexpr double kSlam = 0.05, kRebound = 0.16;
    mixInto(dry, iron, kSlam, 0.8);
    mixInto(dry, impact, kSlam, 0.8);
    mixInto(dry, iron, kRebound, 0.25);
    // The lock's smaller, brighter body rings briefly over the door's.
    constexpr std::array<Partial, 4> kLock = {
        {{1.0, 1.0, 0.12}, {2.32, 0.6, 0.08}, {4.25, 0.4, 0.05}, {6.63, 0.25, 0.03}}};
    mixInto(dry, strike(587.0, kLock, 0.5, 0.0005), kSlam, 0.35);
    mixInto(dry, impact, kRebound, 0.25);
    mixInto(dry, thump(75.0, 52.0, 0.06, 1.0, 0.005, 0.3), kSlam, 0.8);
    mixInto(dry, noiseBurst(noise, Biquad::lowpass(180.0), 0.8, 0.01, 0.25), kSlam, 0.4);
    return {inRoom(dry, {.wet = 0.3, .reverbTime = 0.9, .damping = 3500.0}, 0.5), 0.05, 1.3};
}

}  // namespace gw::soundgen
