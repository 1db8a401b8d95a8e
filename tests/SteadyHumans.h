// SPDX-License-Identifier: GPL-3.0-or-later
// Humans played by clicks, always the same way: buy what the card offers, pay what it
// asks, let go what they cannot buy, close what is left, throw, end the turn, go bankrupt when
// nothing else is open. With a seeded source of chance a game of humans and computers then repeats
// exactly.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "windows/CellInfoWindow.h"
#include "windows/GameRun.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {

// One click for the human whose turn it is; false when no click is open.
inline bool clickAsSteadyHuman(GameRun& run) {
    Windows& w = run.windows();
    MainWindow& m = run.mainWindow();
    const auto click = [&](const std::function<void()>& handler) {
        run.click(handler);
        return true;
    };
    if (w.cellInfo.isVisible()) {
        if (w.cellInfo.buy().isOpen()) return click([&] { w.cellInfo.buy_Click(); });
        if (w.cellInfo.payRent().isOpen()) return click([&] { w.cellInfo.payRent_Click(); });
        if (w.cellInfo.forget().isOpen()) return click([&] { w.cellInfo.forget_Click(); });
        return click([&] { w.cellInfo.close(); });
    }
    if (w.taxCard.isVisible()) {
        if (w.taxCard.payRent().isOpen()) return click([&] { w.taxCard.payRent_Click(); });
        return click([&] { w.taxCard.close(); });
    }
    if (w.jflCard.isVisible()) return click([&] { w.jflCard.Ok_Click(); });
    if (w.trading.isVisible()) return click([&] { w.trading.close(); });
    if (m.rollDice().isOpen()) return click([&] { m.rollDice_Click(); });
    if (m.endTurn().isOpen()) return click([&] { m.endTurn_Click(); });
    if (m.declareBank().isOpen()) return click([&] { m.declareBank_Click(); });
    return false;
}

// Seats the players through the set-up window, in order: a name and whether a computer.
inline void seatPlayers(GameRun& run, const std::vector<std::pair<std::string, bool>>& seats) {
    GameStart& start = run.gameStart();
    int token = 0;
    for (const auto& [name, computer] : seats) {
        run.click([&] {
            // Typed while the entry is open, that is for a human: the name of a computer
            // is compared with those seated too.
            start.Image4_Click();
            start.NickName_Change(name);
            if (computer) start.Image1_Click();
            start.Token_Click(token);
            start.Command1_Click();
        });
        ++token;
    }
    run.click([&] { start.Command2_Click(); });
}

// Clicks for the humans until the game is over; false if it stalls or runs too long.
inline bool playToTheEnd(GameRun& run, long maxClicks = 200000) {
    for (long c = 0; c < maxClicks; ++c) {
        if (run.gameEnd().isVisible()) return true;
        if (!clickAsSteadyHuman(run)) return false;
    }
    return run.gameEnd().isVisible();
}

}  // namespace gw::test
