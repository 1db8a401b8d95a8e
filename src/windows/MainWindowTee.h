// SPDX-License-Identifier: GPL-3.0-or-later
// The main window as the rules reach it: every call goes to the window model, then to a
// watcher when one is set, so a tool can keep its own books of a game that people play
// through the windows without standing in for the window.
#pragma once

#include <vector>

#include "ports/MainWindowPort.h"

namespace gw {

class MainWindowTee final : public MainWindowPort {
public:
    explicit MainWindowTee(MainWindowPort& window) : window_(window) {}
    void setWatcher(MainWindowPort* watcher) { watcher_ = watcher; }
    // A listener of the program's own that hears every call after the watcher.
    void addListener(MainWindowPort& listener) { listeners_.push_back(&listener); }

    void showInfo(std::string_view msg) override {
        both([&](MainWindowPort& w) { w.showInfo(msg); });
    }
    void UpdateTurnPlaying(TurnButtons opt) override {
        both([&](MainWindowPort& w) { w.UpdateTurnPlaying(opt); });
    }
    void Showdice(Integer die1, Integer die2) override {
        both([&](MainWindowPort& w) { w.Showdice(die1, die2); });
    }
    void MoveToken(Integer id, Integer from, Integer to) override {
        both([&](MainWindowPort& w) { w.MoveToken(id, from, to); });
    }
    void UpdatePlayers() override {
        both([](MainWindowPort& w) { w.UpdatePlayers(); });
    }
    void showCell(const OnCell& onCell, Integer cellId) override {
        both([&](MainWindowPort& w) { w.showCell(onCell, cellId); });
    }
    void showOwner(Integer cellId) override {
        both([&](MainWindowPort& w) { w.showOwner(cellId); });
    }
    void showHotel(Integer cellId) override {
        both([&](MainWindowPort& w) { w.showHotel(cellId); });
    }
    void showMort(Integer cellId) override {
        both([&](MainWindowPort& w) { w.showMort(cellId); });
    }
    void showInJail() override {
        both([](MainWindowPort& w) { w.showInJail(); });
    }
    void showNegBalance(bool neg) override {
        both([&](MainWindowPort& w) { w.showNegBalance(neg); });
    }
    void showBankRupt() override {
        both([](MainWindowPort& w) { w.showBankRupt(); });
    }
    void setEnabled(bool enabled) override {
        both([&](MainWindowPort& w) { w.setEnabled(enabled); });
    }
    void showGameEnd() override {
        both([](MainWindowPort& w) { w.showGameEnd(); });
    }

private:
    template <class Call>
    void both(const Call& call) {
        call(window_);
        if (watcher_ != nullptr) call(*watcher_);
        for (MainWindowPort* listener : listeners_) call(*listener);
    }

    MainWindowPort& window_;
    MainWindowPort* watcher_ = nullptr;
    std::vector<MainWindowPort*> listeners_;
};

}  // namespace gw
