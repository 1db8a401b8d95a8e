// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/QtVoice.h"

#include <QAudioDevice>
#include <QMediaDevices>
#include <QTextToSpeech>

namespace gw::app {

QtVoice::QtVoice() = default;
QtVoice::~QtVoice() = default;

QTextToSpeech* QtVoice::engine() {
    if (!tried_) {
        tried_ = true;
        if (QMediaDevices::audioOutputs().isEmpty()) return nullptr;
        if (QTextToSpeech::availableEngines().isEmpty()) return nullptr;
        speech_ = std::make_unique<QTextToSpeech>();
        if (speech_->state() == QTextToSpeech::Error) speech_.reset();
    }
    return speech_.get();
}

void QtVoice::say(const std::string& sentence) {
    if (QTextToSpeech* speech = engine()) {
        speech->stop();
        speech->say(QString::fromStdString(sentence));
    }
}

void QtVoice::stop() {
    if (speech_) speech_->stop();
}

}  // namespace gw::app
