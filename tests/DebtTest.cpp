// SPDX-License-Identifier: GPL-3.0-or-later
// Rent, taxes and the tax card, worth and bankruptcy: what is due, who can pay, and where
// a bankrupt player's cells go.
#include "GameFixture.h"
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

}  // namespace
}  // namespace gw::test
