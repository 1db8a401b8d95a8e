// SPDX-License-Identifier: GPL-3.0-or-later
// The menus of the real main window: Game > Pace (a pick inside a real wait shortens it, the
// menu answers while a card holds the board), View > History and its key, and File > Voice, whose
// desktop voice with no audio device is silent and harmless.
#include <gtest/gtest.h>

#include <QAction>
#include <QElapsedTimer>
#include <QListWidget>
#include <QMenuBar>
#include <QTimer>

#include "GuiRun.h"
#include "app/QtVoice.h"
#include "game/Board.h"

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
