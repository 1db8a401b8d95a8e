// SPDX-License-Identifier: GPL-3.0-or-later
// Turns as people play them, through clicks only: a tax paid after raising money on a
// property card, a trade between two humans that asks for more, both ways out of jail, and
// the buttons of the main window in every situation of a turn.
#include "RunFixture.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

class TurnByClicks : public RunFixture {
protected:
    // The jail card is the first drawn, "Go to jail" the second.
    TurnByClicks()
        : RunFixture({1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}) {}

    int soundsOf(SoundEffect effect) const {
        const std::string file(soundFile(effect));
        return static_cast<int>(std::count_if(rec.log.begin(), rec.log.end(), [&](const auto& l) {
            return l.ends_with(": " + file);
        }));
    }
};

TEST_F(TurnByClicks, ATaxTooHighIsRaisedByMortgagingFromThePropertyCardThenPaid) {
    seatAnnAndBob();
    seat(0).newlyOwn(*board().getCell(25));  // the metro station Vendome
    seat(0).debit(1470);                     // down to 30 on Go, where nothing is owed
    click([&] {
        seat(0).move(34, true);
        main().UpdateTurnPlaying(TurnButtons::Roll);
    });

    nextThrow(1, 3);  // 34 to the Luxury Tax, 75
    roll();
    taxCellWindow& tax = windows().taxCard;
    ASSERT_TRUE(tax.isVisible());
    EXPECT_EQ(tax.Label1(), "Pay $75");
    EXPECT_TRUE(tax.payRent().visible);
    EXPECT_FALSE(tax.payRent().enabled);
    EXPECT_EQ(main().Label1(), "You owe $45");
    EXPECT_EQ(buttons(),
              (Lines{"rollDice*", "endTurn"}));  // the throw's end clears the debt layout

    click([&] { main().cell_Click(25); });  // her station: the card offers a mortgage
    ASSERT_TRUE(cardOffers("Mortgage(0)"));
    onCard("Mortgage(0)");
    EXPECT_EQ(seat(0).getBalance(), 180);
    EXPECT_TRUE(board().propertyAt(25)->getProp().isMortgaged2());

    endTurn();  // the tax is still due: its card comes back, now payable
    EXPECT_EQ(main().Label2(), "Ann");
    ASSERT_TRUE(tax.isVisible());
    ASSERT_TRUE(tax.payRent().isOpen());
    click([&] { tax.payRent_Click(); });
    EXPECT_FALSE(tax.isVisible());
    EXPECT_EQ(seat(0).getBalance(), 105);
    endTurn();
    EXPECT_EQ(main().Label2(), "Bob");
}

TEST_F(TurnByClicks, ACellDealtWithBeforeTheThrowLeavesTheLandingStillDue) {
    seatAnnAndBob();
    throwAndPass(1, 2);           // Ann to Saint-Jacques, which she leaves to the bank
    buyWhereTheThrowLands(2, 4);  // Bob buys cell 6
    endTurn();

    // Before her throw Ann clicks the cell under her token: its card comes up again and
    // she leaves it again, which deals with that cell.
    click([&] { main().cell_Click(3); });
    ASSERT_TRUE(cardOffers("forget"));
    onCard("forget");
    ASSERT_TRUE(seat(0).getDidAction());

    nextThrow(1, 2);  // on to Bob's street: its rent is due all the same
    roll();
    ASSERT_TRUE(cardOffers("payRent"));
    endTurn();
    EXPECT_EQ(main().Label1(), "Ann, its your turn to play.");
    EXPECT_EQ(board().getCurrPlayerIndex(), 0);
    ASSERT_TRUE(cardOffers("payRent"));
    const Integer before = seat(1).getBalance();
    onCard("payRent");
    EXPECT_GT(seat(1).getBalance(), before);
    EXPECT_EQ(seat(0).getBalance() + seat(1).getBalance(), 1500 + before);
    endTurn();
    EXPECT_EQ(board().getCurrPlayerIndex(), 1);
}

// What each sum and answer does is the trading card's own test; here the talk runs on clicks
// between the turns and the main window marks the new owner.
TEST_F(TurnByClicks, TwoHumansTradeAfterTheOwnerAsksForMore) {
    seatAnnAndBob();
    buyWhereTheThrowLands(1, 2);  // Ann buys Saint-Jacques for 100
    endTurn();

    TradingCardWindow& trading = windows().trading;
    askFor(3, "120");
    ASSERT_EQ(trading.face(), TradeFace::Owner);
    typeSum("180");
    click([&] { trading.wantMore_Click(); });
    ASSERT_TRUE(trading.isVisible());
    EXPECT_EQ(trading.Label4().caption, "180");
    doneDeal();
    EXPECT_FALSE(trading.isVisible());
    EXPECT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(1));
    EXPECT_EQ(main().ownerMark(3), 1);  // Bob's token
    EXPECT_EQ(seat(0).getBalance(), 1400 + 180);
    EXPECT_EQ(seat(1).getBalance(), 1500 - 180);
}

TEST_F(TurnByClicks, TheJailCardTakesAnnOutAndTheThrowFollowsAtOnce) {
    seatAnnAndBob();
    throwAndPass(3, 4);  // Ann draws the jail card on cell 7 and keeps it
    ASSERT_TRUE(seat(0).hasGoJFC());
    throwAndPass(1, 2);
    throwAndPass(6, 4);  // cell 17: "Go to jail"
    ASSERT_TRUE(seat(0).IsInJail());
    throwAndPass(1, 2);

    EXPECT_EQ(main().Label2(), "Ann");
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*", "pay50Rent", "useJFLCard"}));
    rec.log.clear();
    nextThrow(1, 2);
    click([&] { main().useJFLCard_Click(); });
    EXPECT_FALSE(seat(0).IsInJail());
    EXPECT_FALSE(seat(0).hasGoJFC());
    EXPECT_EQ(seat(0).getPosition(), 13);
    EXPECT_EQ(seat(0).getBalance(), 1500);
    EXPECT_EQ(soundsOf(SoundEffect::DiceRoll), 0);  // the card throws without the dice sound
    EXPECT_FALSE(main().useJFLCard().visible);
}

// Pay 50 is closed on 49 and open on exactly 50, which it leaves at 0.
TEST_F(TurnByClicks, PayingFiftyFromExactlyFiftyLeavesJailAndThrows) {
    seatAnnAndBob();
    throwAndPass(3, 3);  // Wellington, and Ann again
    throwAndPass(4, 4);  // Saint-Paul
    throwAndPass(5, 5);  // the third double: jail
    ASSERT_TRUE(seat(0).IsInJail());
    for (const int balance : {49, 50}) {  // set in Bob's turn, before hers
        nextThrow(1, 2);
        roll();
        if (cardOffers("forget")) onCard("forget");
        seat(0).debit(static_cast<Integer>(seat(0).getBalance() - balance));
        endTurn();
        if (balance == 50) break;
        EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*", "pay50Rent*"}));
        throwAndPass(1, 2);  // no double: Ann stays in jail
        ASSERT_TRUE(seat(0).IsInJail());
    }

    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*", "pay50Rent"}));
    rec.log.clear();
    nextThrow(2, 4);
    click([&] { main().pay50Rent_Click(); });
    EXPECT_FALSE(seat(0).IsInJail());
    EXPECT_EQ(seat(0).getBalance(), 0);
    EXPECT_EQ(seat(0).getPosition(), 16);
    EXPECT_EQ(soundsOf(SoundEffect::DiceRoll), 0);  // leaves and throws in the one click
    EXPECT_FALSE(main().pay50Rent().visible);
}

// Each situation of a turn and the buttons it shows; a '*' marks a closed one.
TEST_F(TurnByClicks, TheMainWindowShowsTheButtonsOfEachSituation) {
    addPlayer("Ann", 0);
    addPlayer("Robot", 1, true);
    letsStart();
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"})) << "human to roll";

    Lines walking;
    rec.duringWaitTicks = 2;  // a step of the walk
    rec.duringWait = [&] { walking = buttons(); };
    buyWhereTheThrowLands(1, 2);
    EXPECT_EQ(walking, (Lines{"rollDice*", "endTurn*"})) << "token walking";
    EXPECT_EQ(buttons(), (Lines{"rollDice*", "endTurn"})) << "human has rolled";

    // The computer, down to 2, lands on Ann's street: its card waits with the debt shown.
    seat(1).debit(1498);
    nextThrow(1, 2);
    Lines computerInDebt;
    bool rollDiceOpenInDebt = true;
    rec.duringWaitTicks = kComputerThinkTicks;
    rec.duringWait = [&] {
        computerInDebt = buttons();
        rollDiceOpenInDebt = main().rollDice().enabled;
    };
    endTurn();
    EXPECT_EQ(computerInDebt, (Lines{"endTurn*", "declareBank*"})) << "computer in debt";
    EXPECT_FALSE(rollDiceOpenInDebt);
    EXPECT_TRUE(seat(1).isBankrupt2());
    EXPECT_TRUE(run->gameEnd().isVisible());
}

TEST_F(TurnByClicks, AComputersTurnClosesBothButtonsAndAHumanInDebtSeesOnlyBankruptcy) {
    addPlayer("Robot", 1, true);
    addPlayer("Ann", 0);
    Lines computerTurn;
    rec.duringWaitTicks = 2;
    rec.duringWait = [&] { computerTurn = buttons(); };
    letsStart();  // the computer plays first
    EXPECT_EQ(computerTurn, (Lines{"rollDice*", "endTurn*"})) << "computer's turn";
    ASSERT_EQ(main().Label2(), "Ann");
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"})) << "human after the computer";

    seat(1).debit(1501);  // a debt that stands before her throw
    EXPECT_EQ(buttons(), Lines{"declareBank"}) << "human in debt";
}

// Short of a rent, only bankruptcy is offered; the test of the rent, not the sign of the
// balance, decides. Bankruptcy then ends a game of two.
TEST_F(TurnByClicks, ARentShortfallShowsOnlyBankruptcyWhichEndsATwoPlayerGame) {
    seatAnnAndBob();
    seat(1).newlyOwn(*board().getCell(3));  // rent 10
    seat(0).debit(1495);
    nextThrow(1, 2);  // Ann, with 5, onto it
    roll();
    EXPECT_EQ(main().Label1(), "You cannot pay the rent, you must get $5");
    seat(0).credit(5);
    EXPECT_EQ(buttons(), (Lines{"rollDice*", "endTurn"}));
    seat(0).debit(1);
    EXPECT_EQ(buttons(), Lines{"declareBank"});
    rec.log.clear();
    click([&] { main().declareBank_Click(); });
    EXPECT_TRUE(seat(0).isBankrupt2());
    EXPECT_TRUE(run->gameEnd().isVisible());
    EXPECT_FALSE(main().isVisible());
    EXPECT_FALSE(main().bigToken(0).visible);
    EXPECT_EQ(main().panel(0).balance.caption, "Bankrupt");
    EXPECT_EQ(soundsOf(SoundEffect::Bankrupt), 1);
}

}  // namespace
}  // namespace gw::test
