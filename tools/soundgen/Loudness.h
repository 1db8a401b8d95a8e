// SPDX-License-Identifier: GPL-3.0-or-later
// How loud a sound is heard, and a limiter that keeps its peaks under full scale. Effects are
// levelled by loudness rather than peak: a rattle of short clicks and a held siren tone with
// the same peak differ by many decibels to the ear.
#pragma once

#include "Signal.h"

namespace gw::soundgen {

// RMS of the sounding part: the 10 ms windows within 30 dB of the loudest window, so the
// fades, the gaps between hits and the trailing silence do not pull the level down.
double soundingRms(const Signal& signal);

// Brings every peak to at most `ceiling` by a smooth gain that dips just before a peak and
// recovers over tens of milliseconds, so no sample is clipped and no click is added.
void limit(Signal& signal, double ceiling);

double decibelsOf(double level);
double levelOf(double decibels);

}  // namespace gw::soundgen
