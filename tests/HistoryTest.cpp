// SPDX-License-Identifier: GPL-3.0-or-later
// A game told: in order by the History window, from what the rules tell the main window
// (messages, payments, purchases, cards, jail, mortgages and bankruptcy); aloud by File >
// Voice, which reads each new message once enabled and stops when muted; and as the end
// window's story, the worth of each player after every round, purchases, trades, hotels,
// rents and bankruptcies (the story of a whole seeded game is checked with the game watched
// again).
#include "RunFixture.h"
#include "windows/GameStory.h"
#include "windows/JFLCardWindow.h"

namespace gw::test {
namespace {

class Told : public RunFixture {
protected:
    Told() {
        run->setVoice(voice);
        addPlayer("Ann", 1);
        addPlayer("Robot", 2, true);
        letsStart();
    }
    const History& history() { return run->history(); }
    Narrator& narrator() { return run->narrator(); }
    // Each entry as "round name: text", from the first one at or after `from`.
    Lines told(std::size_t from = 0) {
        Lines lines;
        const auto& all = history().entries();
        for (std::size_t i = from; i < all.size(); ++i) {
            lines.push_back(std::to_string(all[i].round) + " " + all[i].name + ": " + all[i].text);
        }
        return lines;
    }
    // Ann throws onto Saint-Jacques and buys it; the computer throws onto Outremont.
    void scriptedTurn() {
        buyWhereTheThrowLands(1, 2);
        nextThrow(2, 3);
        endTurn();
    }

    RecordedVoice voice;
};

TEST_F(Told, TheHistoryTellsAGameOfAHumanAndAComputerInOrder) {
    scriptedTurn();
    EXPECT_TRUE(voice.said.empty());  // the voice says nothing until enabled
    nextThrow(1, 3);                  // Ann onto the JFL cell (7)
    roll();
    if (windows().jflCard.isVisible()) click([&] { windows().jflCard.Ok_Click(); });
    click([&] { main().cell_Click(3); });
    onCard("Mortgage(0)");
    click([&] { seat(0).debit(3000); });
    click([&] { main().declareBank_Click(); });
    EXPECT_EQ(told(), (Lines{
                          "1 Ann: Let the game begin!",
                          "1 Ann: pays $100",
                          "1 Ann: buys Saint-Jacques",
                          "1 Ann: Ann has bought Saint-Jacques",
                          "1 Computer2: pays $300",
                          "1 Computer2: buys Outremont",
                          "2 Ann: Ann, its your turn to play.",
                          "2 Ann: draws a JFL card: Go to jail",
                          "2 Ann: Go to jail!",
                          "2 Ann: goes to jail",
                          "2 Ann: Ann, you are in jail. Please roll a double or pay 50 to get out!",
                          "2 Ann: receives $50",
                          "2 Ann: mortgages Saint-Jacques",
                          "2 Ann: pays $3000",
                          "2 Ann: Saint-Jacques goes back to the bank",
                          "2 Ann: goes bankrupt",
                      }));
    EXPECT_EQ(history().entries()[1].kind, HistoryEntry::Kind::Payment);
    EXPECT_EQ(history().entries()[7].kind, HistoryEntry::Kind::Card);
    EXPECT_EQ(history().entries().back().kind, HistoryEntry::Kind::Bankruptcy);
    EXPECT_EQ(history().entries()[4].token, 2);
}

TEST_F(Told, ANewGameStartsTheHistoryAfresh) {
    nextThrow(1, 2);
    roll();
    EXPECT_FALSE(history().entries().empty());
    click([&] { run->history().History_Click(); });
    EXPECT_TRUE(history().isVisible());
    click([&] { seat(0).debit(3000); });
    click([&] { main().declareBank_Click(); });
    click([&] { run->gameEnd().Command1_Click(); });
    EXPECT_FALSE(history().isVisible());
    addPlayer("Bea", 3);
    addPlayer("Cid", 4);
    letsStart();
    EXPECT_EQ(told(), (Lines{"1 Bea: Let the game begin!"}));
}

TEST_F(Told, TheVoiceReadsTheMessagesOfAScriptedTurnInOrder) {
    EXPECT_FALSE(narrator().isEnabled());
    click([&] { narrator().Enable1_Click(); });
    scriptedTurn();
    EXPECT_EQ(voice.said, (std::vector<std::string>{"Ann has bought Saint-Jacques",
                                                    "Ann, its your turn to play."}));
}

TEST_F(Told, MuteStopsTheSentenceAndTheNextOnes) {
    click([&] { narrator().Enable1_Click(); });
    buyWhereTheThrowLands(1, 2);
    click([&] { narrator().Mute1_Click(); });
    EXPECT_EQ(voice.stops, 1);
    nextThrow(2, 3);
    endTurn();
    EXPECT_EQ(voice.said, (std::vector<std::string>{"Ann has bought Saint-Jacques"}));
}

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
    doneDeal();
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
