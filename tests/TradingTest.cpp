// Sales between players through the trading card: the two faces and their buttons, the
// amount box, the talk between two humans, a computer owner's answer, and what a sale
// does to money, mortgages and the right to build.
#include <iterator>
#include <tuple>

#include "GameFixture.h"

namespace gw::test {
namespace {

using Lines = std::vector<std::string>;

// The controls on show, in a fixed order; a closed one carries a trailing '*'.
Lines shown(const TradingCardWindow& w) {
    const char* const names[] = {"Label4", "doneDeal", "wantIt", "wantMore", "forgetIt"};
    const Control* const controls[] = {&w.Label4(), &w.doneDeal(), &w.wantIt(), &w.wantMore(),
                                       &w.forgetIt()};
    Lines on;
    for (std::size_t i = 0; i < std::size(names); ++i) {
        if (controls[i]->visible) {
            on.push_back(names[i] + std::string(controls[i]->enabled ? "" : "*"));
        }
    }
    return on;
}

class Trading : public GameFixture {
protected:
    Trading() {
        ann = &addHuman("Ann", 3);
        bob = &addHuman("Bob", 5);
    }
    void click(player& p, Integer cellId) {
        Integer opt = kOptInfo;
        board->getCell(cellId)->asProperty()->showInfo(p, opt);
    }
    // The buyer's face, opened from the card of the other player's cell.
    void openTrade(player& buyer, Integer cellId) {
        click(buyer, cellId);
        card().trade_Click();
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

    player* ann;
    player* bob;
};

class TradingWithComputer : public Trading {
protected:
    TradingWithComputer() { cal = &addComputer("Cal", 7); }
    player* cal;
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
        EXPECT_EQ(trading().face(), 1);
        EXPECT_EQ(shown(trading()), buyer->isComputer2() ? (Lines{"wantIt*", "forgetIt*"})
                                                         : (Lines{"wantIt", "forgetIt"}));
        trading().seeTrade(5, *owner, 120);
        EXPECT_EQ(trading().face(), 0);
        EXPECT_EQ(trading().tradeBuyer(), buyer);
        EXPECT_EQ(trading().tradeOwner(), owner);
        EXPECT_EQ(trading().Label4().caption, "120");
        EXPECT_EQ(shown(trading()), ownersFace);
    }
}

TEST_F(Trading, AmountBoxTakesDigitsOnlyAndAtMostFive) {
    EXPECT_TRUE(TradingCardWindow::amount_KeyPress('0'));
    EXPECT_TRUE(TradingCardWindow::amount_KeyPress('9'));
    EXPECT_FALSE(TradingCardWindow::amount_KeyPress('/'));  // the codes either side
    EXPECT_FALSE(TradingCardWindow::amount_KeyPress(':'));
    give(*bob, {5});
    openTrade(*ann, 5);
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
}

TEST_F(Trading, NextTradeKeepsTheLastSumAndFocusSelectsItForRetyping) {
    give(*bob, {5, 15});
    openTrade(*ann, 5);
    offer("250");
    trading().forgetIt_Click();
    openTrade(*ann, 15);
    EXPECT_EQ(trading().amountText(), "250");
    EXPECT_FALSE(trading().amountSelected());
    trading().amount_GotFocus();
    EXPECT_TRUE(trading().amountSelected());
    trading().typeKey('7');
    EXPECT_EQ(trading().amountText(), "7");
}

TEST_F(Trading, ForgetItOrAnUnreadableSumMakesNoTrade) {
    give(*bob, {5});
    openTrade(*ann, 5);
    for (const char* text : {"", "40000"}) {
        SCOPED_TRACE(text);
        trading().setAmountText(text);
        trading().wantIt_Click();
        EXPECT_TRUE(trading().isVisible());
        EXPECT_EQ(trading().face(), 1);
    }
    trading().forgetIt_Click();
    EXPECT_FALSE(trading().isVisible());
    for (const char* text : {"", "40000"}) {
        SCOPED_TRACE(text);
        openTrade(*ann, 5);
        offer("250");
        ASSERT_EQ(trading().face(), 0);
        trading().setAmountText(text);
        trading().wantMore_Click();
        EXPECT_FALSE(trading().isVisible());
    }
    openTrade(*ann, 5);
    offer("250");
    trading().forgetIt_Click();
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), bob);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(bob->getBalance(), 1500);
}

TEST_F(Trading, HumanOwnerTakesTheSumOnTheTable) {
    give(*bob, {5});
    openTrade(*ann, 5);
    offer("250");
    EXPECT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().face(), 0);
    EXPECT_EQ(trading().Label4().caption, "250");
    EXPECT_EQ(trading().tradeAmount(), 250);
    EXPECT_EQ(trading().tradeOwner(), bob);
    EXPECT_EQ(prop(5).getOwners(), bob);  // nothing moves before the owner's answer
    rec.clear();
    trading().doneDeal_Click();
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1250);
    EXPECT_EQ(bob->getBalance(), 1750);
    // The seller is paid before the buyer is charged and the cell changes hands.
    EXPECT_EQ(rec.only({"sound", "showOwner"}),
              (Lines{"sound: buy.wav", "sound: pay.wav", "showOwner(5)"}));
}

TEST_F(Trading, WantMoreNeedsAHigherSumToKeepTheTalkGoing) {
    give(*bob, {5});
    for (const char* ask : {"250", "100"}) {
        SCOPED_TRACE(ask);
        openTrade(*ann, 5);
        offer("250");
        type(ask);
        trading().wantMore_Click();
        EXPECT_FALSE(trading().isVisible());
        EXPECT_EQ(prop(5).getOwners(), bob);
    }
    openTrade(*ann, 5);
    offer("250");
    type("300");
    trading().wantMore_Click();
    EXPECT_EQ(trading().face(), 0);
    EXPECT_EQ(trading().Label4().caption, "300");
    EXPECT_EQ(trading().tradeAmount(), 300);
    EXPECT_EQ(prop(5).getOwners(), bob);
    trading().doneDeal_Click();
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1200);
    EXPECT_EQ(bob->getBalance(), 1800);
}

TEST_F(TradingWithComputer, ComputerOwnerAlwaysTakesMoreThanHalfThePrice) {
    give(*cal, {5});  // priced 300: 151 / 300 rounds to 1
    openTrade(*ann, 5);
    random->push(ScriptedRandom::digit(9));
    rec.clear();
    offer("151");
    EXPECT_EQ(random->remaining(), 0u);
    EXPECT_EQ(trading().Label4().caption, "151");  // the owner's face came up first
    EXPECT_FALSE(trading().isVisible());
    EXPECT_TRUE(rec.has("wait 20"));
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1349);
    EXPECT_EQ(cal->getBalance(), 1651);
}

TEST_F(TradingWithComputer, ComputerOwnerTakesHalfThePriceOrLessOnADrawOfZeroOnly) {
    give(*cal, {5});
    openTrade(*ann, 5);
    random->push(ScriptedRandom::digit(1));
    rec.clear();
    offer("150");
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(prop(5).getOwners(), cal);
    EXPECT_EQ(ann->getBalance(), 1500);
    // A refusal says nothing, and the trading card never touches the main window.
    EXPECT_EQ(rec.only({"showInfo", "setEnabled"}), Lines{});

    openTrade(*ann, 5);
    random->push(ScriptedRandom::digit(0));
    offer("150");
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1350);
    EXPECT_EQ(cal->getBalance(), 1650);

    give(*cal, {15});  // nothing at all is an offer too
    openTrade(*ann, 15);
    random->push(ScriptedRandom::digit(0));
    offer("0");
    EXPECT_EQ(prop(15).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1350);
}

TEST_F(Trading, OfferAboveTheCashLeavesADebtThatHoldsTheTurn) {
    give(*bob, {5, 15});
    setBalance(*ann, 100);
    openTrade(*ann, 5);
    offer("400");
    trading().doneDeal_Click();
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), -300);
    EXPECT_EQ(bob->getBalance(), 1900);
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must make money first");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    click(*ann, 15);  // no further buying while in debt
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_FALSE(card().trade().visible);
}

TEST_F(Trading, MortgagedCellChangesHandsMortgaged) {
    give(*bob, {5});
    bob->mortgageProp(5);  // 1650
    openTrade(*ann, 5);
    offer("100");
    trading().doneDeal_Click();
    EXPECT_EQ(prop(5).getOwners(), ann);
    EXPECT_TRUE(prop(5).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1400);
    EXPECT_EQ(bob->getBalance(), 1750);
    click(*ann, 5);
    EXPECT_EQ(card().cardOpt(), kOptOwn);
    EXPECT_TRUE(card().Unmortgage().isOpen());
}

TEST_F(Trading, SaleOfADistrictStreetMovesTheRightToBuild) {
    give(*bob, {1, 3});
    ASSERT_TRUE(bob->canBuild(1));
    openTrade(*ann, 3);
    offer("200");
    trading().doneDeal_Click();
    EXPECT_FALSE(bob->canBuild(1));
    EXPECT_FALSE(ann->canBuild(3));
    openTrade(*ann, 1);
    offer("150");
    trading().doneDeal_Click();
    EXPECT_TRUE(ann->canBuild(1));
    EXPECT_TRUE(ann->canBuild(3));
    EXPECT_EQ(ann->getBalance(), 1150);
    EXPECT_EQ(bob->getBalance(), 1850);
}

TEST_F(Trading, LateDoneDealAfterTheCellWentBackToTheBankDoesNothing) {
    give(*bob, {5});
    openTrade(*ann, 5);
    offer("250");
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
