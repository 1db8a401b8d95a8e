// SPDX-License-Identifier: GPL-3.0-or-later
// Sounds by effect on one of four players. Playing never waits and never fails: a
// missing file or device is silence, and no rule depends on it.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

namespace gw {

// The two players of the main window and the two of the start window. A new sound on
// a player cuts off what that player was sounding.
enum class MediaPlayer { Main1, Main2, Start1, Start2 };

// Every sound of the game. Files whose names differ only in case are one effect.
enum class SoundEffect {
    GameStart,
    ChooseToken,
    PlayerType,
    Player1,
    Player2,
    Player3,
    Player4,
    Player5,
    Player6,
    DiceRoll,
    TokenMove,
    Pay,
    Buy,
    Building,
    Mortgaged,
    Police,
    Jail,
    Bankrupt,
};

constexpr std::size_t kSoundEffectCount = 18;

// The file of each effect, in the order of the enum: the one place these names are spelt.
constexpr std::array<std::string_view, kSoundEffectCount> kSoundFiles = {
    "gamestart.wav", "ChooseToken.wav", "playertype.wav", "Player1.wav",  "Player2.wav",
    "Player3.wav",   "Player4.wav",     "Player5.wav",    "Player6.wav",  "DICEROLL.wav",
    "tokenmove.wav", "pay.wav",         "buy.wav",        "building.wav", "mortaged.wav",
    "newpolice.wav", "jailthere.wav",   "Bankrupt.wav",
};

constexpr std::string_view soundFile(SoundEffect effect) {
    return kSoundFiles[static_cast<std::size_t>(effect)];
}

// The cue of the n-th player added, n from 1 to 6.
constexpr SoundEffect playerCue(int n) {
    return static_cast<SoundEffect>(static_cast<int>(SoundEffect::Player1) + n - 1);
}

class Sound {
public:
    virtual ~Sound() = default;
    virtual void play(MediaPlayer player, SoundEffect effect) = 0;
    // Loudness in hundredths of a decibel below full: -600 normal, -3000 muted.
    virtual void setVolume(MediaPlayer, int) {}
};

constexpr int kNormalVolume = -600;
constexpr int kMutedVolume = -3000;

class SilentSound final : public Sound {
public:
    void play(MediaPlayer, SoundEffect) override {}
};

}  // namespace gw
