// SPDX-License-Identifier: GPL-3.0-or-later
// What the rules ask of the main window. The rules call these in a fixed order; the
// window model, a test recorder or a silent stand-in answers them.
#pragma once

#include <array>
#include <string_view>

#include "base/Integer.h"
#include "base/Limits.h"
#include "ports/WindowCodes.h"

namespace gw {

// Who stands on one cell, by player id.
using OnCell = std::array<bool, kMaxPlayers>;

class MainWindowPort {
public:
    virtual ~MainWindowPort() = default;

    // The one message line now reads msg.
    virtual void showInfo(std::string_view msg) = 0;
    // Whose turn it is, and which of Roll Dice and End Turn is open.
    virtual void UpdateTurnPlaying(TurnButtons opt) = 0;
    // Animates a roll, then leaves the two faces in view.
    virtual void Showdice(Integer die1, Integer die2) = 0;
    // Walks the large token from one cell up to another, returning when it has arrived.
    virtual void MoveToken(Integer id, Integer from, Integer to) = 0;
    virtual void UpdatePlayers() = 0;
    virtual void showCell(const OnCell& onCell, Integer cellId) = 0;
    virtual void showOwner(Integer cellId) = 0;
    virtual void showHotel(Integer cellId) = 0;
    virtual void showMort(Integer cellId) = 0;
    virtual void showInJail() = 0;
    virtual void showNegBalance(bool neg) = 0;
    virtual void showBankRupt() = 0;

    // The window as a whole takes clicks or not (the property card disables it).
    virtual void setEnabled(bool enabled) = 0;
    // The game is over: this window hides and the end window shows.
    virtual void showGameEnd() = 0;
};

// A main window that shows nothing: simulations, benchmarks, and watchers that hear only a
// few of the calls.
class NullMainWindow : public MainWindowPort {
public:
    void showInfo(std::string_view) override {}
    void UpdateTurnPlaying(TurnButtons) override {}
    void Showdice(Integer, Integer) override {}
    void MoveToken(Integer, Integer, Integer) override {}
    void UpdatePlayers() override {}
    void showCell(const OnCell&, Integer) override {}
    void showOwner(Integer) override {}
    void showHotel(Integer) override {}
    void showMort(Integer) override {}
    void showInJail() override {}
    void showNegBalance(bool) override {}
    void showBankRupt() override {}
    void setEnabled(bool) override {}
    void showGameEnd() override {}
};

}  // namespace gw
