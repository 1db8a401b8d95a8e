// A main window, sound player and delay that write one line per call, so that a test
// can compare the exact order of what the rules showed, played and waited for. It can
// pass each call on to a real window model, to check button states as well.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "windows/Delay.h"
#include "windows/MainWindow.h"
#include "windows/MainWindowPort.h"
#include "windows/Sound.h"

namespace gw::test {

class Recorder final : public MainWindowPort, public Sound, public Delay {
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
        add("showInfo: " + std::string(msg));
        if (model) model->showInfo(msg);
    }
    void UpdateTurnPlaying(Integer opt) override {
        add("UpdateTurnPlaying(" + std::to_string(opt) + ")");
        if (model) model->UpdateTurnPlaying(opt);
    }
    void Showdice(Integer a, Integer b) override {
        add("Showdice(" + std::to_string(a) + "," + std::to_string(b) + ")");
        if (model) model->Showdice(a, b);
    }
    void MoveToken(Integer id, Integer from, Integer to) override {
        add("MoveToken(" + std::to_string(id) + "," + std::to_string(from) + "," +
            std::to_string(to) + ")");
        if (model) model->MoveToken(id, from, to);
    }
    void UpdatePlayers() override {
        add("UpdatePlayers");
        if (model) model->UpdatePlayers();
    }
    void showCell(const OnCell& onCell, Integer cellId) override {
        add("showCell(" + std::to_string(cellId) + ")");
        if (model) model->showCell(onCell, cellId);
    }
    void showOwner(Integer c) override {
        add("showOwner(" + std::to_string(c) + ")");
        if (model) model->showOwner(c);
    }
    void showHotel(Integer c) override {
        add("showHotel(" + std::to_string(c) + ")");
        if (model) model->showHotel(c);
    }
    void showMort(Integer c) override {
        add("showMort(" + std::to_string(c) + ")");
        if (model) model->showMort(c);
    }
    void showInJail() override {
        add("showInJail");
        if (model) model->showInJail();
    }
    void showNegBalance(bool neg) override {
        add(std::string("showNegBalance(") + (neg ? "true" : "false") + ")");
        if (model) model->showNegBalance(neg);
    }
    void showBankRupt() override {
        add("showBankRupt");
        if (model) model->showBankRupt();
    }
    void setEnabled(bool enabled) override {
        add(std::string("setEnabled(") + (enabled ? "true" : "false") + ")");
        if (model) model->setEnabled(enabled);
    }
    void showGameEnd() override {
        add("showGameEnd");
        if (model) model->showGameEnd();
    }

    void play(MediaPlayer player, std::string_view file) override {
        add((player == MediaPlayer::Main2 ? "sound2: " : "sound: ") + std::string(file));
    }
    void setVolume(MediaPlayer player, int volume) override {
        add("volume " + std::to_string(static_cast<int>(player)) + " " + std::to_string(volume));
    }
    void wait(Integer ticks) override { add("wait " + std::to_string(ticks)); }

private:
    void add(std::string line) { log.push_back(std::move(line)); }
};

}  // namespace gw::test
