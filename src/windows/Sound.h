// Sounds by file name on one of four players. Playing never waits and never fails:
// a missing file or device is silence, and no rule depends on it.
#pragma once

#include <string_view>

namespace gw {

// The two players of the main window and the two of the start window. A new sound on
// a player cuts off what that player was sounding.
enum class MediaPlayer { Main1, Main2, Start1, Start2 };

class Sound {
public:
    virtual ~Sound() = default;
    virtual void play(MediaPlayer player, std::string_view file) = 0;
    // Loudness in hundredths of a decibel below full: -600 normal, -3000 muted.
    virtual void setVolume(MediaPlayer, int) {}
};

constexpr int kNormalVolume = -600;
constexpr int kMutedVolume = -3000;

class SilentSound final : public Sound {
public:
    void play(MediaPlayer, std::string_view) override {}
};

}  // namespace gw
