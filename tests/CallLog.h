// SPDX-License-Identifier: GPL-3.0-or-later
// Every call the rules make to the main window, one line each, to compare two runs.
#pragma once

#include <string>
#include <vector>

#include "ports/MainWindowPort.h"

namespace gw::test {

class CallLog final : public MainWindowPort {
public:
    std::vector<std::string> lines;
    void showInfo(std::string_view msg) override { add("showInfo " + std::string(msg)); }
    void UpdateTurnPlaying(TurnButtons opt) override {
        add("UpdateTurnPlaying " + std::to_string(static_cast<int>(opt)));
    }
    void Showdice(Integer a, Integer b) override {
        add("Showdice " + std::to_string(a) + " " + std::to_string(b));
    }
    void MoveToken(Integer id, Integer from, Integer to) override {
        add("MoveToken " + std::to_string(id) + " " + std::to_string(from) + " " +
            std::to_string(to));
    }
    void UpdatePlayers() override { add("UpdatePlayers"); }
    void showCell(const OnCell&, Integer cellId) override {
        add("showCell " + std::to_string(cellId));
    }
    void showOwner(Integer cellId) override { add("showOwner " + std::to_string(cellId)); }
    void showHotel(Integer cellId) override { add("showHotel " + std::to_string(cellId)); }
    void showMort(Integer cellId) override { add("showMort " + std::to_string(cellId)); }
    void showInJail() override { add("showInJail"); }
    void showNegBalance(bool neg) override { add(neg ? "showNegBalance 1" : "showNegBalance 0"); }
    void showBankRupt() override { add("showBankRupt"); }
    void setEnabled(bool enabled) override { add(enabled ? "setEnabled 1" : "setEnabled 0"); }
    void showGameEnd() override { add("showGameEnd"); }

private:
    void add(std::string line) { lines.push_back(std::move(line)); }
};

}  // namespace gw::test
