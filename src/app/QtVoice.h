// SPDX-License-Identifier: GPL-3.0-or-later
// The voice of File > Voice through Qt's text to speech. The engine starts at the first
// sentence, so a game that never enables the voice never loads it; no engine or no audio
// device is silence.
#pragma once

#include <memory>

#include "windows/Voice.h"

class QTextToSpeech;

namespace gw::app {

class QtVoice final : public Voice {
public:
    QtVoice();
    ~QtVoice() override;
    void say(const std::string& sentence) override;
    void stop() override;

private:
    QTextToSpeech* engine();

    std::unique_ptr<QTextToSpeech> speech_;
    bool tried_ = false;
};

}  // namespace gw::app
