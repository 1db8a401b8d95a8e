// SPDX-License-Identifier: GPL-3.0-or-later
// A human in debt is told how much and the ways out, may have the sum raised as a computer
// would after saying yes, and the close box asks before leaving a game in progress. The plan
// of that helping hand is what autoMakeMoney does from the same position, planning touches
// nothing, and the plan carried out makes the same calls.
#include "GameFixture.h"
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/Question.h"
#include "windows/RaisePlan.h"

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

class RaisePlanTest : public TwoHumans {
protected:
    // Utility 1 (12), Outremont (5), Wellington (6), and district 1 (1 and 3) with two
    // hotels on each street.
    void giveMixedHoldings() {
        give(*ann, {1, 3, 5, 6, 12});
        putHotels(1, 2);
        putHotels(3, 2);
    }
    static Lines asLines(const RaisePlan& plan) {
        Lines lines;
        for (const RaiseStep& s : plan.steps) {
            lines.push_back(
                std::string(s.kind == RaiseStep::Kind::Mortgage ? "showMort(" : "showHotel(") +
                std::to_string(s.cellId) + ")");
        }
        return lines;
    }
    Lines salesAndMortgages() const { return rec.only({"showHotel", "showMort"}); }
};

TEST_F(RaisePlanTest, ProposesWhatTheComputerWouldDoAndTouchesNothing) {
    giveMixedHoldings();
    setBalance(*ann, -400);
    const RaisePlan plan = planRaise(*ann);
    EXPECT_TRUE(plan.covers);
    EXPECT_EQ(ann->getBalance(), -400);
    EXPECT_FALSE(prop(12).isMortgaged2());
    EXPECT_EQ(street(1).getHotelCount(), 2);
    EXPECT_TRUE(rec.log.empty());
    // Utility first (100), then the metro station (150), then the bare street (65).
    ASSERT_GE(plan.steps.size(), 4U);
    EXPECT_EQ(plan.steps[0], (RaiseStep{RaiseStep::Kind::Mortgage, 12}));
    EXPECT_EQ(plan.steps[1], (RaiseStep{RaiseStep::Kind::Mortgage, 5}));
    EXPECT_EQ(plan.steps[2], (RaiseStep{RaiseStep::Kind::Mortgage, 6}));

    ann->autoMakeMoney(0);
    EXPECT_EQ(salesAndMortgages(), asLines(plan));
    EXPECT_EQ(ann->getBalance(), -400 + plan.raised);
    EXPECT_GE(ann->getBalance(), 0);
}

TEST_F(RaisePlanTest, CarriedOutItMakesTheSameSalesAndMortgagesAsTheComputer) {
    giveMixedHoldings();
    setBalance(*ann, -250);
    const RaisePlan plan = planRaise(*ann);
    carryOutRaise(*ann, plan);
    const Lines byHand = salesAndMortgages();
    const Integer balanceByHand = ann->getBalance();
    EXPECT_EQ(byHand, asLines(plan));
    // Same position again, this time for the computer's own operation.
    for (Integer c : {1, 3}) {
        while (street(c).getHotelCount() > 0) street(c).destroyHotel();
    }
    for (Integer c : {1, 3, 5, 6, 12}) prop(c).Unmortgage();
    putHotels(1, 2);
    putHotels(3, 2);
    setBalance(*ann, -250);
    ann->autoMakeMoney(0);
    EXPECT_EQ(salesAndMortgages(), byHand);
    EXPECT_EQ(ann->getBalance(), balanceByHand);
}

TEST_F(RaisePlanTest, HotelsAreSoldOnlyWhenMortgagesDoNotCover) {
    giveMixedHoldings();
    setBalance(*ann, -100);  // the utility's 100 is enough
    const RaisePlan plan = planRaise(*ann);
    EXPECT_TRUE(plan.covers);
    EXPECT_EQ(asLines(plan), (Lines{"showMort(12)"}));
    EXPECT_EQ(plan.raised, 100);
    EXPECT_EQ(describeRaise(*ann, plan), "To raise $100:\nmortgage Utility 1");
}

TEST_F(RaisePlanTest, ADebtBeyondEverythingGetsNoPlanAndNoBankruptcy) {
    give(*ann, {12});
    setBalance(*ann, -500);
    const RaisePlan plan = planRaise(*ann);
    EXPECT_FALSE(plan.covers);
    EXPECT_TRUE(plan.steps.empty());
    EXPECT_FALSE(ann->isBankrupt2());
    EXPECT_TRUE(rec.log.empty());
    carryOutRaise(*ann, plan);
    EXPECT_FALSE(prop(12).isMortgaged2());
}

}  // namespace
}  // namespace gw::test
