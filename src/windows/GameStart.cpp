// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/GameStart.h"

#include <algorithm>

#include "game/Board.h"
#include "ports/Sound.h"
#include "windows/MessageBox.h"

namespace gw {

GameStart::State::State() {
    for (int i = 0; i < kTokenCount; ++i) tokens[static_cast<std::size_t>(i)].picture = i;
    for (int i = kFirstSlot; i < kTokenControls; ++i) {
        tokens[static_cast<std::size_t>(i)].visible = false;
    }
    for (Control& label : labels) label = Control{false, true, ""};
}

GameStart::GameStart(Board& board, Sound& sound, MessageBox& messages)
    : board_(board), sound_(sound), messages_(messages) {}

void GameStart::Form_Load() {
    state_ = State{};
    board_.init();
    setVisible(true);
    sound_.play(MediaPlayer::Start2, SoundEffect::GameStart);
}

void GameStart::startNew() {
    board_.deleteAllPlayer();
    Form_Load();
}

void GameStart::Token_Click(int Index) {
    if (Index < 0 || Index >= kFirstSlot) return;  // the slots are inert
    TokenControl& token = state_.tokens[static_cast<std::size_t>(Index)];
    if (!token.visible) return;  // a taken token is gone from the window
    if (Index != state_.selectedToken) {
        if (state_.selectedToken < kFirstSlot) {
            state_.tokens[static_cast<std::size_t>(state_.selectedToken)].bordered = false;
        }
        token.bordered = true;
        state_.selectedToken = static_cast<Integer>(Index);
    }
    sound_.play(MediaPlayer::Start1, SoundEffect::ChooseToken);
    state_.command1.show(state_.playerCount != kMaxPlayers);
    changed();
}

void GameStart::Image1_Click() {
    if (!state_.image1) return;
    state_.image1 = false;
    state_.image4 = true;
    state_.nickName.enable(false);
    sound_.play(MediaPlayer::Start1, SoundEffect::PlayerType);
    changed();
}

void GameStart::Image4_Click() {
    if (!state_.image4) return;
    state_.image4 = false;
    state_.image1 = true;
    state_.nickName.enable();
    sound_.play(MediaPlayer::Start1, SoundEffect::PlayerType);
    changed();
}

void GameStart::NickName_Change(std::string_view text) {
    if (!state_.nickName.isOpen()) return;
    state_.nickName.caption = text.substr(0, kNickNameMaxLength);
    changed();
}

bool GameStart::nameTaken(const std::string& name) const {
    const auto added = state_.labels.begin() + state_.playerCount;
    return std::any_of(state_.labels.begin(), added,
                       [&](const Control& label) { return label.caption == name; });
}

void GameStart::Command1_Click() {
    // A selected token is one still shown: the slot after a press needs a fresh click.
    if (!state_.command1.isOpen() || state_.playerCount >= kMaxPlayers ||
        state_.selectedToken >= kFirstSlot) {
        return;
    }
    if (state_.nickName.caption.empty()) {
        messages_.show("Error", "You must enter a name for this player", MessageIcon::Exclamation);
        return;
    }
    state_.command1.hide();
    changed();
    if (nameTaken(state_.nickName.caption)) {
        messages_.show("Error", "You cannot enter the same name twice", MessageIcon::Exclamation);
        return;
    }
    const int slot = state_.playerCount;
    if (slot == 1) state_.command2.show();
    sound_.play(MediaPlayer::Start1, playerCue(slot + 1));

    const bool computer = nextIsComputer();
    const Integer token = state_.selectedToken;
    Control& label = state_.labels[static_cast<std::size_t>(slot)];
    label.caption = computer ? "Computer" + std::to_string(token) : state_.nickName.caption;
    label.show();
    TokenControl& slotPicture = state_.tokens[static_cast<std::size_t>(kFirstSlot + slot)];
    slotPicture.visible = true;
    slotPicture.picture = token;
    state_.tokens[static_cast<std::size_t>(token)].visible = false;
    state_.setup.add(label.caption, computer, token);
    ++state_.playerCount;
    changed();
}

void GameStart::Command2_Click() {
    if (!state_.command2.isOpen() || !isVisible() || state_.playerCount < 2) return;
    setVisible(false);
    if (onStart_) onStart_(state_.setup);
}

void GameStart::forEachControl(const ControlVisitor& fn) const {
    fn("NickName", state_.nickName);
    for (int n = 1; n <= kMaxPlayers; ++n) fn("Label" + std::to_string(n), Label(n));
    fn("Command1", state_.command1);
    fn("Command2", state_.command2);
}

}  // namespace gw
