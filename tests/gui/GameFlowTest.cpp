// SPDX-License-Identifier: GPL-3.0-or-later
// A person's way through the program with the mouse and keyboard: seating players past a
// refusal, a roll and a purchase on the property card, a computer's turn with its card up,
// the About box and Exit, the end window, a new game, and closing in the middle of a wait.
// The story window at the end of a whole game of computers: it shows with Game Over, its
// chart has a line per player as the story tells it, each line's end sits at its worth, the
// game can be watched again and stopped, and the close box during a replay ends the program.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include "GuiRun.h"
#include "Signature.h"
#include "app/Autoplay.h"
#include "cells/PropertyCell.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/CellInfoWindow.h"
#include "windows/GameStory.h"
#include "windows/JFLCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

class GameFlow : public ::testing::Test {
protected:
    GameFlow() {
        auto random = std::make_unique<ScriptedRandom>(std::vector<double>{}, 7);
        scripted = random.get();
        gui = std::make_unique<GuiRun>(std::move(random));
    }

    app::Program& program() { return *gui->program; }
    view::GameStartView& start() { return program().startView(); }
    QAbstractButton& button(const view::ControlSet& set, std::string_view name) {
        QAbstractButton* b = set.button(name);
        EXPECT_NE(b, nullptr) << name;
        return *b;
    }
    QLineEdit& nickName() { return *start().controls().entry("NickName"); }

    // Replaces the name in the entry by typing, as a person does after clicking into it.
    void typeName(const QString& text) {
        QLineEdit& entry = nickName();
        entry.setFocus();
        entry.selectAll();
        if (text.isEmpty()) {
            QTest::keyClick(&entry, Qt::Key_Backspace);
        } else {
            QTest::keyClicks(&entry, text);
        }
        gui->settle();
    }
    void click(QWidget& w) {
        clickOn(w);
        gui->settle();
    }

    // Ann, a human with token 0, and Computer1 with token 1, seated by the handlers: the
    // widgets of the set-up window have their own test.
    void seatAnnAndComputer() {
        gui->seatAnnAndAComputer();
        ASSERT_TRUE(program().mainView().isVisible());
    }

    player& current() { return gui->run.board().getCurrPlayer(); }

    ScriptedRandom* scripted = nullptr;
    std::unique_ptr<GuiRun> gui;
};

// The refusals themselves are the set-up model's; here the widgets follow each click and
// the entry keeps at most twenty characters.
TEST_F(GameFlow, SeatingShowsEachStepAndARefusalThenStartsTheGame) {
    typeName("abcdefghijklmnopqrstuvwxyz");
    EXPECT_EQ(gui->run.gameStart().nickName(), "abcdefghijklmnopqrst");
    EXPECT_EQ(nickName().text(), "abcdefghijklmnopqrst");
    typeName("");  // emptied, the entry still tells the window
    EXPECT_EQ(gui->run.gameStart().nickName(), "");
    typeName("Ann");
    EXPECT_EQ(gui->run.gameStart().nickName(), "Ann");
    click(start().token(0));
    EXPECT_TRUE(start().token(0).isBordered());
    click(button(start().controls(), "Command1"));
    EXPECT_EQ(start().controls().label("Label1")->text(), "Ann");
    EXPECT_FALSE(start().token(0).isVisibleTo(&start()));

    // A computer with the name still in the entry: the same text is refused.
    click(start().image(1));
    EXPECT_FALSE(nickName().isEnabled());
    click(start().token(1));
    click(button(start().controls(), "Command1"));
    ASSERT_EQ(gui->messages.shown.size(), 1u);
    EXPECT_EQ(gui->messages.shown[0].text, "You cannot enter the same name twice");
    EXPECT_FALSE(button(start().controls(), "Command1").isVisibleTo(&start()));

    click(start().image(4));
    typeName("Ann's robot");
    click(start().image(1));
    click(start().token(1));
    click(button(start().controls(), "Command1"));
    EXPECT_EQ(start().controls().label("Label2")->text(), "Computer1");
    click(button(start().controls(), "Command2"));
    EXPECT_FALSE(start().isVisible());
    EXPECT_TRUE(program().mainView().isVisible());
    EXPECT_EQ(gui->run.board().getNumPlayer(), 2);
}

TEST_F(GameFlow, HumanBuysOnTheCardThenWatchesTheComputerPlay) {
    ASSERT_NO_FATAL_FAILURE(seatAnnAndComputer());
    ASSERT_EQ(current().getName(), "Ann");  // the computer's first turn ran inside Let's Start
    const view::ControlSet& main = program().mainView().controls();
    EXPECT_TRUE(button(main, "rollDice").isEnabled());
    EXPECT_FALSE(button(main, "endTurn").isEnabled());
    savePictures(program().mainView(), "main-start");

    // Both tokens stand on Go: Ann throws onto Saint-Jacques, the computer onto a metro.
    constexpr Integer target = 3;
    scripted->pushFaces({1, 2});
    click(button(main, "rollDice"));
    view::CellInfoView& card = program().propertyCard();
    ASSERT_TRUE(card.isVisible());
    QAbstractButton& buy = button(card.controls(), "buy");
    EXPECT_TRUE(buy.isVisibleTo(&card));
    EXPECT_TRUE(buy.isEnabled());
    EXPECT_EQ(card.controls().label("Label1")->text().toStdString(),
              gui->run.windows().cellInfo.cardName());
    savePictures(card, "property-card-buy");
    savePictures(program().mainView(), "main-card-up");

    click(buy);
    EXPECT_FALSE(card.isVisible());
    EXPECT_EQ(gui->run.board().propertyAt(target)->getProp().getOwners(), &current());
    EXPECT_TRUE(button(main, "endTurn").isEnabled());

    // The computer's turn runs inside End Turn; its card comes up with no open button.
    bool sawComputerCard = false;
    bool computerCardHadOpenButton = false;
    program().setOnRefreshed([&] {
        if (!card.isVisible() || !current().isComputer2()) return;
        sawComputerCard = true;
        for (const view::Place& place : view::propertyCardPlaces()) {
            QAbstractButton* b = card.controls().button(place.name);
            if (b && b->isVisibleTo(&card) && b->isEnabled()) computerCardHadOpenButton = true;
        }
    });
    scripted->pushFaces({1, 4});
    click(button(main, "endTurn"));
    program().setOnRefreshed({});
    EXPECT_TRUE(sawComputerCard);
    EXPECT_FALSE(computerCardHadOpenButton);
    EXPECT_EQ(current().getName(), "Ann");
    EXPECT_EQ(program().mainView().controls().label("Label1")->text(),
              "Ann, its your turn to play.");
    savePictures(program().mainView(), "main-after-computer");
}

TEST_F(GameFlow, AboutOpensFromTheMenuOkHidesItAndExitEndsTheRun) {
    ASSERT_NO_FATAL_FAILURE(seatAnnAndComputer());
    program().mainView().action("About").trigger();
    gui->settle();
    ASSERT_TRUE(program().aboutView().isVisible());
    click(button(program().aboutView().controls(), "Command1"));
    EXPECT_FALSE(program().aboutView().isVisible());
    EXPECT_TRUE(program().mainView().isVisible());
    EXPECT_FALSE(gui->exited);
    program().mainView().action("Exit").trigger();
    EXPECT_TRUE(gui->exited);
}

TEST_F(GameFlow, BankruptcyShowsTheWinnerAndANewGameBringsTheSetUpBack) {
    ASSERT_NO_FATAL_FAILURE(seatAnnAndComputer());
    program().dispatch().click([&] { current().declareBankruptcy(); });
    gui->settle();
    view::GameEndView& end = program().endView();
    ASSERT_TRUE(end.isVisible());
    EXPECT_FALSE(program().mainView().isVisible());
    EXPECT_EQ(end.controls().label("Label1")->text(),
              "Computer1, the richest person in Kestrovia!");
    savePictures(end, "game-over");

    click(button(end.controls(), "Command1"));
    EXPECT_FALSE(end.isVisible());
    EXPECT_FALSE(program().mainView().isVisible());
    ASSERT_TRUE(start().isVisible());
    // The model's reset is checked whole by the core run; here the widgets follow it.
    for (int i = 0; i < kTokenCount; ++i) EXPECT_TRUE(start().token(i).isVisibleTo(&start()));
    for (int i = kFirstSlot; i < kTokenControls; ++i) {
        EXPECT_FALSE(start().token(i).isVisibleTo(&start()));
    }
    EXPECT_FALSE(button(start().controls(), "Command1").isVisibleTo(&start()));
    EXPECT_FALSE(start().controls().label("Label1")->isVisibleTo(&start()));
    EXPECT_EQ(nickName().text(), "Enter your name here");
    EXPECT_TRUE(nickName().isEnabled());
}

// Closing the main window while a computer's card waits with the real 80 ms tick: the wait
// is cut short, no further turn starts, and the run ends.
TEST(ClosingDuringAWait, EndsTheRunCleanly) {
    GuiRun gui(std::make_unique<SeededRandom>(11), kTickMs);
    app::Program& program = *gui.program;
    bool closed = false;
    program.setOnRefreshed([&] {
        const bool cardUp = program.propertyCard().isVisible() || program.jflCard().isVisible() ||
                            program.taxCard().isVisible();
        if (cardUp && !closed) {
            closed = true;
            QTimer::singleShot(0, &program.mainView(), [&] { program.mainView().close(); });
        }
    });
    GameStart& setUp = gui.run.gameStart();
    for (int i = 0; i < 2; ++i) {
        program.dispatch().click([&] { setUp.Token_Click(i); });
        if (!setUp.nextIsComputer()) program.dispatch().click([&] { setUp.Image1_Click(); });
        program.dispatch().click([&] { setUp.Command1_Click(); });
    }
    program.dispatch().click([&] { setUp.Command2_Click(); });
    EXPECT_TRUE(closed);
    EXPECT_TRUE(gui.exited);
    EXPECT_EQ(gui.delay.depth(), 0);
    EXPECT_EQ(gui.run.board().countSolvent(), 2);  // the game stopped, it did not play on
}

// Three computers have played a seeded game to its end at once.
class StoryView : public ::testing::Test {
protected:
    StoryView() {
        EXPECT_FALSE(gui.program->storyView().isVisible());
        gui.delay.pacing().setPace(Pace::Instant);
        app::seatComputers(gui.program->dispatch(), gui.run, 3);
        gui.settle();
        EXPECT_TRUE(gui.run.gameEnd().isVisible());
        end = sim::stateHash(gui.run.board());
    }
    GuiRun gui{std::make_unique<SeededRandom>(9), 4};
    std::uint64_t end = 0;
};

TEST_F(StoryView, ShowsWithGameOverAndDrawsEveryPlayersWorth) {
    view::StoryView& view = gui.program->storyView();
    EXPECT_TRUE(view.isVisible());

    const GameStory& story = gui.run.story();
    const std::vector<art::ChartLine> lines = view.chartLines();
    ASSERT_EQ(lines.size(), 3U);
    int crosses = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].worth.size(), story.players()[i].worth.size());
        EXPECT_EQ(lines[i].token, story.players()[i].token);
        if (lines[i].bankruptAt > 0) ++crosses;
    }
    EXPECT_EQ(crosses, 2);

    // The winner's line ends at his worth on the scale; the bankrupt end on the floor.
    QImage image(640, 360, QImage::Format_ARGB32);
    QPainter painter(&image);
    const art::ChartPlaces places = art::paintStoryChart(painter, QRectF(0, 0, 640, 360), lines);
    painter.end();
    ASSERT_EQ(places.lineEnds.size(), 3U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double worth = lines[i].bankruptAt > 0
                                 ? lines[i].worth[static_cast<std::size_t>(lines[i].bankruptAt)]
                                 : lines[i].worth.back();
        const double expected =
            places.plot.bottom() - places.plot.height() * std::max(0.0, worth) / places.top;
        EXPECT_NEAR(places.lineEnds[i].y(), expected, 0.01);
        EXPECT_TRUE(places.plot.adjusted(-1, -1, 1, 1).contains(places.lineEnds[i]));
        if (lines[i].bankruptAt < 0) {
            EXPECT_NEAR(places.lineEnds[i].x(), places.plot.right(), 0.01);
        }
    }
    EXPECT_GE(places.top, *std::max_element(lines[0].worth.begin(), lines[0].worth.end()));

    savePictures(view, "story");
}

// "Watch the game again" replays on the main window at Fast, with a Stop over the board;
// Stop plays the rest at once and Game Over comes back on the same end.
TEST_F(StoryView, WatchTheGameAgainThenStop) {
    view::StoryView& story = gui.program->storyView();
    ASSERT_TRUE(story.watchAgain().isEnabled());

    bool sawReplay = false;
    Pace paceSeen = Pace::Instant;
    QTimer::singleShot(150, [&] {
        gui.program->refreshAll();
        QPushButton& stop = gui.program->replayStop()->button();
        sawReplay = gui.run.isReplaying() && stop.isVisible() &&
                    gui.program->mainView().isVisible() && !story.isVisible();
        paceSeen = gui.delay.pacing().pace();
        savePictures(gui.program->mainView(), "replay");
        clickOn(stop);
    });
    clickOn(story.watchAgain());
    gui.settle();
    EXPECT_TRUE(sawReplay);
    EXPECT_EQ(paceSeen, Pace::Fast);
    EXPECT_FALSE(gui.run.isReplaying());
    EXPECT_FALSE(gui.program->replayStop()->button().isVisible());
    EXPECT_TRUE(gui.run.gameEnd().isVisible());
    EXPECT_TRUE(story.isVisible());
    EXPECT_EQ(sim::stateHash(gui.run.board()), end);
    EXPECT_EQ(gui.delay.pacing().pace(), Pace::Instant);  // the chosen pace is back
    EXPECT_EQ(gui.delay.depth(), 0);
}

// The close box during a game watched again ends the program, as it always does, once the
// rest of the game has been played at once.
TEST_F(StoryView, TheCloseBoxDuringAReplayEndsTheProgram) {
    QTimer::singleShot(150, [&] { gui.program->mainView().close(); });
    clickOn(gui.program->storyView().watchAgain());
    EXPECT_TRUE(gui.exited);
    EXPECT_FALSE(gui.run.isReplaying());
    EXPECT_EQ(sim::stateHash(gui.run.board()), end);
}

}  // namespace
}  // namespace gw::test
