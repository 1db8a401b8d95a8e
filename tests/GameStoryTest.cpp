// SPDX-License-Identifier: GPL-3.0-or-later
// The story of a game as the end window tells it: the worth of each player after every
// round, purchases, trades, hotels, rents and bankruptcies, from a scripted game of two
// humans and from whole seeded games of humans and computers.
#include "RunFixture.h"
#include "SteadyHumans.h"
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

// Whole games: one line per player with a point a round, the bankrupt at 0 from the round
// they fell in, the winner ending at his worth, and every rent paid received by someone.
TEST(GameStoryGames, EveryRoundHasAPointAndEveryRentBothSides) {
    for (const std::uint64_t seed : {3U, 11U, 29U}) {
        SilentSound sound;
        InstantDelay delay;
        RecordedMessageBox boxes;
        GameRun run(sound, delay, boxes, std::make_unique<SeededRandom>(seed));
        run.start();
        seatPlayers(run, {{"Ann", false}, {"Computer1", true}, {"Computer2", true}});
        ASSERT_EQ(run.board().getNumPlayer(), 3);
        ASSERT_TRUE(playToTheEnd(run)) << "seed " << seed;
        const GameStory& story = run.story();
        EXPECT_TRUE(story.isOver());
        ASSERT_GT(story.roundsPlayed(), 3);
        long long paid = 0;
        long long received = 0;
        int bankrupt = 0;
        for (std::size_t id = 0; id < story.players().size(); ++id) {
            const StoryPlayer& p = story.players()[id];
            ASSERT_EQ(p.worth.size(), static_cast<std::size_t>(story.roundsPlayed()) + 1);
            EXPECT_EQ(p.worth.front(), 1500);
            paid += p.rentPaid;
            received += p.rentReceived;
            player& seat = *run.board().getPlayer(static_cast<Integer>(id));
            EXPECT_EQ(p.bankruptAfterRound > 0, seat.isBankrupt2());
            if (p.bankruptAfterRound > 0) {
                ++bankrupt;
                EXPECT_LE(p.bankruptAfterRound, story.roundsPlayed());
                EXPECT_EQ(p.worth.back(), 0);
            } else {
                EXPECT_EQ(p.worth.back(), seat.calcAssets());
            }
        }
        EXPECT_EQ(bankrupt, 2);
        EXPECT_EQ(paid, received);
        EXPECT_GT(paid, 0);
        EXPECT_GT(story.largestRent().amount, 0);
        EXPECT_LE(story.largestRent().amount, paid);
        EXPECT_GT(story.purchases(), 5);
    }
}

}  // namespace
}  // namespace gw::test
