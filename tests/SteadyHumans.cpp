// SPDX-License-Identifier: GPL-3.0-or-later
#include "SteadyHumans.h"

#include <functional>

#include "windows/CellInfoWindow.h"
#include "windows/GameRun.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {

bool clickAsSteadyHuman(GameRun& run) {
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

void seatPlayers(GameRun& run, const std::vector<std::pair<std::string, bool>>& seats) {
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

bool playToTheEnd(GameRun& run, long maxClicks) {
    for (long c = 0; c < maxClicks; ++c) {
        if (run.gameEnd().isVisible()) return true;
        if (!clickAsSteadyHuman(run)) return false;
    }
    return run.gameEnd().isVisible();
}

}  // namespace gw::test
