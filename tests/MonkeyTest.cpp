// SPDX-License-Identifier: GPL-3.0-or-later
// The random player: random clicks through whole runs of the program on a few seeds, its
// watch on hotels, its command line, and the books it keeps beside a game of people (a sale
// at a typed sum, a mortgage clicked while the token walks, and money that no rule moved).
#include <gtest/gtest.h>

#include <vector>

#include "CommandLine.h"
#include "GameFixture.h"
#include "Invariants.h"
#include "MoneyBooks.h"
#include "Monkey.h"
#include "MonkeyOptions.h"
#include "RunFixture.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

TEST(Monkey, RandomClicksKeepEveryInvariantThroughWholeGames) {
    for (std::uint64_t seed : {1u, 2u, 3u}) {
        const monkey::MonkeyResult result = monkey::runMonkey(seed, 6000);
        EXPECT_EQ(result.failure, "") << "seed " << seed;
        EXPECT_EQ(result.steps, 6000);
        EXPECT_GT(result.games, 0) << "seed " << seed;
    }
}

// Hotels may outlive their district, sold off street by street, but never rise on one.
class HotelRises : public GameFixture {
protected:
    player& ann = addHuman("Ann", 1);
    player& bob = addHuman("Bob", 2);
    monkey::HotelWatch watch;
};

TEST_F(HotelRises, AreAllowedOnAWholeDistrictAndStayWhenItIsSoldApart) {
    give(ann, {1, 3});
    putHotels(3, 2);
    EXPECT_EQ(watch.check(*board), "");
    bob.doTrade(1, 50);  // Bob buys Saint-Antoine: Saint-Jacques keeps its two hotels
    EXPECT_EQ(watch.check(*board), "");
}

TEST_F(HotelRises, AreCaughtOnADistrictItsOwnerDoesNotHold) {
    give(ann, {1, 3});
    bob.doTrade(1, 50);
    putHotels(3, 1);
    EXPECT_EQ(watch.check(*board), "a hotel built on cell 3 of a district its owner does not hold");
}

monkey::MonkeyOptions parse(const std::string& line) {
    return parseLine(line, monkey::parseMonkeyOptions);
}

TEST(MonkeyOptions, AGoodLineGivesTheRunAskedForAndHelpStopsReading) {
    const monkey::MonkeyOptions o = parse("--steps 250 --seed 18446744073709551615");
    EXPECT_EQ(o.error, "");
    EXPECT_EQ(o.steps, 250);
    EXPECT_EQ(o.seed, 18446744073709551615ULL);
    EXPECT_EQ(parse("").steps, 100000);
    EXPECT_TRUE(parse("--help --steps x").help);
}

TEST(MonkeyOptions, EachBadValueGetsOneLineNamingTheOption) {
    const std::string steps = "a whole number from 1 to 1000000000";
    // The reader's other refusals, shared with the simulator, are checked with its options.
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"--steps 0", "--steps takes " + steps + ", not '0'"},
        {"--steps 1000000001", "--steps takes " + steps + ", not '1000000001'"},
        {"5", "'5' is not an option; options start with -- (see gildenway-monkey --help)"},
        {"--games 5", "--games is not an option; the options are --seed, --steps, --help"},
    };
    for (const auto& [line, error] : cases) EXPECT_EQ(parse(line).error, error) << line;
}

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
    doneDeal();
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
