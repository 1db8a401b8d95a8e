// SPDX-License-Identifier: GPL-3.0-or-later
// Where the windows open and the main window's menus. The cards and About belong to the main
// window and leave its turn buttons and message line in view, beside the board where the
// screen has room, over it where it has not; the set-up and end windows open in the middle of
// the screen. Game > Pace: a pick inside a real wait shortens it, and the menu answers while a
// card holds the board; View > History and its key; File > Voice, whose desktop voice with no
// audio device is silent and harmless.
#include <gtest/gtest.h>

#include <QAction>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenuBar>
#include <QScreen>
#include <QTimer>
#include <QWindow>
#include <set>

#include "GuiRun.h"
#include "app/Autoplay.h"
#include "app/QtVoice.h"
#include "game/Board.h"
#include "view/CardPlacement.h"

namespace gw::test {
namespace {

// The main window at design size, its board on the left, the buttons over the board and
// the message panel on the right, as on a screen.
view::CardRoom roomOnScreen(QRect screen) {
    view::CardRoom room;
    room.screen = screen;
    room.mainFrame = QRect(screen.left() + (screen.width() - 778) / 2, screen.top() + 10, 778, 620);
    room.board = QRect(room.mainFrame.left(), room.mainFrame.top() + 24, 593, 596);
    const QPoint b = room.board.topLeft();
    room.keepClear = {
        QRect(b + QPoint(96, 104), QSize(73, 33)), QRect(b + QPoint(96, 144), QSize(73, 33)),
        QRect(b + QPoint(96, 224), QSize(73, 49)), QRect(b + QPoint(592, 192), QSize(186, 184))};
    return room;
}

bool coversNothing(const view::CardRoom& room, const QRect& card) {
    for (const QRect& r : room.keepClear) {
        if (r.intersects(card)) return false;
    }
    return true;
}

TEST(CardPlacement, OpensBesideTheBoardWhereTheScreenHasRoom) {
    const view::CardRoom room = roomOnScreen(QRect(0, 0, 1366, 768));
    const QRect card(view::cardTopLeft(room, QSize(202, 330)), QSize(202, 330));
    EXPECT_LE(card.right(), room.mainFrame.left()) << "left of the main window, by the board";
    EXPECT_TRUE(room.screen.contains(card));
}

TEST(CardPlacement, OpensOverTheBoardClearOfTheButtonsOnANarrowScreen) {
    for (const QSize frame : {QSize(199, 322), QSize(202, 330), QSize(211, 310), QSize(715, 854)}) {
        const view::CardRoom room = roomOnScreen(QRect(0, 0, 800, 640));
        const QRect card(view::cardTopLeft(room, frame), frame);
        if (frame.width() < 300) {
            EXPECT_TRUE(room.board.contains(card)) << frame.width();
            EXPECT_TRUE(coversNothing(room, card)) << frame.width();
        } else {
            // Larger than the board: at least it does not hide the panels.
            EXPECT_EQ(card.topLeft(), room.board.topLeft());
        }
    }
}

TEST(CardPlacement, CentredWindowsStayWithinTheScreen) {
    EXPECT_EQ(view::centredTopLeft(QRect(0, 30, 1366, 738), QSize(600, 400)), QPoint(383, 199));
    EXPECT_EQ(view::centredTopLeft(QRect(0, 0, 500, 300), QSize(615, 526)), QPoint(0, 0));
}

QRect globalRect(const QWidget& w) {
    return QRect(w.mapToGlobal(QPoint(0, 0)), w.size());
}

// Watches every card that comes up in a game of computers, then leaves the program.
class CardWatch {
public:
    explicit CardWatch(GuiRun& gui) : gui_(gui) {}

    void look() {
        app::Program& p = *gui_.program;
        view::MainWindowView& main = p.mainView();
        const std::array<view::WindowView*, 4> cards = {&p.propertyCard(), &p.tradingCard(),
                                                        &p.jflCard(), &p.taxCard()};
        for (view::WindowView* card : cards) {
            if (!card->isVisible()) continue;
            ++looks;
            seen.insert(card->windowTitle().toStdString());
            EXPECT_EQ(card->parentWidget(), &main) << card->windowTitle().toStdString();
            ASSERT_NE(card->windowHandle(), nullptr);
            EXPECT_EQ(card->windowHandle()->transientParent(), main.windowHandle());
            EXPECT_TRUE(card->isWindow());
            const QRect frame = card->frameGeometry();
            for (const char* name : {"rollDice", "endTurn", "declareBank", "Label1"}) {
                const QWidget* w = main.controls().widget(name);
                EXPECT_FALSE(frame.intersects(globalRect(*w)))
                    << card->windowTitle().toStdString() << " covers " << name;
            }
        }
        if (looks >= kEnough && !gui_.run.hasExited()) main.action("Exit").trigger();
    }

    static constexpr int kEnough = 40;
    int looks = 0;
    std::set<std::string> seen;

private:
    GuiRun& gui_;
};

TEST(CardPlacement, EveryCardOfAComputersGameBelongsToTheMainWindowAndLeavesItsButtonsClear) {
    // 1 ms ticks: each wait serves the window system, so the views refresh while cards are up.
    GuiRun gui(std::make_unique<SeededRandom>(11), 1);
    CardWatch watch(gui);
    gui.program->setOnRefreshed([&] { watch.look(); });
    app::seatComputers(gui.program->dispatch(), gui.run, 2);
    EXPECT_GE(watch.looks, 10);
    EXPECT_TRUE(watch.seen.count("Property Card")) << "the computers buy and pay rent";
    EXPECT_TRUE(watch.seen.count("JFL Card") || watch.seen.count("Tax Card"));
    gui.program->setOnRefreshed({});
}

TEST(CardPlacement, AboutBelongsToTheMainWindowAndTheSetUpWindowOpensInTheMiddle) {
    GuiRun gui(std::make_unique<SeededRandom>(3));
    app::Program& p = *gui.program;
    EXPECT_EQ(p.aboutView().parentWidget(), &p.mainView());
    EXPECT_EQ(p.startView().parentWidget(), nullptr);
    EXPECT_EQ(p.endView().parentWidget(), nullptr);
    // Within the frame's margin of the middle: the frame is known only once it is shown.
    const QRect screen = p.startView().screen()->availableGeometry();
    const QPoint off = p.startView().frameGeometry().center() - screen.center();
    EXPECT_LE(off.manhattanLength(), 8) << off.x() << ", " << off.y();
}

QAction* menuOf(QMainWindow& window, const QString& title) {
    for (QAction* action : window.menuBar()->actions()) {
        if (action->text() == title) return action;
    }
    return nullptr;
}

TEST(PaceMenuTest, FastPickedInsideAWaitShortensIt) {
    GuiRun gui(std::make_unique<SeededRandom>(5), 100);
    view::PaceMenu& menu = *gui.program->paceMenu();
    EXPECT_TRUE(menu.entry(Pace::Designed).isChecked());
    // A wait of 20 ticks of 100 ms: 2 s as designed, 500 ms at Fast.
    QTimer::singleShot(50, [&] { menu.entry(Pace::Fast).trigger(); });
    QElapsedTimer clock;
    clock.start();
    gui.delay.wait(20);
    const qint64 fastMs = clock.elapsed();
    EXPECT_GE(fastMs, 450);
    EXPECT_LT(fastMs, 1500);
    EXPECT_TRUE(menu.entry(Pace::Fast).isChecked());
    EXPECT_FALSE(menu.entry(Pace::Designed).isChecked());

    QTimer::singleShot(50, [&] { menu.entry(Pace::Instant).trigger(); });
    clock.restart();
    gui.delay.wait(20);
    EXPECT_LT(clock.elapsed(), 400);
    EXPECT_EQ(gui.delay.depth(), 0);
    EXPECT_EQ(gui.delay.pacing().pace(), Pace::Instant);
}

TEST(PaceMenuTest, TheGameMenuAnswersWhileACardHoldsTheBoard) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    view::MainWindowView& main = gui.program->mainView();
    QAction* game = menuOf(main, QStringLiteral("&Game"));
    QAction* file = menuOf(main, QStringLiteral("&File"));
    ASSERT_NE(game, nullptr);
    ASSERT_NE(file, nullptr);
    // The Game menu sits before Help.
    EXPECT_EQ(main.menuBar()->actions().back()->text(), QStringLiteral("&Help"));
    gui.run.mainWindow().setEnabled(false);
    gui.program->refreshAll();
    EXPECT_TRUE(game->isEnabled());
    EXPECT_FALSE(file->isEnabled());
    gui.run.mainWindow().setEnabled(true);
    gui.program->refreshAll();
    EXPECT_TRUE(file->isEnabled());
}

TEST(HistoryView, OpensFromTheMenuAndListsTheGameNewestLast) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    app::Program& program = *gui.program;
    gui.seatAnnAndBob();
    gui.settle();
    view::HistoryView& window = program.historyView();
    EXPECT_FALSE(window.isVisible());
    program.mainView().action("History").trigger();
    gui.settle();
    ASSERT_TRUE(window.isVisible());
    program.dispatch().click([&] { gui.run.mainWindow().rollDice_Click(); });
    gui.settle();
    const auto& entries = gui.run.history().entries();
    ASSERT_FALSE(entries.empty());
    ASSERT_EQ(window.list().count(), static_cast<int>(entries.size()));
    const QString last = window.list().item(window.list().count() - 1)->text();
    EXPECT_TRUE(last.endsWith(QString::fromStdString(entries.back().text))) << last.toStdString();
    EXPECT_TRUE(last.startsWith(QStringLiteral("Round 1 · "))) << last.toStdString();
    EXPECT_EQ(program.mainView().action("History").shortcut(), QKeySequence(Qt::CTRL | Qt::Key_H));
    savePictures(window, "history");
    window.close();
    gui.settle();
    EXPECT_FALSE(gui.run.history().isVisible());
}

TEST(VoiceMenu, EnableAndMuteReachTheNarrator) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    RecordedVoice voice;
    gui.run.setVoice(voice);
    view::MainWindowView& window = gui.program->mainView();
    EXPECT_FALSE(gui.run.narrator().isEnabled());
    window.action("Enable1").trigger();
    EXPECT_TRUE(gui.run.narrator().isEnabled());
    window.action("Mute1").trigger();
    EXPECT_FALSE(gui.run.narrator().isEnabled());
    EXPECT_EQ(voice.stops, 1);
}

TEST(VoiceMenu, TheDesktopVoiceWithoutADeviceIsSilent) {
    app::QtVoice voice;
    voice.say("Ann has bought Saint-Jacques");
    voice.stop();
    SUCCEED();
}

}  // namespace
}  // namespace gw::test
