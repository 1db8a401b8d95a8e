// SPDX-License-Identifier: GPL-3.0-or-later
// The sounds at the chosen pace: at Instant nothing is played, since nothing is seen
// either; volumes always pass, so muting holds whatever the pace.
#pragma once

#include "ports/Sound.h"
#include "windows/PacedDelay.h"

namespace gw {

class PacedSound final : public Sound {
public:
    PacedSound(Sound& inner, const PacedDelay& pacing) : inner_(inner), pacing_(pacing) {}

    void play(MediaPlayer player, SoundEffect effect) override {
        if (paceSounds(pacing_.pace())) inner_.play(player, effect);
    }
    void setVolume(MediaPlayer player, int hundredthsOfDb) override {
        inner_.setVolume(player, hundredthsOfDb);
    }

private:
    Sound& inner_;
    const PacedDelay& pacing_;
};

}  // namespace gw
