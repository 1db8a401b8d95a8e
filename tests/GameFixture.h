// SPDX-License-Identifier: GPL-3.0-or-later
// A game on the recorder with a scripted source of chance: the deck in a chosen order,
// the players in the order added (ids 0, 1, ...), and dice that show the faces pushed.
#pragma once

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>
#include <numeric>
#include <sstream>
#include <string_view>
#include <utility>
#include <vector>

#include "Recorder.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "windows/Windows.h"

namespace gw::test {

using Lines = std::vector<std::string>;

// The draws that make the deck's shuffle put card cardOrder[s] in slot s.
inline std::vector<double> deckDraws(const std::vector<int>& cardOrder) {
    std::vector<double> draws;
    for (std::size_t v = 1; v < cardOrder.size(); ++v) {
        draws.push_back(ScriptedRandom::slot(cardOrder[v], kDeckSize));
    }
    return draws;
}

// The deck in the order of its types: 0, 1, ..., 19.
inline std::vector<int> deckInOrder() {
    std::vector<int> order(kDeckSize);
    std::iota(order.begin(), order.end(), 0);
    return order;
}

// The controls on show, named in order by the words of names; a closed one carries a
// trailing '*'.
inline Lines shown(const std::string& names, std::initializer_list<const Control*> controls) {
    std::istringstream words(names);
    Lines on;
    for (const Control* c : controls) {
        std::string name;
        words >> name;
        if (c->visible) on.push_back(name + (c->enabled ? "" : "*"));
    }
    return on;
}

// The property card read and pressed by the names of its buttons ("buy", "forget", "payRent",
// "trade", "buyHotel", "sellHotel", "Mortgage(0)", "Mortgage(1)", "Unmortgage", "Ok(0)",
// "Ok(1)", and "close" for its close box), kept out of line so that a test that needs no more
// does not rebuild with every change to the card.
namespace byName {
bool isUp(const CellInfoWindow& card);
Integer opt(const CellInfoWindow& card);
Integer cell(const CellInfoWindow& card);
// The buttons on show, in the card's order; a closed one carries a trailing '*'.
Lines buttons(const CellInfoWindow& card);
bool offers(const CellInfoWindow& card, std::string_view button);
void press(CellInfoWindow& card, std::string_view button);
}  // namespace byName

class GameFixture : public ::testing::Test {
protected:
    explicit GameFixture(std::vector<int> deckOrder = deckInOrder()) {
        auto scripted = std::make_unique<ScriptedRandom>(deckDraws(deckOrder));
        random = scripted.get();
        board = std::make_unique<Board>(windows, std::move(scripted));
        board->init();
    }

    player& addHuman(const std::string& name, Integer token = 0) {
        return *board->addPlayer(name, false, token);
    }
    player& addComputer(const std::string& name, Integer token = 0) {
        return *board->addPlayer(name, true, token);
    }

    // The two dice of the next throw.
    void nextThrow(int a, int b) { random->pushFaces({a, b}); }

    // Puts a player's token on a cell without Go money; the log is cleared.
    void placeAt(player& p, Integer cellId) {
        const Integer steps = static_cast<Integer>((cellId - p.getPosition() + 40) % 40);
        if (steps != 0) p.move(steps, true);
        rec.clear();
    }
    // A landing, as the turn runs it, logged from its start.
    void land(player& p, Integer cellId) {
        placeAt(p, cellId);
        board->getCell(cellId)->doAction(p);
    }
    // A click on a property on the board.
    void click(player& p, Integer cellId) {
        Integer opt = kOptInfo;
        board->getCell(cellId)->asProperty()->showInfo(p, opt);
    }
    // Brings a balance to the value through the player's own money operations.
    void setBalance(player& p, Integer value) {
        // In steps that each fit the 16-bit range.
        while (value > p.getBalance()) {
            p.credit(static_cast<Integer>(std::min(value - p.getBalance(), 30000)));
        }
        while (value < p.getBalance()) {
            p.debit(static_cast<Integer>(std::min(p.getBalance() - value, 30000)));
        }
        rec.clear();
    }
    void give(player& p, std::initializer_list<Integer> cells) {
        for (Integer c : cells) p.newlyOwn(*board->getCell(c));
        rec.clear();
    }
    Street& street(Integer cellId) { return *board->getCell(cellId)->asStreet(); }
    Property& prop(Integer cellId) { return board->getCell(cellId)->asProperty()->getProp(); }
    // Builds hotels on an owned street as its owner would, without paying.
    void putHotels(Integer cellId, int count) {
        for (int i = 0; i < count; ++i) street(cellId).addHotel();
        rec.clear();
    }
    CellInfoWindow& card() { return windows.cellInfo; }
    TradingCardWindow& trading() { return windows.trading; }
    bool cardUp() const { return byName::isUp(windows.cellInfo); }
    Integer cardOpt() const { return byName::opt(windows.cellInfo); }
    Integer cardCell() const { return byName::cell(windows.cellInfo); }
    Lines cardButtons() const { return byName::buttons(windows.cellInfo); }
    void onCard(std::string_view button) { byName::press(windows.cellInfo, button); }

    Recorder rec;
    Windows windows{rec, rec, rec};
    ScriptedRandom* random = nullptr;
    std::unique_ptr<Board> board;
};

// Two humans, Ann (id 0, to play) and Bob (id 1), each with 1500.
class TwoHumans : public GameFixture {
protected:
    player* ann = &addHuman("Ann", 1);
    player* bob = &addHuman("Bob", 2);
};

}  // namespace gw::test
