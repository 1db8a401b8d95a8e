// SPDX-License-Identifier: GPL-3.0-or-later
// A main window, sound player and delay that write one line per call, so that a test
// can compare the exact order of what the rules showed, played and waited for. It can
// pass each call on to a real window model, to check button states as well.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "ports/Delay.h"
#include "ports/MainWindowPort.h"
#include "ports/Sound.h"
#include "windows/MainWindow.h"

namespace gw::test {

class Recorder final : public MainWindowPort, public Sound, public Delay {
    using P = MainWindowPort;

public:
    std::vector<std::string> log;
    // Calls are passed on to this model when set.
    MainWindow* model = nullptr;

    void clear() { log.clear(); }
    bool has(const std::string& line) const {
        return std::find(log.begin(), log.end(), line) != log.end();
    }
    long count(const std::string& line) const { return std::count(log.begin(), log.end(), line); }
    // The lines that start with one of the prefixes, in order.
    std::vector<std::string> only(std::initializer_list<std::string> prefixes) const {
        std::vector<std::string> kept;
        for (const auto& line : log) {
            for (const auto& prefix : prefixes) {
                if (line.rfind(prefix, 0) == 0) {
                    kept.push_back(line);
                    break;
                }
            }
        }
        return kept;
    }

    void showInfo(std::string_view msg) override {
        log.push_back("showInfo: " + std::string(msg));
        if (model) model->showInfo(msg);
    }
    void UpdateTurnPlaying(TurnButtons opt) override {
        pass("UpdateTurnPlaying", &P::UpdateTurnPlaying, opt);
    }
    void Showdice(Integer a, Integer b) override { pass("Showdice", &P::Showdice, a, b); }
    void MoveToken(Integer id, Integer from, Integer to) override {
        pass("MoveToken", &P::MoveToken, id, from, to);
    }
    void UpdatePlayers() override { pass("UpdatePlayers", &P::UpdatePlayers); }
    void showCell(const OnCell& onCell, Integer c) override {
        log.push_back("showCell(" + std::to_string(c) + ")");
        if (model) model->showCell(onCell, c);
    }
    void showOwner(Integer c) override { pass("showOwner", &P::showOwner, c); }
    void showHotel(Integer c) override { pass("showHotel", &P::showHotel, c); }
    void showMort(Integer c) override { pass("showMort", &P::showMort, c); }
    void showInJail() override { pass("showInJail", &P::showInJail); }
    void showNegBalance(bool neg) override { pass("showNegBalance", &P::showNegBalance, neg); }
    void showBankRupt() override { pass("showBankRupt", &P::showBankRupt); }
    void setEnabled(bool enabled) override { pass("setEnabled", &P::setEnabled, enabled); }
    void showGameEnd() override { pass("showGameEnd", &P::showGameEnd); }

    void play(MediaPlayer player, SoundEffect effect) override {
        log.push_back((player == MediaPlayer::Main2 ? "sound2: " : "sound: ") +
                      std::string(soundFile(effect)));
    }
    void setVolume(MediaPlayer player, int volume) override {
        log.push_back("volume " + std::to_string(static_cast<int>(player)) + " " +
                      std::to_string(volume));
    }
    void wait(Integer ticks) override { log.push_back("wait " + std::to_string(ticks)); }

private:
    static std::string text(Integer value) { return std::to_string(value); }
    static std::string text(bool value) { return value ? "true" : "false"; }
    static std::string text(TurnButtons value) { return std::to_string(static_cast<int>(value)); }
    // Logs the call as name(arg,arg) and passes it on.
    template <class... Params, class... Args>
    void pass(std::string line, void (P::*call)(Params...), Args... args) {
        if constexpr (sizeof...(Args) > 0) {
            char separator = '(';
            ((line += separator + text(args), separator = ','), ...);
            line += ')';
        }
        log.push_back(std::move(line));
        if (model) (model->*call)(args...);
    }
};

}  // namespace gw::test
