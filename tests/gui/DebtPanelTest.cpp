// SPDX-License-Identifier: GPL-3.0-or-later
// The debt panel and the close box through the real widgets: the line and the hand's
// button come up over the free panel, the hand asks, and the close box asks in a game.
#include <gtest/gtest.h>

#include <QLabel>
#include <QPushButton>

#include "GuiRun.h"
#include "game/Board.h"
#include "windows/Question.h"

namespace gw::test {
namespace {

class DebtPanel : public ::testing::Test {
protected:
    DebtPanel() : gui(std::make_unique<SeededRandom>(5)) {
        gui.run.setQuestion(question);
        gui.seatAnnAndBob();
        gui.settle();
        EXPECT_TRUE(program().mainView().isVisible());
    }
    void click(const std::function<void()>& handler) {
        program().dispatch().click(handler);
        gui.settle();
    }
    app::Program& program() { return *gui.program; }
    player& current() { return gui.run.board().getCurrPlayer(); }

    ScriptedQuestion question;
    GuiRun gui;
};

TEST_F(DebtPanel, TheLineAndTheHandComeAndGoWithTheDebt) {
    view::DebtPanelView& panel = program().debtPanel();
    EXPECT_FALSE(panel.isVisible());
    player& p = current();
    p.newlyOwn(*gui.run.board().getCell(12));
    click([&] { p.debit(1560); });  // 60 short; the utility's mortgage brings 100
    // The words and the question are the model's, checked with the core run.
    ASSERT_TRUE(panel.isVisible());
    EXPECT_EQ(panel.line().text().toStdString(), gui.run.debtHelp().line());
    ASSERT_TRUE(panel.raiseForMe().isVisible());
    EXPECT_EQ(panel.raiseForMe().text(), QStringLiteral("Raise $60 for me"));
    savePictures(program().mainView(), "debt-panel");
    program().mainView().zoomTo(1.5);  // the panel keeps its place over the free panel
    gui.settle();
    EXPECT_EQ(panel.geometry(), QRect(888, 564, 279, 144));
    program().mainView().zoomTo(1);
    gui.settle();
    EXPECT_EQ(panel.geometry(), QRect(592, 376, 186, 96));

    clickOn(panel.raiseForMe());
    gui.settle();
    EXPECT_EQ(question.asked.size(), 1U);
    EXPECT_EQ(p.getBalance(), 40);
    EXPECT_FALSE(panel.isVisible());
}

TEST_F(DebtPanel, TheCloseBoxAsksAndNoPlaysOn) {
    question.answers = {false};
    program().mainView().close();
    gui.settle();
    EXPECT_FALSE(gui.exited);
    EXPECT_TRUE(program().mainView().isVisible());
    program().mainView().close();
    gui.settle();
    EXPECT_TRUE(gui.exited);
    EXPECT_EQ(question.asked, (std::vector<std::string>{"Leave the game in progress?",
                                                        "Leave the game in progress?"}));
}

// Space throws while Roll Dice is open, Enter ends the turn once End Turn is.
TEST_F(DebtPanel, SpaceAndEnterPressTheOpenTurnButton) {
    view::MainWindowView& window = program().mainView();
    QApplication::setActiveWindow(&window);
    const std::string first = current().getName();
    ASSERT_TRUE(gui.run.mainWindow().rollDice().isOpen());
    QTest::keyClick(&window, Qt::Key_Space);
    gui.settle();
    EXPECT_NE(gui.run.mainWindow().dieFace1(), 0);
    if (gui.run.windows().cellInfo.isVisible()) {
        click([&] { gui.run.windows().cellInfo.close(); });
    }
    if (gui.run.mainWindow().endTurn().isOpen() && current().getDoubleCount() == 0 &&
        current().getDidAction()) {
        QTest::keyClick(&window, Qt::Key_Return);
        gui.settle();
        EXPECT_NE(current().getName(), first);
    }
}

// Alt+B is Declare Bankruptcy while it is open.
TEST_F(DebtPanel, AltBDeclaresBankruptcyOnceItIsTheOnlyWayOut) {
    view::MainWindowView& window = program().mainView();
    QApplication::setActiveWindow(&window);
    player& p = current();
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    gui.settle();
    EXPECT_FALSE(p.isBankrupt2());
    click([&] { p.debit(1560); });
    ASSERT_TRUE(gui.run.mainWindow().declareBank().isOpen());
    QTest::keyClick(&window, Qt::Key_B, Qt::AltModifier);
    gui.settle();
    EXPECT_TRUE(p.isBankrupt2());
}

// Escape closes a card that offers no button, and leaves one that does.
TEST_F(DebtPanel, EscapeClosesACardWithNoOpenButton) {
    view::CellInfoView& card = program().propertyCard();
    click([&] { gui.run.mainWindow().cell_Click(39); });  // a card to read, no button
    ASSERT_TRUE(card.isVisible());
    QApplication::setActiveWindow(&card);
    QTest::keyClick(&card, Qt::Key_Escape);
    gui.settle();
    EXPECT_FALSE(gui.run.windows().cellInfo.isVisible());

    gui.run.board().getCurrPlayer().newlyOwn(*gui.run.board().getCell(39));
    click([&] { gui.run.mainWindow().cell_Click(39); });  // own cell: Mortgage and Ok
    ASSERT_TRUE(card.isVisible());
    QApplication::setActiveWindow(&card);
    QTest::keyClick(&card, Qt::Key_Escape);
    gui.settle();
    EXPECT_TRUE(gui.run.windows().cellInfo.isVisible());
    QTest::keyClick(&card, Qt::Key_O, Qt::AltModifier);  // Ok
    gui.settle();
    EXPECT_FALSE(gui.run.windows().cellInfo.isVisible());
}

}  // namespace
}  // namespace gw::test
