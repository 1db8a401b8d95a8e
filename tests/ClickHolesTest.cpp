// SPDX-License-Identifier: GPL-3.0-or-later
// Clicks that once crashed, corrupted or stranded a game: a card button inside a walk past
// Go, a human in debt with nothing to sell, a fourth throw, cards whose facts have gone
// stale, and a typed sum beyond what a balance can hold.
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

class ClickHoles : public RunFixture {
protected:
    ClickHoles() : RunFixture(payFirst()) {}
    // The first card drawn makes its player pay 250.
    static std::vector<int> payFirst() {
        std::vector<int> order = deckInOrder();
        std::swap(order[0], order[8]);
        return order;
    }
    void seatThree() {
        addPlayer("Ann", 0);
        addPlayer("Bob", 1);
        addPlayer("Cat", 2);
        letsStart();
    }
    // The purchase card of the cell Ann stood on is left up while she throws onto the
    // luxury tax: Forget or Buy on it only closes it, and the tax is still to be paid.
    void staleCardOverTheTax(bool forget) {
        seatThree();
        for (auto [a, b] : {std::pair{1, 2}, std::pair{5, 6}, std::pair{5, 6}, std::pair{4, 5}}) {
            throwAndPass(a, b);  // Ann: 3, 14, 25, 34
            throwAndPass(1, 2);
            throwAndPass(1, 2);
        }
        ASSERT_EQ(seat(0).getPosition(), 34);
        click([&] { main().cell_Click(34); });
        ASSERT_TRUE(card().buy().isOpen());
        const Integer before = seat(0).getBalance();

        nextThrow(1, 3);  // 34 to 38, the luxury tax
        roll();
        ASSERT_EQ(seat(0).getPosition(), 38);
        click([&] { forget ? card().forget_Click() : card().buy_Click(); });
        EXPECT_EQ(board().propertyAt(34)->getProp().getOwners(), nullptr);
        EXPECT_EQ(seat(0).getBalance(), before);  // nothing bought, the tax not yet paid
        EXPECT_FALSE(seat(0).getDidAction());
        endTurn();
        EXPECT_EQ(main().Label2(), "Ann");  // the tax holds the turn
    }
};

TEST_F(ClickHoles, ABuyClickDuringAWalkPastGoSeesTheRingAndBuysNothing) {
    seatThree();
    for (auto [a, b] : {std::pair{1, 2}, std::pair{5, 6}, std::pair{5, 6}, std::pair{4, 5}}) {
        throwAndPass(a, b);  // Ann: 3, 14, 25, 34
        throwAndPass(1, 2);  // Bob and Cat: 3, 6, 9, 12 ...
        throwAndPass(1, 2);
    }
    ASSERT_EQ(main().Label2(), "Ann");
    ASSERT_EQ(seat(0).getPosition(), 34);
    click([&] { main().cell_Click(34); });  // the purchase card of her own cell, again
    ASSERT_TRUE(card().buy().isOpen());

    std::vector<Integer> seen;
    rec.duringWaitTicks = 2;  // a step of the walk
    rec.duringWait = [&] {
        seen.push_back(seat(0).getPosition());
        click([&] { card().buy_Click(); });
    };
    nextThrow(4, 5);  // 34 to 3, past Go
    roll();
    ASSERT_FALSE(seen.empty());
    for (Integer position : seen) EXPECT_TRUE(position >= 0 && position < 40) << position;
    EXPECT_EQ(board().propertyAt(34)->getProp().getOwners(), nullptr);
    EXPECT_EQ(seat(0).getBalance(), 1700);  // Go money, and nothing bought
    EXPECT_EQ(seat(0).getPosition(), 3);
    EXPECT_TRUE(main().isEnabled());
}

TEST_F(ClickHoles, ForgetOnAStaleCardOverATaxLandingLeavesTheTaxDue) {
    staleCardOverTheTax(true);
}

TEST_F(ClickHoles, BuyOnAStaleCardOverATaxLandingLeavesTheTaxDue) {
    staleCardOverTheTax(false);
}

TEST_F(ClickHoles, AHumanInDebtWithNothingToSellIsOfferedBankruptcy) {
    seatThree();
    seat(0).debit(1400);  // Ann is down to 100, owning nothing
    nextThrow(3, 4);      // to the JFL cell 7: pay 250
    roll();
    EXPECT_EQ(seat(0).getBalance(), -150);
    EXPECT_EQ(buttons(), Lines{"declareBank"});
    click([&] { main().declareBank_Click(); });
    EXPECT_TRUE(seat(0).isBankrupt2());
    EXPECT_EQ(main().Label2(), "Bob");
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"}));
}

TEST_F(ClickHoles, ATurnThatBeginsInDebtOffersOnlyBankruptcy) {
    seatThree();
    seat(1).debit(1600);                                    // Bob is made negative outside his turn
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"}));  // Ann's turn is not touched
    throwAndPass(1, 2);
    ASSERT_EQ(main().Label2(), "Bob");
    EXPECT_EQ(buttons(), Lines{"declareBank"});
}

TEST_F(ClickHoles, ThreeDoublesThenACellClickOffersNoWayOutOfJail) {
    seatThree();
    throwAndPass(3, 3);  // Wellington, then the same player again
    throwAndPass(4, 4);  // Saint-Paul
    nextThrow(5, 5);     // the third double: jail
    roll();
    ASSERT_TRUE(seat(0).IsInJail());
    click([&] { main().cell_Click(1); });
    EXPECT_FALSE(main().pay50Rent().visible);
    EXPECT_FALSE(main().useJFLCard().visible);
    click([&] { main().pay50Rent_Click(); });  // hidden: nothing
    EXPECT_TRUE(seat(0).IsInJail());
    endTurn();
    EXPECT_EQ(main().Label2(), "Bob");
}

TEST_F(ClickHoles, ADealLeftUpWhileItsBuyerWentBankruptDoesNothing) {
    seatThree();
    nextThrow(1, 2);  // Ann buys Saint-Jacques
    roll();
    click([&] { card().buy_Click(); });
    endTurn();
    TradingCardWindow& trading = windows().trading;
    click([&] {  // Bob offers 150; the owner's face waits for Ann
        main().cell_Click(3);
        card().trade_Click();
        trading.amount_GotFocus();
        for (char key : std::string("150")) trading.typeKey(key);
        trading.wantIt_Click();
    });
    ASSERT_EQ(trading.face(), TradeFace::Owner);
    seat(1).debit(1600);  // Bob falls into debt and gives up
    click([&] { main().declareBank_Click(); });
    ASSERT_TRUE(seat(1).isBankrupt2());
    click([&] { trading.doneDeal_Click(); });
    EXPECT_FALSE(trading.isVisible());
    EXPECT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(0));
    EXPECT_EQ(seat(0).getBalance(), 1400);
}

TEST_F(ClickHoles, ASumBeyondWhatABalanceHoldsMakesNoTrade) {
    seatThree();
    nextThrow(1, 2);  // Ann buys Saint-Jacques
    roll();
    click([&] { card().buy_Click(); });
    endTurn();
    // Bob asks for it with a typed sum the seller's balance cannot take.
    click([&] { main().cell_Click(3); });
    ASSERT_TRUE(card().trade().isOpen());
    click([&] { card().trade_Click(); });
    TradingCardWindow& trading = windows().trading;
    ASSERT_TRUE(trading.isVisible());
    click([&] {
        trading.amount_GotFocus();
        for (char key : std::string("32000")) trading.typeKey(key);
        trading.wantIt_Click();
    });
    EXPECT_TRUE(trading.isVisible());
    EXPECT_EQ(trading.face(), TradeFace::Buyer);
    EXPECT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(0));
    EXPECT_EQ(seat(0).getBalance(), 1400);
    EXPECT_EQ(main().Label1(),
              "No trade: that sum would take a balance past what the bank can count");

    click([&] {  // another sum is taken
        trading.amount_GotFocus();
        for (char key : std::string("150")) trading.typeKey(key);
        trading.wantIt_Click();
    });
    EXPECT_EQ(trading.face(), TradeFace::Owner);
    click([&] { trading.doneDeal_Click(); });
    EXPECT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(1));
    EXPECT_EQ(seat(0).getBalance(), 1550);
}

// The end window reads the winner off the panel; the last row in use may be a bankrupt's.
TEST_F(ClickHoles, TheEndWindowNamesAWinnerWhoIsNotInTheLastRowUsed) {
    seatThree();
    nextThrow(1, 2);  // Ann buys Saint-Jacques
    roll();
    click([&] { card().buy_Click(); });
    endTurn();
    for (int loser : {1, 2}) {
        ASSERT_EQ(&board().getCurrPlayer(), &seat(loser));
        seat(loser).debit(1600);
        click([&] { main().declareBank_Click(); });
        ASSERT_TRUE(seat(loser).isBankrupt2());
    }
    ASSERT_TRUE(run->gameEnd().isVisible());
    EXPECT_EQ(run->gameEnd().Label1().caption, "Ann, the richest person in Kestrovia!");
    EXPECT_EQ(run->gameEnd().closingLine(), "The city is yours.");
}

// A trading card asked from a property card left up by a buyer who has since gone bankrupt
// does not open: the buyer has nothing left to deal with.
TEST_F(ClickHoles, ATradeAskedByABuyerWhoWentBankruptOpensNoDeal) {
    seatThree();
    nextThrow(1, 2);  // Ann buys Saint-Jacques
    roll();
    click([&] { card().buy_Click(); });
    endTurn();
    click([&] { main().cell_Click(3); });  // Bob looks at Ann's street
    ASSERT_TRUE(card().isVisible());
    seat(1).debit(1600);
    click([&] { main().declareBank_Click(); });
    ASSERT_TRUE(seat(1).isBankrupt2());
    click([&] { card().trade_Click(); });
    EXPECT_FALSE(windows().trading.isVisible());
    EXPECT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(0));
}

}  // namespace
}  // namespace gw::test
