// SPDX-License-Identifier: GPL-3.0-or-later
// A game of a human and a computer told twice: in order by the History window, from what the
// rules tell the main window (messages, payments, purchases, cards, jail, mortgages and
// bankruptcy), and aloud by File > Voice, which reads each new message once enabled and
// stops when muted.
#include "RunFixture.h"
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

}  // namespace
}  // namespace gw::test
