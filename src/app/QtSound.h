// SPDX-License-Identifier: GPL-3.0-or-later
// The real sound: four players, each play a fresh sound effect that cuts off the one that
// player was sounding. Each player's next effect of each sound is loaded ahead, so that a
// play only starts it. No output device or no file is silence.
#pragma once

#include <QString>
#include <QStringList>
#include <QUrl>
#include <array>
#include <memory>

#include "ports/Sound.h"

class QSoundEffect;

namespace gw::app {

class QtSound final : public Sound {
public:
    // Sound files are looked for by name, in any case, in these folders in order.
    explicit QtSound(const QStringList& folders, bool deviceCheck = true);
    ~QtSound() override;

    void play(MediaPlayer player, SoundEffect effect) override;
    void setVolume(MediaPlayer player, int hundredthsOfDb) override;

    bool hasOutput() const { return hasOutput_; }
    // Files found and whole enough to play.
    int filesFound() const;
    // The one line to print at start-up when some sound is silent; empty when all play.
    QString startupWarning() const;
    QUrl file(SoundEffect effect) const { return files_[static_cast<std::size_t>(effect)]; }
    qreal volume(MediaPlayer player) const { return volumes_[index(player)]; }

    // The folders of a run: beside the program, its "sounds" folder (the build tree), and
    // the installed data, found from the program's folder (<bin>/../share/gildenway/sounds).
    static QStringList defaultFolders();

private:
    static std::size_t index(MediaPlayer p) { return static_cast<std::size_t>(p); }
    // Loads the effect that the player's next play of the sound will start.
    void prepare(std::size_t player, std::size_t effect);

    bool hasOutput_ = false;
    int unplayable_ = 0;
    std::array<QUrl, kSoundEffectCount> files_;
    std::array<std::unique_ptr<QSoundEffect>, 4> playing_;
    std::array<std::array<std::unique_ptr<QSoundEffect>, kSoundEffectCount>, 4> ready_;
    std::array<qreal, 4> volumes_{};
};

// Linear loudness of a volume in hundredths of a decibel: -600 gives about 0.5.
qreal linearVolume(int hundredthsOfDb);

}  // namespace gw::app
