// SPDX-License-Identifier: GPL-3.0-or-later
// Clicks that once crashed, corrupted or stranded a game: a card button inside a walk past
// Go, a human in debt with nothing to sell, a fourth throw, cards whose facts have gone
// stale, and sums beyond what a balance can hold.
#include "RunFixture.h"
#include "windows/TradingCardWindow.h"

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
    // Ann, in her turn on cell 34, which she let go, has its purchase card up again.
    void annBackOnHerCell34() {
        seatThree();
        for (auto [a, b] : {std::pair{1, 2}, std::pair{5, 6}, std::pair{5, 6}, std::pair{4, 5}}) {
            throwAndPass(a, b);  // Ann: 3, 14, 25, 34
            throwAndPass(1, 2);  // Bob and Cat: 3, 6, 9, 12 ...
            throwAndPass(1, 2);
        }
        ASSERT_EQ(main().Label2(), "Ann");
        ASSERT_EQ(seat(0).getPosition(), 34);
        click([&] { main().cell_Click(34); });
        ASSERT_TRUE(cardOffers("buy"));
    }
    // Ann buys Saint-Jacques (3) and Bob's turn begins.
    void annOwnsSaintJacques() {
        seatThree();
        buyWhereTheThrowLands(1, 2);
        endTurn();
    }
    void goBankrupt(int id, Integer debt = 1600) {
        seat(id).debit(debt);
        click([&] { main().declareBank_Click(); });
        ASSERT_TRUE(seat(id).isBankrupt2());
    }
    Integer ownerOf3() { return board().propertyAt(3)->getProp().getOwners()->getId(); }
    TradingCardWindow& trading() { return windows().trading; }
};

TEST_F(ClickHoles, ABuyClickDuringAWalkPastGoSeesTheRingAndBuysNothing) {
    ASSERT_NO_FATAL_FAILURE(annBackOnHerCell34());
    std::vector<Integer> seen;
    rec.duringWaitTicks = 2;  // a step of the walk
    rec.duringWait = [&] {
        seen.push_back(seat(0).getPosition());
        onCard("buy");
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

// The purchase card of the cell Ann stood on is left up while she throws onto the luxury
// tax: Forget or Buy on it only closes it, and the tax is still to be paid.
class StaleCardOverTheTax : public ClickHoles, public ::testing::WithParamInterface<const char*> {};

TEST_P(StaleCardOverTheTax, LeavesTheTaxDue) {
    ASSERT_NO_FATAL_FAILURE(annBackOnHerCell34());
    const Integer before = seat(0).getBalance();
    nextThrow(1, 3);  // 34 to 38, the luxury tax
    roll();
    ASSERT_EQ(seat(0).getPosition(), 38);
    onCard(GetParam());
    EXPECT_EQ(board().propertyAt(34)->getProp().getOwners(), nullptr);
    EXPECT_EQ(seat(0).getBalance(), before);  // nothing bought, the tax not yet paid
    EXPECT_FALSE(seat(0).getDidAction());
    endTurn();
    EXPECT_EQ(main().Label2(), "Ann");  // the tax holds the turn
}

INSTANTIATE_TEST_SUITE_P(ForgetOrBuy, StaleCardOverTheTax, ::testing::Values("forget", "buy"));

// Bob's offer for Ann's street waits on the trading card into Cat's turn; Cat's rent card
// for it is up when Ann takes the offer. Pay Rent on that card pays nobody; the rent then
// goes to the new owner.
TEST_F(ClickHoles, PayRentOnACardWhoseCellChangedHandsPaysNeitherOwner) {
    ASSERT_NO_FATAL_FAILURE(annOwnsSaintJacques());
    nextThrow(2, 4);  // Bob to 6, which he lets go, then offers 150 for Saint-Jacques
    roll();
    onCard("forget");
    askFor(3, "150");
    endTurn();
    ASSERT_TRUE(trading().isVisible());
    nextThrow(1, 2);  // Cat onto Saint-Jacques
    roll();
    ASSERT_TRUE(cardOffers("payRent"));
    const Integer rent = board().propertyAt(3)->getRent();
    click([&] { trading().doneDeal_Click(); });
    ASSERT_EQ(ownerOf3(), 1);
    onCard("payRent");
    EXPECT_FALSE(cardUp());
    EXPECT_EQ(seat(0).getBalance(), 1400 + 150);
    EXPECT_EQ(seat(1).getBalance(), 1500 - 150);
    EXPECT_EQ(seat(2).getBalance(), 1500);
    EXPECT_FALSE(seat(2).getDidAction());
    endTurn();  // the landing comes back, owed to Bob
    ASSERT_TRUE(cardOffers("payRent"));
    onCard("payRent");
    EXPECT_EQ(seat(0).getBalance(), 1400 + 150);
    EXPECT_EQ(seat(1).getBalance(), 1500 - 150 + rent);
    EXPECT_EQ(seat(2).getBalance(), 1500 - rent);
}

// Trade on a card shown while Ann owned the street, after she sold it to the one looking:
// no deal opens with a seller who no longer owns it.
TEST_F(ClickHoles, TradeOnACardWhoseCellChangedHandsOpensNoDeal) {
    ASSERT_NO_FATAL_FAILURE(annOwnsSaintJacques());
    askFor(3, "150");
    click([&] { main().cell_Click(3); });  // Bob looks at the street again
    ASSERT_TRUE(cardOffers("trade"));
    doneDeal();
    ASSERT_EQ(ownerOf3(), 1);
    onCard("trade");
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(seat(0).getBalance(), 1400 + 150);
    EXPECT_EQ(seat(1).getBalance(), 1500 - 150);
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

// A deal left up, or asked from a property card left up, by a buyer who has since gone
// bankrupt does nothing: the buyer has nothing left to deal with.
TEST_F(ClickHoles, ADealOfABuyerWhoWentBankruptDoesNothing) {
    ASSERT_NO_FATAL_FAILURE(annOwnsSaintJacques());
    askFor(3, "150");  // the owner's face waits for Ann
    ASSERT_EQ(trading().face(), TradeFace::Owner);
    click([&] { main().cell_Click(3); });  // and Bob looks at the street again
    ASSERT_TRUE(cardOffers("trade"));
    ASSERT_NO_FATAL_FAILURE(goBankrupt(1));
    click([&] { trading().doneDeal_Click(); });
    EXPECT_FALSE(trading().isVisible());
    onCard("trade");
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(ownerOf3(), 0);
    EXPECT_EQ(seat(0).getBalance(), 1400);
}

// A sum is bound on both sides: the seller's balance when it is offered, the buyer's when
// the deal is done, after a fall deep into debt.
TEST_F(ClickHoles, ASumBeyondWhatABalanceHoldsMakesNoTrade) {
    ASSERT_NO_FATAL_FAILURE(annOwnsSaintJacques());
    askFor(3, "32000");
    EXPECT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().face(), TradeFace::Buyer);
    EXPECT_EQ(ownerOf3(), 0);
    EXPECT_EQ(seat(0).getBalance(), 1400);
    EXPECT_EQ(main().Label1(),
              "No trade: that sum would take a balance past what the bank can count");

    typeSum("5000");  // another sum is taken, beyond Bob's cash
    click([&] { trading().wantIt_Click(); });
    ASSERT_EQ(trading().face(), TradeFace::Owner);
    seat(1).debit(31000);  // Bob falls to -29500 before Ann answers
    click([&] { trading().doneDeal_Click(); });
    EXPECT_FALSE(trading().isVisible());
    EXPECT_EQ(ownerOf3(), 0);
    EXPECT_EQ(seat(0).getBalance(), 1400);
    EXPECT_EQ(seat(1).getBalance(), -29500);

    seat(1).credit(31000);
    askFor(3, "150");
    click([&] { trading().doneDeal_Click(); });
    EXPECT_EQ(ownerOf3(), 1);
    EXPECT_EQ(seat(0).getBalance(), 1550);
}

// The end window reads the winner off the panel; the last row in use may be a bankrupt's.
TEST_F(ClickHoles, TheEndWindowNamesAWinnerWhoIsNotInTheLastRowUsed) {
    ASSERT_NO_FATAL_FAILURE(annOwnsSaintJacques());
    for (int loser : {1, 2}) {
        ASSERT_EQ(&board().getCurrPlayer(), &seat(loser));
        ASSERT_NO_FATAL_FAILURE(goBankrupt(loser));
    }
    ASSERT_TRUE(run->gameEnd().isVisible());
    EXPECT_EQ(run->gameEnd().Label1().caption, "Ann, the richest person in Kestrovia!");
    EXPECT_EQ(run->gameEnd().closingLine(), "The city is yours.");
}

}  // namespace
}  // namespace gw::test
