// SPDX-License-Identifier: GPL-3.0-or-later
// A small, dark room around a dry sound: the short tail that makes the effects feel
// played in one place rather than printed as numbers.
#pragma once

#include "Signal.h"

namespace gw::soundgen {

struct RoomShape {
    double wet = 0.15;        // level of the tail against the dry sound
    double reverbTime = 0.6;  // seconds for the tail to fall by 60 dB
    double damping = 4500.0;  // the tail loses highs above about this frequency
};

// The dry signal plus its room tail, lengthened by `tailSeconds`.
Signal inRoom(const Signal& dry, RoomShape shape, double tailSeconds);

}  // namespace gw::soundgen
