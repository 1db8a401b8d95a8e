// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtSound.h"

#include <QAudio>
#include <QAudioDevice>
#include <QCoreApplication>
#include <QDir>
#include <QMediaDevices>
#include <QSoundEffect>

#include "app/WavCheck.h"

namespace gw::app {

namespace {

QUrl findFile(const QStringList& folders, const QString& name) {
    for (const QString& folder : folders) {
        const QDir dir(folder);
        if (!dir.exists()) continue;
        for (const QString& entry : dir.entryList(QDir::Files)) {
            if (entry.compare(name, Qt::CaseInsensitive) == 0) {
                return QUrl::fromLocalFile(dir.absoluteFilePath(entry));
            }
        }
    }
    return {};
}

}  // namespace

qreal linearVolume(int hundredthsOfDb) {
    return QAudio::convertVolume(hundredthsOfDb / 100.0, QAudio::DecibelVolumeScale,
                                 QAudio::LinearVolumeScale);
}

QStringList QtSound::defaultFolders() {
    // Relative to the program, never a path fixed at build time, so an install under any
    // prefix, moved afterwards or unpacked from a package, finds its own sounds.
    const QString here = QCoreApplication::applicationDirPath();
    return {here, here + QStringLiteral("/sounds"),
            QDir::cleanPath(here + QStringLiteral("/" GILDENWAY_SOUNDS_FROM_PROGRAM))};
}

QtSound::QtSound(const QStringList& folders, bool deviceCheck) {
    hasOutput_ = !deviceCheck || !QMediaDevices::audioOutputs().isEmpty();
    for (std::size_t e = 0; e < kSoundEffectCount; ++e) {
        const std::string_view name = kSoundFiles[e];
        const QUrl url =
            findFile(folders, QString::fromLatin1(name.data(), static_cast<int>(name.size())));
        if (url.isEmpty()) continue;
        if (isPlayableWav(url.toLocalFile())) {
            files_[e] = url;
        } else {
            ++unplayable_;
        }
    }
    volumes_.fill(linearVolume(kNormalVolume));
    if (!hasOutput_) return;
    for (std::size_t p = 0; p < ready_.size(); ++p) {
        for (std::size_t e = 0; e < kSoundEffectCount; ++e) prepare(p, e);
    }
}

void QtSound::prepare(std::size_t player, std::size_t effect) {
    const QUrl& url = files_[effect];
    if (url.isEmpty()) return;
    auto sound = std::make_unique<QSoundEffect>();
    sound->setSource(url);
    ready_[player][effect] = std::move(sound);
}

QtSound::~QtSound() = default;

int QtSound::filesFound() const {
    return static_cast<int>(std::count_if(files_.begin(), files_.end(),
                                          [](const QUrl& url) { return !url.isEmpty(); }));
}

QString QtSound::startupWarning() const {
    const int found = filesFound();
    if (found == 0 && unplayable_ == 0) {
        return QStringLiteral("no sound files found; playing without sound");
    }
    const int silent = static_cast<int>(kSoundEffectCount) - found;
    if (silent == 0) return {};
    return QStringLiteral("%1 of %2 sound files missing or damaged; those sounds are silent")
        .arg(silent)
        .arg(kSoundEffectCount);
}

void QtSound::play(MediaPlayer player, SoundEffect effect) {
    const QUrl& url = files_[static_cast<std::size_t>(effect)];
    if (!hasOutput_ || url.isEmpty()) return;
    // A fresh effect for each play starts cleanly (a replayed one was silent now and then);
    // the old one stops as it is destroyed. This one was loaded ahead, and the next is
    // loaded now, while it sounds.
    const std::size_t p = index(player);
    const auto e = static_cast<std::size_t>(effect);
    if (!ready_[p][e]) prepare(p, e);
    std::unique_ptr<QSoundEffect> sound = std::move(ready_[p][e]);
    sound->setVolume(static_cast<float>(volumes_[p]));
    sound->play();
    playing_[p] = std::move(sound);
    prepare(p, e);
}

void QtSound::setVolume(MediaPlayer player, int hundredthsOfDb) {
    volumes_[index(player)] = linearVolume(hundredthsOfDb);
    if (auto& sound = playing_[index(player)]) {
        sound->setVolume(static_cast<float>(volumes_[index(player)]));
    }
}

}  // namespace gw::app
