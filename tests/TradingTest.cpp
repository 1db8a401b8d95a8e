// SPDX-License-Identifier: GPL-3.0-or-later
// Sales between players through the trading card: the two faces and their buttons, the
// amount box, the talk between two humans, a computer owner's answer, and what a sale
// does to money, mortgages and the right to build.
#include <tuple>

#include "GameFixture.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {
namespace {

Lines controls(const TradingCardWindow& w) {
    return shown("Label4 doneDeal wantIt wantMore forgetIt",
                 {&w.Label4(), &w.doneDeal(), &w.wantIt(), &w.wantMore(), &w.forgetIt()});
}

class Trading : public TwoHumans {
protected:
    // Ann's face as buyer, opened from the card of the other player's cell.
    void openTrade(Integer cellId) {
        click(*ann, cellId);
        onCard("trade");
    }
    // Types into the box after giving it the focus, as a user does.
    void type(const std::string& keys) {
        trading().amount_GotFocus();
        for (char key : keys) trading().typeKey(key);
    }
    void offer(const std::string& sum) {
        type(sum);
        trading().wantIt_Click();
    }
    void offer(Integer cellId, const std::string& sum) {
        openTrade(cellId);
        offer(sum);
    }
};

class TradingWithComputer : public Trading {
protected:
    player* cal = &addComputer("Cal", 7);
};

TEST_F(TradingWithComputer, EachFaceOpensItsButtonsByWhoIsAComputer) {
    player& dee = addComputer("Dee", 9);
    const Lines open = {"Label4", "doneDeal", "wantMore", "forgetIt"};
    const Lines noMore = {"Label4", "doneDeal", "wantMore*", "forgetIt"};
    const Lines closed = {"Label4", "doneDeal*", "wantMore*", "forgetIt*"};
    const std::tuple<player*, player*, Lines> cases[] = {
        {ann, bob, open}, {cal, bob, noMore}, {ann, cal, closed}, {cal, &dee, closed}};
    for (const auto& [buyer, owner, ownersFace] : cases) {
        SCOPED_TRACE(buyer->getName() + " to " + owner->getName());
        trading().proposeTrade(5, *buyer, "Outremont", owner->getName());
        EXPECT_EQ(trading().face(), TradeFace::Buyer);
        EXPECT_EQ(controls(trading()), buyer->isComputer2() ? (Lines{"wantIt*", "forgetIt*"})
                                                            : (Lines{"wantIt", "forgetIt"}));
        trading().seeTrade(5, *owner, 120);
        EXPECT_EQ(trading().face(), TradeFace::Owner);
        EXPECT_EQ(trading().Label4().caption, "120");
        EXPECT_EQ(controls(trading()), ownersFace);
    }
}

TEST_F(Trading, AmountBoxTakesAtMostFiveDigitsAndKeepsTheLastSumSelectedForRetyping) {
    EXPECT_TRUE(TradingCardWindow::amount_KeyPress('0'));
    EXPECT_TRUE(TradingCardWindow::amount_KeyPress('9'));
    EXPECT_FALSE(TradingCardWindow::amount_KeyPress('/'));  // the codes either side
    EXPECT_FALSE(TradingCardWindow::amount_KeyPress(':'));
    give(*bob, {5, 15});
    openTrade(5);
    type("12a3");
    EXPECT_EQ(trading().amountText(), "123");
    trading().typeKey('-');
    trading().typeKey('\b');
    EXPECT_EQ(trading().amountText(), "123");
    type("9876543");
    EXPECT_EQ(trading().amountText(), "98765");
    EXPECT_EQ(trading().readAmount(), std::nullopt);
    type("32767");
    EXPECT_EQ(trading().readAmount(), std::optional<Integer>(32767));

    offer("250");
    trading().forgetIt_Click();
    openTrade(15);
    // The card opens with the last sum selected, so typing replaces it.
    EXPECT_EQ(trading().amountText(), "250");
    EXPECT_TRUE(trading().amountSelected());
    trading().typeKey('7');
    EXPECT_EQ(trading().amountText(), "7");
}

TEST_F(Trading, ForgetItOrAnUnreadableSumMakesNoTrade) {
    give(*bob, {5});
    openTrade(5);
    for (const char* text : {"", "40000"}) {
        SCOPED_TRACE(text);
        trading().setAmountText(text);
        trading().wantIt_Click();
        EXPECT_TRUE(trading().isVisible());
        EXPECT_EQ(trading().face(), TradeFace::Buyer);
    }
    trading().forgetIt_Click();
    EXPECT_FALSE(trading().isVisible());
    offer(5, "250");
    trading().forgetIt_Click();
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), bob);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(bob->getBalance(), 1500);
}

TEST_F(Trading, HumanOwnerTakesTheSumOnTheTableEvenBeyondTheBuyersCash) {
    give(*bob, {5});
    setBalance(*ann, 100);
    offer(5, "400");
    EXPECT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().face(), TradeFace::Owner);
    EXPECT_EQ(trading().Label4().caption, "400");
    EXPECT_EQ(prop(5).getOwners(), bob);  // nothing moves before the owner's answer
    rec.clear();
    trading().doneDeal_Click();
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), -300);
    EXPECT_EQ(bob->getBalance(), 1900);
    // The seller is paid before the buyer is charged and the cell changes hands.
    EXPECT_EQ(rec.only({"sound", "showOwner"}),
              (Lines{"sound: buy.wav", "sound: pay.wav", "showOwner(5)"}));
}

TEST_F(Trading, WantMoreNeedsAHigherReadableSumToKeepTheTalkGoing) {
    give(*bob, {5});
    for (const char* ask : {"250", "100", "", "40000"}) {
        SCOPED_TRACE(ask);
        offer(5, "250");
        ASSERT_EQ(trading().face(), TradeFace::Owner);
        trading().setAmountText(ask);
        trading().wantMore_Click();
        EXPECT_FALSE(trading().isVisible());
        EXPECT_EQ(prop(5).getOwners(), bob);
    }
    offer(5, "250");
    type("300");
    trading().wantMore_Click();
    EXPECT_EQ(trading().face(), TradeFace::Owner);
    EXPECT_EQ(trading().Label4().caption, "300");
    trading().doneDeal_Click();
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1200);
    EXPECT_EQ(bob->getBalance(), 1800);
}

TEST_F(TradingWithComputer, ComputerOwnerTakesAboveHalfThePriceAlwaysAndHalfOrLessOnAZero) {
    give(*cal, {5, 15, 25});  // metros, priced 300: 151 / 300 rounds to 1
    random->push(ScriptedRandom::digit(9));
    rec.clear();
    offer(5, "151");
    EXPECT_EQ(random->remaining(), 0u);
    EXPECT_EQ(trading().Label4().caption, "151");  // the owner's face came up first
    EXPECT_FALSE(trading().isVisible());
    EXPECT_TRUE(rec.has("wait 20"));
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1349);
    EXPECT_EQ(cal->getBalance(), 1651);

    openTrade(15);
    random->push(ScriptedRandom::digit(1));
    rec.clear();
    offer("150");
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(15).getOwners(), cal);
    EXPECT_EQ(ann->getBalance(), 1349);
    // A refusal says nothing, and the trading card never touches the main window.
    EXPECT_EQ(rec.only({"showInfo", "setEnabled"}), Lines{});
    random->push(ScriptedRandom::digit(0));
    offer(15, "150");
    EXPECT_EQ(prop(15).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1199);
    EXPECT_EQ(cal->getBalance(), 1801);

    random->push(ScriptedRandom::digit(0));
    offer(25, "0");  // nothing at all is an offer too
    EXPECT_EQ(prop(25).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1199);
}

TEST_F(Trading, ASaleCarriesTheMortgageAndTheRightToBuild) {
    give(*bob, {1, 3, 5});
    bob->mortgageProp(5);  // 1650
    offer(5, "100");
    trading().doneDeal_Click();
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_TRUE(prop(5).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1400);
    EXPECT_EQ(bob->getBalance(), 1750);
    click(*ann, 5);
    EXPECT_EQ(cardOpt(), kOptOwn);
    EXPECT_TRUE(byName::offers(card(), "Unmortgage"));

    ASSERT_TRUE(bob->canBuild(1));
    offer(3, "200");
    trading().doneDeal_Click();
    EXPECT_FALSE(bob->canBuild(1));
    EXPECT_FALSE(ann->canBuild(3));
    offer(1, "150");
    trading().doneDeal_Click();
    EXPECT_TRUE(ann->canBuild(1));
    EXPECT_TRUE(ann->canBuild(3));
    EXPECT_EQ(ann->getBalance(), 1050);
    EXPECT_EQ(bob->getBalance(), 2100);
}

TEST_F(Trading, LateDoneDealAfterTheCellWentBackToTheBankDoesNothing) {
    give(*bob, {5});
    offer(5, "250");
    board->endTurn();  // Ann's turn ends with the offer unanswered
    ASSERT_EQ(&board->getCurrPlayer(), bob);
    bob->declareBankruptcy();  // on Go: no creditor, his cells go to the bank
    ASSERT_EQ(prop(5).getOwners(), nullptr);
    trading().doneDeal_Click();
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), nullptr);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(bob->getBalance(), 1500);
}

}  // namespace
}  // namespace gw::test
