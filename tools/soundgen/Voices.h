// SPDX-License-Identifier: GPL-3.0-or-later
// The two pitched instruments the set shares, so the start fanfare, the player cues and
// the bankrupt figure sound like one game: a bell-like chime and a soft brass.
#pragma once

#include "Noise.h"
#include "Signal.h"

namespace gw::soundgen {

// Equal-tempered pitch of a MIDI note number (69 is A at 440 Hz).
double pitch(int midiNote);

// A struck chime of the given pitch: a sine with a weak octave and the inharmonic
// overtones of a small metal bar, plus a soft mallet tick. `ring` is the fundamental's
// decay time; the sound lasts until it has fallen by about 60 dB.
Signal chime(Noise& noise, double frequency, double ring);

// A brass note held for `held` seconds then released. `brightness` from 0 (muted) to 1
// (open): how much the upper harmonics swell in as the note grows.
Signal brass(double frequency, double held, double brightness);

}  // namespace gw::soundgen
