// SPDX-License-Identifier: GPL-3.0-or-later
// Game > Pace on the real window: a pick inside a real wait shortens it, the menu answers
// while a card holds the board, and the command line sets the pace to start with.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QMenuBar>
#include <QTimer>

#include "GuiRun.h"
#include "app/Options.h"

namespace gw::test {
namespace {

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

TEST(PaceMenuTest, TheCommandLineSetsThePace) {
    EXPECT_EQ(app::parseOptions({"gildenway"}).pace, Pace::Designed);
    EXPECT_EQ(app::parseOptions({"gildenway", "--pace", "fast"}).pace, Pace::Fast);
    EXPECT_EQ(app::parseOptions({"gildenway", "--pace", "instant", "--seed", "5"}).pace,
              Pace::Instant);
    EXPECT_EQ(app::parseOptions({"gildenway", "--pace", "slow"}).error,
              "--pace takes designed, fast or instant");
    EXPECT_FALSE(app::parseOptions({"gildenway", "--pace"}).error.isEmpty());
}

}  // namespace
}  // namespace gw::test
