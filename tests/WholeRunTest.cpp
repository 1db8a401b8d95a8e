// SPDX-License-Identifier: GPL-3.0-or-later
// Whole runs of the program by clicks: computers playing to the end, the end window, a new
// game, and the end of the program from inside a wait.
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

using WholeRun = RunFixture;

// The windows that a new game loads anew, control by control, and which windows are up.
// The cards are not reloaded: hidden, they keep their last text, but no player.
struct Snapshot {
    std::map<std::string, std::string> start, main, end, about;
    std::vector<bool> shown;
};

Snapshot snapshot(GameRun& run) {
    Windows& w = run.windows();
    return {controlsOf(run.gameStart()),
            controlsOf(run.mainWindow()),
            controlsOf(run.gameEnd()),
            controlsOf(run.about()),
            {run.gameStart().isVisible(), run.mainWindow().isVisible(), run.gameEnd().isVisible(),
             run.about().isVisible(), w.cellInfo.isVisible(), w.trading.isVisible(),
             w.jflCard.isVisible(), w.taxCard.isVisible()}};
}

TEST_F(WholeRun, FourComputersPlayToTheEndThroughTheSetUpWindowAndANewGameIsAsAtLoad) {
    const Snapshot atLoad = snapshot(*run);
    for (int i = 0; i < 4; ++i) addPlayer("", 10 + i, true);
    letsStart();  // the computers play until one is left

    ASSERT_TRUE(run->gameEnd().isVisible());
    EXPECT_FALSE(main().isVisible());
    EXPECT_EQ(board().countSolvent(), 1);
    const player* winner = nullptr;
    for (int id = 0; id < 4; ++id) {
        if (!seat(id).isBankrupt2()) winner = &seat(id);
    }
    ASSERT_NE(winner, nullptr);
    EXPECT_EQ(run->gameEnd().Label1().caption,
              winner->getName() + ", the richest person in Kestrovia!");
    EXPECT_EQ(run->gameEnd().Image2(), std::stoi(winner->getTokenName()));
    EXPECT_EQ(run->gameEnd().closingLine(), "The machines hold the city.");

    click([&] { main().Mute_Click(); });
    rec.log.clear();
    click([&] { run->gameEnd().Command1_Click(); });
    const Snapshot now = snapshot(*run);
    EXPECT_EQ(now.start, atLoad.start);
    EXPECT_EQ(now.main, atLoad.main);
    EXPECT_EQ(now.end, atLoad.end);
    EXPECT_EQ(now.about, atLoad.about);
    EXPECT_EQ(now.shown, atLoad.shown);
    EXPECT_EQ(board().getNumPlayer(), 0);
    EXPECT_EQ(rec.log, (Lines{"volume 0 -600", "volume 1 -600", "sound 3: gamestart.wav"}));
    EXPECT_EQ(windows().cellInfo.cardPlayer(), nullptr);
    EXPECT_EQ(windows().trading.tradeBuyer(), nullptr);
    EXPECT_EQ(windows().taxCard.taxPlayer(), nullptr);

    // The same board carries a second game.
    addPlayer("Ann", 0);
    addPlayer("Bob", 1);
    letsStart();
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(main().Label2(), "Ann");
}

TEST_F(WholeRun, ExitInsideAComputersCardWaitStopsTheRunAndEndsTheProgram) {
    addPlayer("", 0, true);
    addPlayer("", 1, true);
    int turns = 0;
    board().setOnTurnPlayed([&] { return ++turns < 10000 && !run->isWindingDown(); });
    rec.duringWaitTicks = kComputerThinkTicks;
    rec.duringWait = [&] { click([&] { main().Exit_Click(); }); };
    letsStart();
    EXPECT_EQ(exits, 1);
    EXPECT_TRUE(run->hasExited());
    EXPECT_LE(turns, 1);
    const int waits = rec.waits;
    click([&] { main().rollDice_Click(); });  // nothing runs after the end
    EXPECT_EQ(rec.waits, waits);
}

}  // namespace
}  // namespace gw::test
