// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Narrator.h"

#include "windows/Voice.h"

namespace gw {

void Narrator::Mute1_Click() {
    enabled_ = false;
    voice_->stop();
}

void Narrator::noteMessage(const std::string& msg) {
    if (msg == lastMessage_) return;
    lastMessage_ = msg;
    if (enabled_) voice_->say(msg);
}

}  // namespace gw
