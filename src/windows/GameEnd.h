// SPDX-License-Identifier: GPL-3.0-or-later
// The end of a game: the winner, read from the players' panel of the main window, and
// the choice of a new game or the end of the program.
#pragma once

#include <functional>
#include <string>
#include <string_view>

#include "windows/Control.h"

namespace gw {

class MainWindow;

class GameEnd : public WindowModel {
public:
    explicit GameEnd(const MainWindow& main) : main_(main) {}

    // Loads and shows the window: the winner line and the winner's token.
    void Form_Load();
    void Command1_Click() const;  // Start a new game
    void Command2_Click() const;  // Exit game
    void unload();

    void setOnNewGame(std::function<void()> hook) { onNewGame_ = std::move(hook); }
    void setOnExit(std::function<void()> hook) { onExit_ = std::move(hook); }

    const Control& Label1() const { return label1_; }
    // The winner's token picture, -1 while empty.
    int Image2() const { return image2_; }
    // The line under the podium: "The city is yours." speaks to a human winner only.
    const std::string& closingLine() const { return closingLine_; }
    const Control& Command1() const { return command1_; }
    const Control& Command2() const { return command2_; }
    void forEachControl(const ControlVisitor& fn) const;

private:
    const MainWindow& main_;
    Control label1_{true, true, "Label1"};
    int image2_ = -1;
    std::string closingLine_;
    Control command1_{true, true, "Start a new game"};
    Control command2_{true, true, "Exit game"};
    std::function<void()> onNewGame_;
    std::function<void()> onExit_;
};

// Who made the game. Shown beside the board at any moment; Ok hides it.
class About_Help : public WindowModel {
public:
    void show() { setVisible(true); }
    void Command1_Click() { setVisible(false); }
    void unload() { setVisible(false); }

    const Control& Command1() const { return command1_; }
    // The three headings, then the ten names under them.
    void forEachControl(const ControlVisitor& fn) const;
    // The ten names alone, each a member with a portrait of their own.
    void forEachMember(const ControlVisitor& fn) const;

private:
    Control command1_{true, true, "Ok"};
};

}  // namespace gw
