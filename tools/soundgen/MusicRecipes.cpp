// SPDX-License-Identifier: GPL-3.0-or-later
// The pitched effects. All sit in C major, played on the shared chime and brass, so the
// game's music and its cues belong together.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <span>

#include "Filter.h"
#include "Master.h"
#include "Recipes.h"
#include "Room.h"
#include "Voices.h"

namespace gw::soundgen {

namespace {

struct Note {
    double at;    // onset, seconds
    int midi;     // pitch
    double held;  // seconds
    double gain;
};

// Plays notes on the brass, moved by `semitones` and at `level` times their own gain, so a
// line can be doubled softly an octave down.
void playBrass(Signal& out, std::span<const Note> notes, double brightness, int semitones = 0,
               double level = 1.0) {
    for (const Note& note : notes) {
        mixInto(out, brass(pitch(note.midi + semitones), note.held, brightness), note.at,
                note.gain * level);
    }
}

}  // namespace

Draft gameStartFanfare() {
    // A pickup of three, a leap to the tonic, and a held chord on the fifth.
    constexpr std::array<Note, 6> kLead = {{{0.00, 67, 0.08, 1.0},
                                            {0.12, 67, 0.08, 1.0},
                                            {0.24, 67, 0.08, 1.0},
                                            {0.36, 72, 0.34, 1.0},
                                            {0.76, 76, 0.11, 0.9},
                                            {0.92, 79, 0.85, 1.0}}};
    constexpr std::array<Note, 6> kHarmony = {{{0.36, 64, 0.34, 0.5},
                                               {0.76, 72, 0.11, 0.45},
                                               {0.92, 76, 0.85, 0.45},
                                               {0.92, 72, 0.85, 0.4},
                                               {0.36, 48, 0.34, 0.4},
                                               {0.92, 48, 0.85, 0.45}}};
    Signal dry;
    playBrass(dry, kLead, 0.9);
    playBrass(dry, kHarmony, 0.6);
    Noise noise(1001);
    mixInto(dry, chime(noise, pitch(84), 0.3), 0.92, 0.22);
    mixInto(dry, chime(noise, pitch(91), 0.25), 0.98, 0.16);
    return {inRoom(dry, {.wet = 0.22, .reverbTime = 0.8}, 0.5), 0.05, 2.5};
}

Draft playerTypeChime() {
    // A falling fourth, "ding-dong": heard as a change of state, not as a player's cue.
    Noise noise(1002);
    Signal dry;
    mixInto(dry, chime(noise, pitch(86), 0.12), 0.0, 0.9);
    mixInto(dry, chime(noise, pitch(79), 0.16), 0.13, 1.0);
    return {inRoom(dry, {.wet = 0.12, .reverbTime = 0.4}, 0.3), 0.05, 0.6};
}

Draft playerCue(int slot) {
    // One step further up the pentatonic scale for each slot: Player 6 climbs the octave.
    constexpr std::array<int, 6> kScale = {79, 81, 84, 86, 88, 91};
    Noise noise(1010 + static_cast<std::uint32_t>(slot));
    const int notes = std::clamp(slot, 1, 6);
    Signal dry;
    for (int i = 0; i < notes; ++i) {
        const bool last = i == notes - 1;
        mixInto(dry, chime(noise, pitch(kScale[i]), last ? 0.14 : 0.1), 0.09 * i, last ? 1.0 : 0.8);
    }
    return {inRoom(dry, {.wet = 0.12, .reverbTime = 0.4}, 0.3), 0.05, 0.5 + 0.09 * (notes - 1)};
}

Draft policeSiren() {
    // Two horn tones a fourth apart, alternating; the pitch slides briefly at each change
    // as a real horn's does.
    constexpr double kLow = 440.0, kHigh = 587.33, kSegment = 0.25;
    constexpr int kSegments = 4;
    Signal dry(samplesIn(kSegment * kSegments), 0.0f);
    double phase = 0.0;
    double frequency = kHigh;
    for (std::size_t i = 0; i < dry.size(); ++i) {
        const double t = secondsAt(i);
        const bool high = static_cast<int>(t / kSegment) % 2 == 0;
        frequency +=
            ((high ? kHigh : kLow) - frequency) * (1.0 - std::exp(-1.0 / (0.008 * kSampleRate)));
        double sum = 0.0;
        for (int n = 1; n <= 9; ++n) sum += (n % 2 == 1 ? 1.0 : 0.3) / n * std::sin(n * phase);
        // The car passes and draws away: the horn fades as it plays, which also keeps a
        // held tone from standing far louder than the set's short effects.
        const double swell = std::min({1.0, t / 0.02, (kSegment * kSegments - t) / 0.06}) *
                             (1.0 - 0.6 * t / (kSegment * kSegments));
        dry[i] = static_cast<float>(swell * sum);
        phase += kTwoPi * frequency / kSampleRate;
    }
    Biquad::lowpass(3200.0).apply(dry);
    return {inRoom(dry, {.wet = 0.12, .reverbTime = 0.4}, 0.25), 0.04, 1.15, kAccentDb};
}

Draft bankruptFigure() {
    // A muted horn falling by semitones, doubled softly an octave down, the last note left to
    // sag with its vibrato.
    constexpr std::array<Note, 3> kFall = {
        {{0.00, 67, 0.22, 1.0}, {0.30, 66, 0.22, 1.0}, {0.60, 65, 0.55, 1.0}}};
    Signal dry;
    playBrass(dry, kFall, 0.3);
    playBrass(dry, kFall, 0.3, -12, 0.4);
    return {inRoom(dry, {.wet = 0.15, .reverbTime = 0.6}, 0.2), 0.05, 1.5, kAccentDb};
}

}  // namespace gw::soundgen
