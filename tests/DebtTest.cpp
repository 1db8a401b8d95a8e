// Rent, taxes, worth and bankruptcy: what is due, who can pay, and where a bankrupt
// player's cells go.
#include "GameFixture.h"

namespace gw::test {
namespace {

class Debt : public GameFixture {
protected:
    Debt() {
        ann = &addHuman("Ann", 1);
        bob = &addHuman("Bob", 2);
        cat = &addComputer("Cat", 3);
    }
    player* ann;
    player* bob;
    player* cat;
};

TEST_F(Debt, AHumanPaysTheExactRentAndNotOneDollarMore) {
    give(*bob, {1});
    placeAt(*ann, 1);
    setBalance(*ann, 9);
    EXPECT_EQ(ann->canPayRent(1), 0);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 0);
    EXPECT_EQ(bob->getBalance(), 1509);
    const std::vector<std::string> sounds = {"sound: pay.wav", "sound: buy.wav"};
    EXPECT_EQ(rec.only({"sound"}), sounds);

    setBalance(*ann, 8);
    EXPECT_EQ(ann->canPayRent(1), 1);
    EXPECT_TRUE(rec.has("showNegBalance(true)"));
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 8);
}

TEST_F(Debt, TheTestUsesTheBareRentButTheHotelRentIsCharged) {
    give(*bob, {37, 39});
    putHotels(39, 4);
    placeAt(*ann, 39);
    setBalance(*ann, 100);
    EXPECT_EQ(ann->canPayRent(39), 0);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), -1150);
    EXPECT_EQ(bob->getBalance(), 1500 + 1250);
}

TEST_F(Debt, AComputerPaysInFullEvenIntoDebtButNotOnAMortgage) {
    give(*ann, {37});
    placeAt(*cat, 37);
    setBalance(*cat, 10);
    cat->payRent();
    EXPECT_EQ(cat->getBalance(), -30);
    EXPECT_EQ(ann->getBalance(), 1540);
    prop(37).Mortgage();
    cat->payRent();
    EXPECT_EQ(cat->getBalance(), -30);
}

TEST_F(Debt, WorthCountsCashHalfOfMortgagesPricesAndHotelsAtCost) {
    setBalance(*ann, 100);
    give(*ann, {1, 3});
    prop(1).Mortgage();
    putHotels(3, 2);
    EXPECT_EQ(ann->calcAssets(), 100 + 45 + 100 + 120);
}

TEST_F(Debt, IncomeTaxIsTheLesserOfTwoHundredAndATenthOfWorth) {
    placeAt(*ann, 4);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 1350);  // a tenth of 1500
    setBalance(*bob, 1990);
    give(*bob, {1});  // worth 2080
    placeAt(*bob, 4);
    bob->payRent();
    EXPECT_EQ(bob->getBalance(), 1790);
    setBalance(*ann, 360);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 324);
    setBalance(*ann, 0);
    EXPECT_EQ(ann->canPayTax(4), 0);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 0);
}

TEST_F(Debt, LuxuryTaxIsAlwaysSeventyFiveAndAHumanShortPaysNothing) {
    placeAt(*ann, 38);
    setBalance(*ann, 74);
    EXPECT_EQ(ann->canPayTax(38), 1);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 74);
    setBalance(*ann, 75);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 0);
    placeAt(*cat, 38);
    setBalance(*cat, 10);
    cat->payRent();
    EXPECT_EQ(cat->getBalance(), -65);
}

TEST_F(Debt, TheTaxCardShowsTheFlatSumWhileTheLesserIsCharged) {
    placeAt(*ann, 4);
    board->getCell(4)->doAction(*ann);
    EXPECT_EQ(windows.taxCard.Label1(), "Pay $200");
    windows.taxCard.payRent_Click();
    EXPECT_EQ(ann->getBalance(), 1350);
    EXPECT_TRUE(ann->getDidAction());
}

TEST_F(Debt, BankruptcyToACreditorHandsOverEveryCellAsItStands) {
    give(*ann, {1, 3, 5});
    putHotels(3, 3);
    prop(5).Mortgage();
    give(*bob, {39});
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

TEST_F(Debt, BankruptcyOnAMortgagedCellStillPaysThatOwnerInCells) {
    give(*ann, {1});
    give(*bob, {39});
    prop(39).Mortgage();
    placeAt(*ann, 39);
    ann->declareBankruptcy();
    EXPECT_EQ(prop(1).getOwners(), bob);
}

TEST_F(Debt, BankruptcyWithNoCreditorReturnsCleanCellsToTheBank) {
    give(*ann, {1, 3, 5});
    putHotels(3, 3);
    prop(5).Mortgage();
    placeAt(*ann, 4);
    ann->declareBankruptcy();
    for (Integer c : {1, 3, 5}) EXPECT_EQ(prop(c).getOwners(), nullptr);
    EXPECT_EQ(street(3).getHotelCount(), 0);
    EXPECT_FALSE(prop(5).isMortgaged2());
    EXPECT_TRUE(bob->canBuy(5));
    const std::vector<std::string> cellThree = {"showMort(3)", "showHotel(3)", "showOwner(3)"};
    EXPECT_EQ(rec.only({"showMort(3)", "showHotel(3)", "showOwner(3)"}), cellThree);
    EXPECT_EQ(rec.count("sound: Bankrupt.wav"), 0);  // played by the window, not recorded here
    EXPECT_TRUE(rec.has("showBankRupt"));
}

TEST_F(Debt, ABankruptOnHisOwnCellHasNoCreditor) {
    give(*ann, {1});
    placeAt(*ann, 1);
    EXPECT_EQ(ann->isInDebtTo(), nullptr);
    ann->declareBankruptcy();
    EXPECT_EQ(prop(1).getOwners(), nullptr);
}

TEST_F(Debt, TheHeldJailCardIsLostWithItsBankruptHolder) {
    board->getCell(2)->doAction(*ann);  // draws "Go to jail": the deck is in type order
    board->getCell(2)->doAction(*bob);  // draws the jail card
    ASSERT_TRUE(bob->hasGoJFC());
    board->endTurn();
    bob->declareBankruptcy();
    EXPECT_TRUE(bob->hasGoJFC());
    EXPECT_FALSE(board->getJFLDeck().getInDeck());
}

TEST(GameEnd, TheSecondToLastBankruptcyEndsTheGameAndStartsNoTurn) {
    Recorder rec;
    Windows windows(rec, rec, rec);
    Board board(windows, std::make_unique<SeededRandom>(11));
    board.init();
    player& ann = board.addPlayer("Ann", false, 0);
    player& cat = board.addPlayer("Cat", true, 1);
    ann.declareBankruptcy();
    EXPECT_TRUE(rec.has("showGameEnd"));
    EXPECT_EQ(&board.getCurrPlayer(), &cat);
    EXPECT_EQ(board.countSolvent(), 1);
    // The survivor is a computer, yet no turn of his is played.
    EXPECT_EQ(rec.log.back(), "UpdateTurnPlaying(2)");
    EXPECT_FALSE(rec.has("sound: DICEROLL.wav"));
}

}  // namespace
}  // namespace gw::test
