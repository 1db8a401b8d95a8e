// SPDX-License-Identifier: GPL-3.0-or-later
// A human in debt is told how much and the ways out, may have the sum raised as a computer
// would after saying yes, and the close box asks before leaving a game in progress.
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/Question.h"

namespace gw::test {
namespace {

class DebtHelpRun : public RunFixture {
protected:
    DebtHelpRun() {
        run->setQuestion(question);
        addPlayer("Ann", 1);
        addPlayer("Bob", 2);
        letsStart();
    }
    player& ann() { return seat(0); }
    player& bob() { return seat(1); }
    const DebtHelp& help() { return run->debtHelp(); }

    // Bob holds district 1 with four hotels on Saint-Jacques (3); Ann, with 100 left,
    // throws 1 and 2 onto it and pays the rent in full.
    void annPaysMoreThanSheHas() {
        bob().newlyOwn(*board().getCell(1));
        bob().newlyOwn(*board().getCell(3));
        for (int h = 0; h < 4; ++h) board().streetAt(3)->addHotel();
        ann().debit(1400);
        nextThrow(1, 2);
        roll();
        ASSERT_TRUE(card().payRent().isOpen());
        EXPECT_EQ(card().payTo().caption, "Rent goes to Bob");
        EXPECT_TRUE(card().payTo().visible);
        click([&] { card().payRent_Click(); });
        ASSERT_LT(ann().getBalance(), 0);
    }
    std::string owed() { return std::to_string(-static_cast<int>(ann().getBalance())); }

    ScriptedQuestion question;
};

TEST_F(DebtHelpRun, NoWordWhileNobodyOwes) {
    EXPECT_FALSE(help().isShown());
    EXPECT_EQ(help().line(), "");
    EXPECT_FALSE(help().raiseForMe().visible);
}

TEST_F(DebtHelpRun, ADebtWithNothingToSellNamesBankruptcyAndOffersNoHand) {
    annPaysMoreThanSheHas();
    EXPECT_TRUE(help().isShown());
    EXPECT_EQ(help().line(), "Ann, you are $" + owed() +
                                 " short. Mortgages and hotel sales cannot cover it: "
                                 "Declare Bankruptcy.");
    EXPECT_FALSE(help().raiseForMe().visible);
    EXPECT_EQ(buttons(), (Lines{"declareBank"}));
}

TEST_F(DebtHelpRun, TheHandAsksFirstAndDoesNothingOnNo) {
    for (Integer c : {5, 12, 15, 25, 28, 35}) ann().newlyOwn(*board().getCell(c));
    annPaysMoreThanSheHas();
    const Integer inDebt = ann().getBalance();
    EXPECT_EQ(help().line(), "Ann, you are $" + owed() +
                                 " short. Click your cells to mortgage them or sell hotels, "
                                 "or Declare Bankruptcy.");
    EXPECT_EQ(help().raiseForMe().caption, "Raise $" + owed() + " for me");
    EXPECT_TRUE(help().raiseForMe().isOpen());

    question.answers = {false};
    click([&] { run->debtHelp().raiseForMe_Click(); });
    ASSERT_EQ(question.asked.size(), 1U);
    EXPECT_NE(question.asked[0].find("mortgage Utility 1"), std::string::npos);
    EXPECT_EQ(ann().getBalance(), inDebt);
    EXPECT_FALSE(board().propertyAt(12)->getProp().isMortgaged2());
    EXPECT_TRUE(help().isShown());

    click([&] { run->debtHelp().raiseForMe_Click(); });  // Yes
    EXPECT_GE(ann().getBalance(), 0);
    EXPECT_TRUE(board().propertyAt(12)->getProp().isMortgaged2());
    EXPECT_FALSE(help().isShown());
    EXPECT_EQ(help().line(), "");
    EXPECT_FALSE(ann().isBankrupt2());
    EXPECT_EQ(buttons(), (Lines{"rollDice*", "endTurn"}));
}

TEST_F(DebtHelpRun, TheCloseBoxAsksDuringAGameAndPlaysOnAfterNo) {
    question.answers = {false};
    click([&] { run->closeMainWindow(); });
    EXPECT_EQ(question.asked, (std::vector<std::string>{"Leave the game in progress?"}));
    EXPECT_EQ(exits, 0);
    click([&] { run->closeMainWindow(); });
    EXPECT_EQ(exits, 1);
}

TEST(CloseBoxWithoutAGame, LeavesWithoutAQuestion) {
    RunRecorder rec;
    RecordedMessageBox boxes;
    ScriptedQuestion question;
    GameRun run(rec, rec, boxes, std::make_unique<SeededRandom>(1));
    run.setQuestion(question);
    bool exited = false;
    run.setOnExit([&] { exited = true; });
    run.start();
    run.click([&] { run.closeMainWindow(); });
    EXPECT_TRUE(exited);
    EXPECT_TRUE(question.asked.empty());
}

}  // namespace
}  // namespace gw::test
