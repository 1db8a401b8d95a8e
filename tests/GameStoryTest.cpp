// SPDX-License-Identifier: GPL-3.0-or-later
// The story of a game as the end window tells it: the worth of each player after every
// round, purchases, trades, hotels, rents and bankruptcies, from a scripted game of two
// humans; the story of a whole seeded game is checked with the game watched again.
#include "RunFixture.h"
#include "windows/GameStory.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {
namespace {

class GameStoryTest : public RunFixture {
protected:
    const GameStory& story() const { return run->story(); }
};

TEST_F(GameStoryTest, AScriptedGameOfPurchasesRentAndATrade) {
    seatAnnAndBob();
    buyWhereTheThrowLands(1, 2);  // Ann: Saint-Jacques, $100
    endTurn();
    buyWhereTheThrowLands(2, 4);  // Bob: Wellington, $130
    endTurn();
    // Back to Ann: the first round is over. Worth counts a cell at its price.
    EXPECT_EQ(story().roundsPlayed(), 1);
    ASSERT_EQ(story().players().size(), 2U);
    EXPECT_EQ(story().players()[0].name, "Ann");
    EXPECT_EQ(story().players()[0].token, 0);
    EXPECT_EQ(story().players()[0].worth, (std::vector<long long>{1500, 1500}));
    EXPECT_EQ(story().players()[1].worth, (std::vector<long long>{1500, 1500}));
    EXPECT_EQ(story().purchases(), 2);

    nextThrow(1, 2);  // Ann from 3 to Bob's Wellington: rent
    roll();
    ASSERT_TRUE(cardOffers("payRent"));
    onCard("payRent");
    const long long rent = 1400 - seat(0).getBalance();
    ASSERT_GT(rent, 0);
    EXPECT_EQ(seat(1).getBalance(), 1370 + rent);
    endTurn();

    // Bob buys Saint-Jacques from Ann for $180 on the trading card.
    askFor(3, "180");
    click([&] { windows().trading.doneDeal_Click(); });
    ASSERT_EQ(board().propertyAt(3)->getProp().getOwners(), &seat(1));
    throwAndPass(1, 2);  // Bob from 6 to Centre (9), let go

    EXPECT_EQ(story().roundsPlayed(), 2);
    // Ann: 1400 - rent + 180, no cell; Bob: 1370 + rent - 180, Wellington and Saint-Jacques.
    EXPECT_EQ(story().players()[0].worth.back(), 1580 - rent);
    EXPECT_EQ(story().players()[1].worth.back(), 1190 + rent + 230);
    EXPECT_EQ(story().purchases(), 2);
    EXPECT_EQ(story().trades(), 1);
    EXPECT_EQ(story().hotelsBuilt(), 0);
    EXPECT_EQ(story().players()[0].rentPaid, rent);
    EXPECT_EQ(story().players()[0].rentReceived, 0);
    EXPECT_EQ(story().players()[1].rentReceived, rent);
    EXPECT_EQ(story().largestRent().amount, rent);
    EXPECT_EQ(story().largestRent().payer, 0);
    EXPECT_EQ(story().largestRent().owner, 1);
    const std::vector<std::string> figures = story().figureLines();
    ASSERT_EQ(figures.size(), 5U);
    EXPECT_EQ(figures[0], "Rounds played: 2");
    EXPECT_EQ(figures[1], "Purchases: 2, trades: 1, hotels built: 0");
    EXPECT_EQ(figures[2], "Largest rent: $" + std::to_string(rent) + ", Ann to Bob");
    EXPECT_EQ(figures[3], "Ann: rent paid $" + std::to_string(rent) + ", received $0");
    EXPECT_EQ(figures[4], "Bob: rent paid $0, received $" + std::to_string(rent));
    EXPECT_FALSE(story().isOver());
}

}  // namespace
}  // namespace gw::test
