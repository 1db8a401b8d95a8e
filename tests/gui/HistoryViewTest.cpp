// SPDX-License-Identifier: GPL-3.0-or-later
// The History window through the real widgets: View > History and its key open it, and
// its list follows the game, newest last.
#include <gtest/gtest.h>

#include <QAction>
#include <QListWidget>

#include "GuiRun.h"
#include "game/Board.h"

namespace gw::test {
namespace {

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

}  // namespace
}  // namespace gw::test
