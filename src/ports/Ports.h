// SPDX-License-Identifier: GPL-3.0-or-later
// Everything the rules reach outside themselves, for one game: the main window, the sound,
// the waits and the four cards, each behind its narrow face. The board hands these to its
// cells, cards and players; the windows' models stand behind them and are never seen here.
#pragma once

#include "ports/CardPorts.h"
#include "ports/Delay.h"
#include "ports/MainWindowPort.h"
#include "ports/Sound.h"

namespace gw {

struct Ports {
    MainWindowPort& main;
    Sound& sound;
    Delay& delay;
    CardPorts cards;
};

}  // namespace gw
