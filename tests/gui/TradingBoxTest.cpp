// SPDX-License-Identifier: GPL-3.0-or-later
// The trading card's amount box as two people use it: its filter of keys, the buyer types a
// sum and makes the offer, the card turns to the owner, who clicks into the box and types a
// counter-offer.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLineEdit>

#include "GuiRun.h"
#include "cells/PropertyCell.h"
#include "game/Board.h"

namespace gw::test {
namespace {

constexpr Integer kSaintAntoine = 1;

class TradingBox : public ::testing::Test {
protected:
    TradingBox() : gui(std::make_unique<SeededRandom>(5)) {
        gui.seatAnnAndBob();
        Board& board = gui.run.board();
        for (Integer i = 0; i < board.getNumPlayer(); ++i) {
            player* p = board.getPlayer(i);
            (p->getName() == "Ann" ? ann : bob) = p;
        }
        bob->newlyOwn(*gui.run.board().getCell(kSaintAntoine));
        gui.program->dispatch().click([&] {
            gui.run.windows().trading.proposeTrade(kSaintAntoine, *ann, "Saint-Antoine", "Bob");
        });
        gui.settle();
        QApplication::setActiveWindow(&card());  // focus events come only to the active window
    }

    view::TradingCardView& card() { return gui.program->tradingCard(); }
    QLineEdit& amount() { return *card().controls().entry("amount"); }
    TradingCardWindow& model() { return gui.run.windows().trading; }
    void clickInto(QWidget& w) {
        clickOn(w);
        gui.settle();
    }

    GuiRun gui;
    player* ann = nullptr;
    player* bob = nullptr;
};

TEST_F(TradingBox, TheOwnerTypesOverTheBuyersSumAfterClickingIntoTheBox) {
    ASSERT_TRUE(card().isVisible());
    clickInto(amount());
    QTest::keyClicks(&amount(), "120");
    EXPECT_EQ(amount().text(), "120");
    ASSERT_TRUE(amount().hasFocus());

    clickInto(*card().controls().button("wantIt"));
    ASSERT_EQ(model().face(), TradeFace::Owner);
    EXPECT_EQ(model().Label4().caption, "120");
    // Turned to the owner, the card selects the sum without a click.
    EXPECT_TRUE(model().amountSelected());
    EXPECT_EQ(amount().selectedText(), "120");
    amount().setFocus();  // the focus went back to the box, as it does for a person
    gui.settle();
    clickInto(amount());  // a click into a box that holds the focus already
    EXPECT_EQ(amount().selectedText(), "120");
    QTest::keyClicks(&amount(), "200");
    EXPECT_EQ(amount().text(), "200");
    EXPECT_EQ(model().readAmount(), Integer{200});

    clickInto(*card().controls().button("wantMore"));
    EXPECT_EQ(model().Label4().caption, "200");
    EXPECT_EQ(ann->getBalance(), 1500);  // an offer, not a sale
}

// The box keeps digits only, five at most, and typing after it gets the focus replaces the
// old sum.
TEST_F(TradingBox, KeepsDigitsAndReplacesTheOldSumOnFocus) {
    amount().setFocus();
    gui.settle();
    QTest::keyClicks(&amount(), "12a3-");
    QTest::keyClick(&amount(), Qt::Key_Backspace);
    EXPECT_EQ(model().amountText(), "123");
    EXPECT_EQ(amount().text(), "123");
    QTest::keyClicks(&amount(), "4567");
    EXPECT_EQ(model().amountText(), "12345");
    amount().clearFocus();
    amount().setFocus();
    gui.settle();
    EXPECT_TRUE(model().amountSelected());
    QTest::keyClicks(&amount(), "9");
    EXPECT_EQ(model().amountText(), "9");
    EXPECT_EQ(amount().text(), "9");
}

TEST_F(TradingBox, EveryClickIntoTheBoxSelectsTheWholeSum) {
    clickInto(amount());
    QTest::keyClicks(&amount(), "45");
    clickInto(amount());
    EXPECT_EQ(amount().selectedText(), "45");
    clickInto(amount());
    EXPECT_EQ(amount().selectedText(), "45");
    QTest::keyClicks(&amount(), "7");
    EXPECT_EQ(model().amountText(), "7");
}

}  // namespace
}  // namespace gw::test
