// SPDX-License-Identifier: GPL-3.0-or-later
// The story of a game of a human and a computer, told in order from what the rules tell
// the main window: messages, payments, purchases, cards, jail, mortgages and bankruptcy.
#include "RunFixture.h"
#include "windows/JFLCardWindow.h"

namespace gw::test {
namespace {

class HistoryRun : public RunFixture {
protected:
    HistoryRun() {
        addPlayer("Ann", 1);
        addPlayer("Robot", 2, true);
        letsStart();
    }
    const History& history() { return run->history(); }
    // Each entry as "round name: text", from the first one at or after `from`.
    Lines told(std::size_t from = 0) {
        Lines lines;
        const auto& all = history().entries();
        for (std::size_t i = from; i < all.size(); ++i) {
            lines.push_back(std::to_string(all[i].round) + " " + all[i].name + ": " + all[i].text);
        }
        return lines;
    }
};

TEST_F(HistoryRun, TellsAGameOfAHumanAndAComputerInOrder) {
    nextThrow(1, 2);  // Ann onto Saint-Jacques (3)
    roll();
    onCard("buy");
    nextThrow(2, 3);  // the computer onto Outremont (5)
    endTurn();
    nextThrow(1, 3);  // Ann onto the JFL cell (7)
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

TEST_F(HistoryRun, ANewGameStartsTheStoryAfresh) {
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

}  // namespace
}  // namespace gw::test
