// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window through its clicks (the states of its buttons, the refusals, the names of
// computer players, the slots and the sounds) and whole runs from it: computers playing to
// the end, the end window, a new game as at load, and the end of the program from inside a
// wait.
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

using SetUpWindow = RunFixture;

std::vector<std::string> boxTexts(const RecordedMessageBox& boxes) {
    std::vector<std::string> texts;
    for (const auto& box : boxes.shown) {
        EXPECT_EQ(box.title, "Error");
        EXPECT_EQ(box.icon, MessageIcon::Exclamation);
        texts.push_back(box.text);
    }
    return texts;
}

TEST_F(SetUpWindow, LoadsWithNoButtonAHumanNextAndTheStartSound) {
    EXPECT_TRUE(start().isVisible());
    EXPECT_FALSE(main().isVisible());
    EXPECT_EQ(rec.log, Lines{"sound 3: gamestart.wav"});
    EXPECT_EQ(start().nickName(), "Enter your name here");
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_FALSE(start().Command2().visible);
    EXPECT_TRUE(start().Image1() && start().Image2() && start().Image3());
    EXPECT_FALSE(start().Image4());
    EXPECT_FALSE(start().nextIsComputer());
    for (int i = 0; i < kTokenCount; ++i) EXPECT_TRUE(start().Token(i).visible) << i;
    for (int i = kFirstSlot; i < kTokenControls; ++i) EXPECT_FALSE(start().Token(i).visible) << i;

    click([&] { start().Command1_Click(); });  // hidden: nothing
    EXPECT_EQ(start().playerCount(), 0);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SetUpWindow, ATokenClickBordersItOffersAddAndTheFirstNameMayBeTheInitialText) {
    click([&] { start().Token_Click(3); });
    EXPECT_TRUE(start().Token(3).bordered);
    EXPECT_TRUE(start().Command1().isOpen());
    click([&] { start().Token_Click(5); });
    EXPECT_FALSE(start().Token(3).bordered);
    EXPECT_TRUE(start().Token(5).bordered);
    click([&] { start().Token_Click(5); });  // again: the sound, no change of border
    EXPECT_TRUE(start().Token(5).bordered);
    EXPECT_EQ(rec.log.size(), 4u);
    EXPECT_EQ(rec.log.back(), "sound 2: ChooseToken.wav");
    click([&] { start().Token_Click(15); });  // a slot is inert: no sound
    EXPECT_EQ(rec.log.size(), 4u);

    click([&] { start().Command1_Click(); });
    EXPECT_EQ(start().Label(1).caption, "Enter your name here");
    EXPECT_TRUE(start().Label(1).visible);
    EXPECT_EQ(start().Token(kFirstSlot).picture, 5);
    EXPECT_TRUE(start().Token(kFirstSlot).visible);
    EXPECT_FALSE(start().Token(5).visible);  // taken once, for good
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_EQ(rec.log.back(), "sound 2: Player1.wav");
}

TEST_F(SetUpWindow, BothRefusalsAndTheWayBackToAddPlayer) {
    click([&] {
        start().Token_Click(2);
        start().NickName_Change("");
        start().Command1_Click();
    });
    EXPECT_EQ(boxTexts(boxes), Lines{"You must enter a name for this player"});
    EXPECT_TRUE(start().Command1().visible);  // the empty name keeps the button

    addPlayer("Ann", 2);
    ASSERT_EQ(start().playerCount(), 1);
    // The text stays, so the next player is refused until it changes, computer or not.
    click([&] {
        start().Image1_Click();
        start().Token_Click(4);
        start().Command1_Click();
    });
    EXPECT_EQ(boxTexts(boxes).back(), "You cannot enter the same name twice");
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_EQ(start().playerCount(), 1);
    EXPECT_TRUE(start().Token(4).visible);
    EXPECT_FALSE(start().NickName().enabled);
    click([&] { start().NickName_Change("Zed"); });  // a closed entry takes no typing
    EXPECT_EQ(start().nickName(), "Ann");

    addPlayer("ann", 6);  // another case is another name
    EXPECT_EQ(start().Label(2).caption, "ann");
    EXPECT_TRUE(start().Command2().isOpen());
    click([&] { start().NickName_Change("Cee"); });  // the computer's text is compared too
    addPlayer("", 4, true);
    EXPECT_EQ(start().Label(3).caption, "Computer4");
    EXPECT_EQ(start().setup().seats.size(), 3u);
    EXPECT_TRUE(start().setup().seats[2].computer);
    EXPECT_EQ(start().setup().seats[2].token, 4);
}

TEST_F(SetUpWindow, NothingIsOfferedAfterTheSixthPlayerAndTheBoardRefusesASeventh) {
    for (int i = 0; i < kMaxPlayers; ++i) addPlayer("", i, true);
    EXPECT_EQ(start().playerCount(), kMaxPlayers);
    for (int n = 1; n <= kMaxPlayers; ++n) {
        EXPECT_EQ(start().Label(n).caption, "Computer" + std::to_string(n - 1));
    }
    click([&] { start().Token_Click(9); });
    EXPECT_FALSE(start().Command1().visible);
    click([&] { start().Command1_Click(); });
    EXPECT_EQ(start().playerCount(), kMaxPlayers);

    Board& b = board();
    GameSetup seven;
    for (int i = 0; i < 7; ++i) seven.add("C" + std::to_string(i), true, static_cast<Integer>(i));
    b.deleteAllPlayer();
    b.init();
    b.addPlayers(seven);
    EXPECT_EQ(b.getNumPlayer(), kMaxPlayers);
    EXPECT_EQ(b.addPlayer("Seventh", false, 13), nullptr);
}

TEST_F(SetUpWindow, LetsStartHidesTheWindowAndOpensTheFirstTurn) {
    seatAnnAndBob();
    EXPECT_FALSE(start().isVisible());
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(main().Label2(), "Ann");
    click([&] { start().Command2_Click(); });  // a hidden window starts nothing
    EXPECT_EQ(board().getNumPlayer(), 2);
}

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
