// SPDX-License-Identifier: GPL-3.0-or-later
// The books that the random player keeps beside a game of people: a sale at a typed sum,
// a mortgage clicked while the token walks, and money that no rule moved.
#include "MoneyBooks.h"
#include "RunFixture.h"
#include "windows/TradingCardWindow.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

class Books : public RunFixture {
protected:
    Books() {
        run->watchMainWindow(books.window(), [this] { books.begin(board()); });
        seatAnnAndBob();
    }
    // The run hears the books to its end, so it goes first.
    ~Books() override { run.reset(); }

    monkey::MoneyBooks books;
};

TEST_F(Books, BalanceASaleAtATypedSumAndAMortgageClickedInsideAWalk) {
    buyWhereTheThrowLands(1, 2);  // Ann: Saint-Jacques, 3
    endTurn();
    EXPECT_EQ(books.check(), "");

    // Bob offers 7 for it and Ann takes it.
    askFor(3, "7");
    click([&] { windows().trading.doneDeal_Click(); });
    ASSERT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(1));

    // Bob is put on cell 34 and throws past Go; while his token walks he mortgages what he
    // bought. Those payments are read apart, so that the throw still reads as one: the dice,
    // the walk up to cell 39, Go money, the walk on.
    click([&] {
        seat(1).move(34, true);
        main().UpdateTurnPlaying(TurnButtons::Roll);
    });
    rec.duringWaitTicks = 2;  // a step of the walk
    rec.duringWait = [&] {
        books.readApart([&] {
            click([&] { main().cell_Click(3); });
            onCard("Mortgage(0)");
        });
    };
    nextThrow(4, 3);  // 34 to 1
    roll();
    ASSERT_TRUE(board().propertyAt(3)->getProp().isMortgaged2());
    EXPECT_EQ(books.check(), "");
    EXPECT_EQ(seat(0).getBalance() + seat(1).getBalance(), 3000 - 100 + 50 + 200);
}

TEST_F(Books, NameMoneyThatNoRuleMoved) {
    click([&] { seat(0).credit(100); });
    EXPECT_EQ(books.check(),
              "money moved that no rule explains: Ann +100 on cell 0 (GO) in the turn of Ann");
}

TEST_F(Books, NameARentPaidToThePlayerWhoDoesNotOwnTheCell) {
    buyWhereTheThrowLands(1, 2);  // Ann: Saint-Jacques, 3
    endTurn();
    nextThrow(1, 2);  // Bob lands on it
    roll();
    EXPECT_EQ(books.check(), "");
    const Integer rent = seat(1).getRent();
    click([&] {
        seat(1).debit(rent);
        seat(1).credit(rent);  // back to the payer instead of on to Ann
    });
    EXPECT_EQ(books.check(), "money moved that no rule explains: Bob -" + std::to_string(rent) +
                                 " on cell 3 (Saint-Jacques) in the turn of Bob");
}

}  // namespace
}  // namespace gw::test
