// SPDX-License-Identifier: GPL-3.0-or-later
// Rent, taxes and the tax card, worth and bankruptcy: what is due, who can pay, and where a
// bankrupt player's cells go. A human in debt is told how much and the ways out, may have the
// sum raised as a computer would after saying yes, and the close box asks before leaving a
// game in progress. The plan of that helping hand is what autoMakeMoney does from the same
// position, planning touches nothing, and the plan carried out makes the same calls.
#include "GameFixture.h"
#include "RunFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/Question.h"
#include "windows/RaisePlan.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

class Debt : public TwoHumans {
protected:
    taxCellWindow& tax() { return windows.taxCard; }
    player* cat = &addComputer("Cat", 3);
};

TEST_F(Debt, AHumanPaysTheExactRentOrTaxAndNothingWhenShortAComputerPaysIntoDebt) {
    give(*bob, {1});
    placeAt(*ann, 1);
    setBalance(*ann, 9);
    EXPECT_EQ(ann->canPayRent(1), 0);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 0);
    EXPECT_EQ(bob->getBalance(), 1509);
    EXPECT_EQ(rec.only({"sound"}), (Lines{"sound: pay.wav", "sound: buy.wav"}));

    setBalance(*ann, 8);
    EXPECT_EQ(ann->canPayRent(1), 1);
    EXPECT_TRUE(rec.has("showNegBalance(true)"));
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 8);

    placeAt(*ann, 38);  // a tax of 75: short, a human pays nothing; a computer pays into debt
    setBalance(*ann, 74);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 74);
    placeAt(*cat, 38);
    setBalance(*cat, 10);
    cat->payRent();
    EXPECT_EQ(cat->getBalance(), -65);
}

// A tenth of 1500 is charged through the tax card.
TEST_F(Debt, IncomeTaxIsTheLesserOfTwoHundredAndATenthOfWorth) {
    setBalance(*cat, 100);  // worth: cash, half of a mortgaged price, prices and hotels at cost
    give(*cat, {1, 3});
    prop(1).Mortgage();
    putHotels(3, 2);
    EXPECT_EQ(cat->calcAssets(), 100 + 45 + 100 + 120);

    give(*bob, {39});  // worth 2000: a tenth is not less than 200
    placeAt(*bob, 4);
    bob->payRent();
    EXPECT_EQ(bob->getBalance(), 1300);
    setBalance(*ann, 360);
    placeAt(*ann, 4);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 324);
    setBalance(*ann, 0);
    EXPECT_EQ(ann->canPayTax(4), 0);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 0);
}

TEST_F(Debt, TaxCardShowsTheFlatSumButChargesTheLesserAndCloses) {
    land(*ann, 38);
    EXPECT_EQ(tax().picture(), TaxPicture::LuxuryTax);
    EXPECT_EQ(tax().Label1(), "Pay $75");
    land(*ann, 4);  // worth 1500: a tenth is 150
    EXPECT_TRUE(tax().isVisible());
    EXPECT_EQ(tax().picture(), TaxPicture::IncomeTax);
    EXPECT_EQ(tax().Label1(), "Pay $200");
    EXPECT_TRUE(tax().payRent().isOpen());
    tax().payRent_Click();
    EXPECT_EQ(ann->getBalance(), 1350);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(tax().isVisible());
    EXPECT_EQ(rec.log.back(), "setEnabled(true)");
}

TEST_F(Debt, TaxCardOpensPayForTheExactSumOnlyAndAgainWhenMoneyCameIn) {
    setBalance(*ann, 74);
    land(*ann, 38);
    EXPECT_EQ(shown("payRent", {&tax().payRent()}), Lines{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You owe $1"});
    setBalance(*ann, 75);
    board->endTurn();  // refused: the card comes back, with nothing owed
    EXPECT_EQ(rec.only({"showInfo"}),
              Lines{"showInfo: You must do something before you end your turn"});
    EXPECT_TRUE(tax().isVisible());
    EXPECT_TRUE(tax().payRent().isOpen());
    tax().payRent_Click();
    EXPECT_EQ(ann->getBalance(), 0);

    give(*ann, {39});
    setBalance(*ann, 56);  // worth 556: 55.6 rounds to 56
    land(*ann, 4);
    EXPECT_TRUE(tax().payRent().isOpen());
    setBalance(*ann, 55);  // worth 555: 55.5 rounds to the even 56
    land(*ann, 4);
    EXPECT_FALSE(tax().payRent().enabled);
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You owe $1"});
}

TEST_F(Debt, AComputerSeesTheTaxWithPayClosedUntilTheWaitEnds) {
    land(*cat, 38);
    EXPECT_EQ(tax().Label1(), "Pay $75");
    EXPECT_EQ(shown("payRent", {&tax().payRent()}), Lines{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{});
    rec.clear();
    tax().computerThink();
    EXPECT_FALSE(tax().isVisible());
    EXPECT_EQ(rec.log, (Lines{"wait 20", "setEnabled(true)"}));
    EXPECT_EQ(cat->getBalance(), 1500);  // the computer's own play charges it
}

TEST_F(Debt, BankruptcyToACreditorHandsOverEveryCellAsItStands) {
    give(*ann, {1, 3, 5});
    putHotels(3, 3);
    prop(5).Mortgage();
    give(*bob, {39});
    prop(39).Mortgage();  // a mortgaged cell still has an owner to pay
    placeAt(*ann, 39);
    setBalance(*ann, -200);
    EXPECT_EQ(ann->isInDebtTo(), bob);
    ann->declareBankruptcy();
    for (Integer c : {1, 3, 5}) EXPECT_EQ(prop(c).getOwners(), bob);
    EXPECT_EQ(street(3).getHotelCount(), 3);
    EXPECT_TRUE(prop(5).isMortgaged2());
    EXPECT_TRUE(bob->ownsStreetEntry(0, 0));
    EXPECT_FALSE(ann->ownsStreetEntry(0, 0));
    EXPECT_TRUE(ann->isBankrupt2());
    EXPECT_EQ(ann->getPosition(), 0);
    EXPECT_EQ(ann->getBalance(), -200);  // no money moves
    EXPECT_EQ(bob->getBalance(), 1500);
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_FALSE(rec.has("showGameEnd"));
}

TEST_F(Debt, BankruptcyOnHisOwnCellHasNoCreditorAndReturnsCleanCellsToTheBank) {
    give(*ann, {1, 3, 5});
    putHotels(3, 3);
    prop(5).Mortgage();
    placeAt(*ann, 1);
    EXPECT_EQ(ann->isInDebtTo(), nullptr);
    ann->declareBankruptcy();
    for (Integer c : {1, 3, 5}) EXPECT_EQ(prop(c).getOwners(), nullptr);
    EXPECT_EQ(street(3).getHotelCount(), 0);
    EXPECT_FALSE(prop(5).isMortgaged2());
    EXPECT_TRUE(bob->canBuy(5));
    const Lines cellThree = {"showMort(3)", "showHotel(3)", "showOwner(3)"};
    EXPECT_EQ(rec.only({"showMort(3)", "showHotel(3)", "showOwner(3)"}), cellThree);
    EXPECT_EQ(rec.count("sound: Bankrupt.wav"), 0);  // played by the window, not recorded here
    EXPECT_TRUE(rec.has("showBankRupt"));
}

class GameEnd : public GameFixture {};

TEST_F(GameEnd, TheSecondToLastBankruptcyEndsTheGameAndStartsNoTurn) {
    player& ann = addHuman("Ann");
    player& cat = addComputer("Cat");
    ann.declareBankruptcy();
    EXPECT_TRUE(rec.has("showGameEnd"));
    EXPECT_EQ(&board->getCurrPlayer(), &cat);
    // The survivor is a computer, yet no turn of his is played.
    EXPECT_EQ(rec.log.back(), "UpdateTurnPlaying(2)");
    EXPECT_FALSE(rec.has("sound: DICEROLL.wav"));
}

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
    EXPECT_FALSE(help().isShown());  // no word once nobody owes
    EXPECT_EQ(help().line(), "");
    EXPECT_FALSE(help().raiseForMe().visible);
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
