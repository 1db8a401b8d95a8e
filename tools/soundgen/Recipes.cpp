// SPDX-License-Identifier: GPL-3.0-or-later
// Which recipe makes which effect.
#include "Recipes.h"

#include "Master.h"

namespace gw::soundgen {

namespace {

Draft draftOf(SoundEffect effect) {
    switch (effect) {
        case SoundEffect::GameStart:
            return gameStartFanfare();
        case SoundEffect::ChooseToken:
            return tokenClick();
        case SoundEffect::PlayerType:
            return playerTypeChime();
        case SoundEffect::Player1:
            return playerCue(1);
        case SoundEffect::Player2:
            return playerCue(2);
        case SoundEffect::Player3:
            return playerCue(3);
        case SoundEffect::Player4:
            return playerCue(4);
        case SoundEffect::Player5:
            return playerCue(5);
        case SoundEffect::Player6:
            return playerCue(6);
        case SoundEffect::DiceRoll:
            return diceRattle();
        case SoundEffect::TokenMove:
            return footstep();
        case SoundEffect::Pay:
            return coinsPaid();
        case SoundEffect::Buy:
            return coinsReceived();
        case SoundEffect::Building:
            return hammerKnocks();
        case SoundEffect::Mortgaged:
            return stampThud();
        case SoundEffect::Police:
            return policeSiren();
        case SoundEffect::Jail:
            return cellDoorClank();
        case SoundEffect::Bankrupt:
            return bankruptFigure();
    }
    return {};
}

}  // namespace

Signal render(SoundEffect effect) {
    Draft draft = draftOf(effect);
    return master(std::move(draft.signal), draft.fadeOut, draft.maxSeconds, draft.accentDb);
}

}  // namespace gw::soundgen
