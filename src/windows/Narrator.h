// SPDX-License-Identifier: GPL-3.0-or-later
// File > Voice: reads each new message of the message line aloud while enabled. Off when
// the program starts; Mute stops the sentence being read.
#pragma once

#include <string>

namespace gw {

class Voice;

class Narrator {
public:
    explicit Narrator(Voice& voice) : voice_(&voice) {}
    void setVoice(Voice& voice) { voice_ = &voice; }

    void Enable1_Click() { enabled_ = true; }
    void Mute1_Click();
    bool isEnabled() const { return enabled_; }

    // The message line now reads msg; a line that did not change is not read again.
    void noteMessage(const std::string& msg);

private:
    Voice* voice_;
    bool enabled_ = false;
    std::string lastMessage_;
};

}  // namespace gw
