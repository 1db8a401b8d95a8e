// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window: the user composes the table of players, a name or the word for a
// computer and a token for each, then starts the game. The next player's kind is held
// by the controls alone: a computer exactly when Image1 is hidden.
#pragma once

#include <array>
#include <functional>
#include <string>
#include <string_view>

#include "base/Integer.h"
#include "base/Limits.h"
#include "game/GameSetup.h"
#include "windows/Control.h"

namespace gw {

class Board;
class MessageBox;
class Sound;

constexpr int kTokenCount = 14;
// Token(0) to Token(13) are selectable; Token(14) to Token(19) are the six slots.
constexpr int kFirstSlot = kTokenCount;
constexpr int kTokenControls = kTokenCount + kMaxPlayers;
constexpr std::size_t kNickNameMaxLength = 20;

class GameStart : public WindowModel {
public:
    // One picture control: Token(i). A slot shows the picture of the token it took.
    struct TokenControl {
        bool visible = true;
        bool bordered = false;
        int picture = -1;  // token number 0 to 13, -1 for none
    };

    GameStart(Board& board, Sound& sound, MessageBox& messages);

    // The window loads: the board is built anew and every control is as at load.
    void Form_Load();
    // Empties the board of players, then loads.
    void startNew();

    void Token_Click(int Index);
    void Image1_Click();
    void Image4_Click();
    void Command1_Click();
    void Command2_Click();
    // The text entry's new text, cut to its 20 characters.
    void NickName_Change(std::string_view text);

    // Let's Start hands the composed players to whoever runs the program.
    void setOnStart(std::function<void(const GameSetup&)> hook) { onStart_ = std::move(hook); }

    // State for the view
    const std::string& nickName() const { return state_.nickName.caption; }
    const Control& NickName() const { return state_.nickName; }
    bool Image1() const { return state_.image1; }
    bool Image2() const { return state_.image2; }
    bool Image3() const { return state_.image3; }
    bool Image4() const { return state_.image4; }
    const TokenControl& Token(int index) const {
        return state_.tokens[static_cast<std::size_t>(index)];
    }
    // Label1 to Label6 by their number.
    const Control& Label(int number) const {
        return state_.labels[static_cast<std::size_t>(number - 1)];
    }
    const Control& Command1() const { return state_.command1; }
    const Control& Command2() const { return state_.command2; }
    bool nextIsComputer() const { return !state_.image1; }
    Integer selectedToken() const { return state_.selectedToken; }
    Integer playerCount() const { return state_.playerCount; }
    const GameSetup& setup() const { return state_.setup; }

    // Every control by its name, as the view binds them.
    void forEachControl(const ControlVisitor& fn) const;

private:
    // Everything that an unload drops and a load brings back.
    struct State {
        State();
        Control nickName{true, true, "Enter your name here"};
        bool image1 = true;
        bool image2 = true;
        bool image3 = true;
        bool image4 = false;
        std::array<TokenControl, kTokenControls> tokens{};
        std::array<Control, kMaxPlayers> labels{};
        Control command1{false, true, "Add Player"};
        Control command2{false, true, "Let's Start"};
        Integer selectedToken = 15;
        Integer playerCount = 0;
        GameSetup setup;
    };
    bool nameTaken(const std::string& name) const;

    Board& board_;
    Sound& sound_;
    MessageBox& messages_;
    State state_;
    std::function<void(const GameSetup&)> onStart_;
};

}  // namespace gw
