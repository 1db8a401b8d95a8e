// SPDX-License-Identifier: GPL-3.0-or-later
// A whole run of the program driven as a person would, through click handlers only:
// the set-up window, the main window, the cards, the end window. Chance is scripted, waits
// are instant unless a test asks a click to land inside one.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "GameFixture.h"
#include "windows/GameRun.h"
#include "windows/Windows.h"

namespace gw::test {

// Sounds and waits, one line each; a wait can run a click, as a real wait serves one.
class RunRecorder final : public Sound, public Delay {
public:
    std::vector<std::string> log;
    // Runs at the next wait whose ticks match (0: any), then is dropped.
    std::function<void()> duringWait;
    Integer duringWaitTicks = 0;
    int waits = 0;

    void play(MediaPlayer player, SoundEffect effect) override {
        log.push_back("sound " + std::to_string(static_cast<int>(player)) + ": " +
                      std::string(soundFile(effect)));
    }
    void setVolume(MediaPlayer player, int volume) override {
        log.push_back("volume " + std::to_string(static_cast<int>(player)) + " " +
                      std::to_string(volume));
    }
    void wait(Integer ticks) override {
        ++waits;
        if (duringWait && (duringWaitTicks == 0 || duringWaitTicks == ticks)) {
            std::exchange(duringWait, nullptr)();
        }
    }
};

// Every control of a window by name, as "name: caption [hidden] [closed]".
template <class Model>
std::map<std::string, std::string> controlsOf(const Model& model) {
    std::map<std::string, std::string> all;
    model.forEachControl([&](std::string_view name, const Control& c) {
        all[std::string(name)] =
            c.caption + (c.visible ? "" : " [hidden]") + (c.enabled ? "" : " [closed]");
    });
    return all;
}

class RunFixture : public ::testing::Test {
protected:
    explicit RunFixture(std::vector<int> deckOrder = deckInOrder()) {
        auto scripted = std::make_unique<ScriptedRandom>(deckDraws(deckOrder));
        random = scripted.get();
        run = std::make_unique<GameRun>(rec, rec, boxes, std::move(scripted));
        run->setOnExit([this] { ++exits; });
        run->start();
    }

    GameStart& start() { return run->gameStart(); }
    MainWindow& main() { return run->mainWindow(); }
    Windows& windows() { return run->windows(); }
    Board& board() { return run->board(); }
    player& seat(int id) { return *board().getPlayer(static_cast<Integer>(id)); }

    void click(const std::function<void()>& handler) { run->click(handler); }
    // Adds a player through the set-up window: kind, token, name, Add Player.
    void addPlayer(const std::string& name, int token, bool computer = false) {
        click([&] {
            // Typed first: the entry closes once the next player is a computer, and its
            // text is still compared against the names seated.
            if (!name.empty()) start().NickName_Change(name);
            if (computer != start().nextIsComputer()) {
                computer ? start().Image1_Click() : start().Image4_Click();
            }
            start().Token_Click(token);
            if (!computer) start().NickName_Change(name);
            start().Command1_Click();
        });
    }
    // Let's Start, with the order of play kept as added.
    void letsStart() {
        const int n = start().playerCount();
        for (int s = 0; s < n; ++s) random->push(ScriptedRandom::slot(s, n));
        click([&] { start().Command2_Click(); });
    }
    void nextThrow(int a, int b) { random->pushFaces({a, b}); }
    void roll() {
        click([&] { main().rollDice_Click(); });
    }
    void endTurn() {
        click([&] { main().endTurn_Click(); });
    }
    void seatAnnAndBob() {
        addPlayer("Ann", 0);
        addPlayer("Bob", 1);
        letsStart();
    }
    // The property card by the names of its buttons; see byName.
    CellInfoWindow& card() { return windows().cellInfo; }
    bool cardUp() const { return byName::isUp(run->windows().cellInfo); }
    Integer cardOpt() const { return byName::opt(run->windows().cellInfo); }
    bool cardOffers(std::string_view b) const { return byName::offers(run->windows().cellInfo, b); }
    void onCard(std::string_view button) {
        click([&] { byName::press(card(), button); });
    }
    // A throw whose landing on an unowned cell is let go, then End Turn.
    void throwAndPass(int a, int b);
    // A throw onto an unowned cell, bought on its card.
    void buyWhereTheThrowLands(int a, int b);
    // Types a sum into the trading card as a person does: focus, then keys over the selection.
    void typeSum(const std::string& digits);
    // The player to play asks for another's cell on the trading card: the cell's card, Trade,
    // the sum typed, I Want It.
    void askFor(Integer cellId, const std::string& sum);
    // The owner's Done Deal on the trading card.
    void doneDeal();
    Lines buttons() const {
        const MainWindow& m = run->mainWindow();
        return shown(
            "rollDice endTurn declareBank pay50Rent useJFLCard",
            {&m.rollDice(), &m.endTurn(), &m.declareBank(), &m.pay50Rent(), &m.useJFLCard()});
    }

    RunRecorder rec;
    RecordedMessageBox boxes;
    ScriptedRandom* random = nullptr;
    std::unique_ptr<GameRun> run;
    int exits = 0;
};

}  // namespace gw::test
