// SPDX-License-Identifier: GPL-3.0-or-later
// One recipe per sound effect of the game. A recipe gives the dry-to-room signal of its
// effect and how long its fade-out should be; render() masters it the same way for all.
#pragma once

#include "Signal.h"
#include "ports/Sound.h"

namespace gw::soundgen {

struct Draft {
    Signal signal;
    double fadeOut = 0.03;    // seconds, within 20-50 ms
    double maxSeconds = 1.5;  // a longer room tail is cut and faded here
    double accentDb = 0.0;    // above the loudness of the rest, for the few that must stand out
};

// The finished samples of `effect`, ready to be written.
Signal render(SoundEffect effect);

// Pitched effects (MusicRecipes.cpp).
Draft gameStartFanfare();
Draft playerTypeChime();
Draft playerCue(int slot);  // slot 1 to 6: that many rising notes
Draft policeSiren();
Draft bankruptFigure();

// Knocks, clicks and thuds (ImpactRecipes.cpp).
Draft tokenClick();
Draft diceRattle();
Draft footstep();
Draft hammerKnocks();
Draft stampThud();
Draft cellDoorClank();

// Coins (CoinRecipes.cpp).
Draft coinsPaid();
Draft coinsReceived();

}  // namespace gw::soundgen
