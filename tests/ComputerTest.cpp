// SPDX-License-Identifier: GPL-3.0-or-later
// The computer's turn: leaving jail, buying, paying, releasing, raising money, building
// and trading, by its fixed thresholds.
#include "GameFixture.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {
namespace {

class Computer : public GameFixture {
protected:
    // Phases 1 and 2 of a turn on the cell under the token.
    void actAndSettle() {
        cpu->autoPlay(1);
        cpu->autoPlay(2);
    }
    player* cpu = &addComputer("Hal", 1);
    player* ann = &addHuman("Ann", 2);
    player* rival = &addComputer("Max", 3);
};

TEST_F(Computer, InJailUsesTheCardElsePaysFromFiftyElseThrowsForDoubles) {
    board->getCell(2)->doAction(*ann);  // "Go to jail" goes to Ann
    board->getCell(2)->doAction(*cpu);  // the jail card
    cpu->goToJail();
    setBalance(*cpu, 1000);
    nextThrow(1, 2);
    cpu->autoPlay(0);
    EXPECT_FALSE(cpu->IsInJail());
    EXPECT_FALSE(cpu->hasGoJFC());
    EXPECT_EQ(cpu->getBalance(), 1000);
    EXPECT_EQ(rec.log.back(), "sound: DICEROLL.wav");  // heard after the throw
    EXPECT_TRUE(rec.has("Showdice(1,2)"));

    cpu->goToJail();
    setBalance(*cpu, 49);
    nextThrow(1, 2);
    cpu->autoPlay(0);
    EXPECT_TRUE(cpu->IsInJail());
    EXPECT_EQ(cpu->getBalance(), 49);
    EXPECT_EQ(rec.log.front(), "sound: DICEROLL.wav");
    setBalance(*cpu, 50);
    nextThrow(1, 2);
    cpu->autoPlay(0);
    EXPECT_FALSE(cpu->IsInJail());
    EXPECT_EQ(cpu->getPosition(), 13);
    EXPECT_EQ(cpu->getBalance(), 0);
    EXPECT_EQ(rec.log.front(), "sound: pay.wav");
}

TEST_F(Computer, ReleasesFromFiveHundredTestedOnceBeforeTheScan) {
    give(*cpu, {5, 15, 25});
    for (Integer c : {5, 15, 25}) cpu->mortgageProp(c);
    placeAt(*cpu, 20);
    setBalance(*cpu, 499);
    cpu->autoPlay(1);
    EXPECT_TRUE(prop(5).isMortgaged2());
    setBalance(*cpu, 500);  // three releases of 165 each: the scan goes below 500
    cpu->autoPlay(1);
    for (Integer c : {5, 15, 25}) EXPECT_FALSE(prop(c).isMortgaged2());
    EXPECT_EQ(cpu->getBalance(), 5);
}

TEST_F(Computer, BuysOnlyWithThePriceInHandThenRaisesAHundredByMortgaging) {
    placeAt(*cpu, 12);
    setBalance(*cpu, 199);
    actAndSettle();
    EXPECT_EQ(prop(12).getOwners(), nullptr);
    EXPECT_FALSE(rec.has("sound: buy.wav"));
    EXPECT_EQ(cpu->getBalance(), 199);

    cpu->setDidAction(false);
    setBalance(*cpu, 200);
    actAndSettle();
    EXPECT_EQ(prop(12).getOwners(), cpu);
    EXPECT_TRUE(prop(12).isMortgaged2());  // the cell just bought
    EXPECT_EQ(cpu->getBalance(), 100);
    EXPECT_TRUE(cpu->getDidAction());
    EXPECT_EQ(rec.only({"sound"}), (Lines{"sound: buy.wav", "sound: pay.wav", "sound: buy.wav"}));
    EXPECT_EQ(rec.only({"wait"}), Lines{"wait 20"});
}

TEST_F(Computer, PaysRentInFullAndRaisesADebtAtZeroThenAtAHundred) {
    give(*ann, {15, 37, 39});
    prop(15).Mortgage();
    placeAt(*cpu, 15);
    actAndSettle();
    EXPECT_TRUE(rec.has("sound: pay.wav"));  // even on a mortgaged cell, with nothing paid
    EXPECT_EQ(cpu->getBalance(), 1500);
    EXPECT_TRUE(rec.has("wait 20"));  // the wait runs with no card up

    putHotels(39, 1);  // rent 250
    give(*cpu, {12, 28});
    placeAt(*cpu, 39);
    setBalance(*cpu, 20);
    actAndSettle();
    EXPECT_EQ(ann->getBalance(), 1750);
    // -230: both utilities (100 each) reach -30 only; then the metro-less streets: none.
    EXPECT_TRUE(cpu->isBankrupt2());
    EXPECT_EQ(prop(12).getOwners(), ann);  // the creditor takes the cells
}

TEST_F(Computer, ThresholdsOfTradeBuildAndRaise) {
    give(*cpu, {1, 3});
    placeAt(*cpu, 20);
    setBalance(*cpu, 200);
    cpu->autoPlay(2);
    EXPECT_EQ(street(1).getHotelCount(), 0);
    setBalance(*cpu, 201);
    cpu->autoPlay(2);
    EXPECT_EQ(street(3).getHotelCount(), 1);  // from the end of the board down
    EXPECT_EQ(street(1).getHotelCount(), 1);
    EXPECT_EQ(rec.count("sound: building.wav"), 2);

    setBalance(*cpu, 100);  // exactly 100: nothing is raised
    cpu->autoPlay(2);
    EXPECT_EQ(street(1).getHotelCount(), 1);
    EXPECT_EQ(cpu->getBalance(), 100);
    setBalance(*cpu, 99);  // raised to 100: both streets carry a hotel, so one is sold
    cpu->autoPlay(2);
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_EQ(street(3).getHotelCount(), 1);
    EXPECT_EQ(cpu->getBalance(), 99 + 54);  // too little to build again
}

TEST_F(Computer, BuildingPassesEndBelowThreeHotelsOrAfterFour) {
    give(*cpu, {6, 8, 9});  // district 2: three streets, hotel costs 78, 84, 90
    placeAt(*cpu, 20);
    setBalance(*cpu, 1500);
    cpu->autoPlay(2);
    for (Integer c : {6, 8, 9}) EXPECT_EQ(street(c).getHotelCount(), 4) << c;
    EXPECT_EQ(cpu->getBalance(), 1500 - 4 * (78 + 84 + 90));

    give(*cpu, {1, 3});  // a two-street district: one pass of two hotels, then stop
    setBalance(*cpu, 1500);
    cpu->autoPlay(2);
    EXPECT_EQ(street(1).getHotelCount(), 1);
    EXPECT_EQ(street(3).getHotelCount(), 1);
}

class MakeMoney : public Computer {};

TEST_F(MakeMoney, NothingToDoAtTheGoalElseUtilitiesGoFirstAndOnlyAsFarAsNeeded) {
    setBalance(*cpu, 0);
    cpu->autoMakeMoney(0);
    cpu->autoPlay(3);  // and phases 3 and -1 do nothing
    cpu->autoPlay(-1);
    EXPECT_TRUE(rec.log.empty());

    give(*cpu, {5, 6, 12, 28});
    setBalance(*cpu, 99);
    cpu->autoMakeMoney(100);
    EXPECT_TRUE(prop(12).isMortgaged2());
    EXPECT_FALSE(prop(28).isMortgaged2());
    EXPECT_FALSE(prop(5).isMortgaged2());
    EXPECT_FALSE(prop(6).isMortgaged2());
    EXPECT_EQ(cpu->getBalance(), 199);
}

TEST_F(MakeMoney, HotelsAreSoldOneByOneAndAStreetMortgagedOnlyInDebt) {
    give(*cpu, {1, 3});
    putHotels(1, 3);
    putHotels(3, 1);
    setBalance(*cpu, 90);
    cpu->autoMakeMoney(100);  // one hotel of 54 is enough
    EXPECT_EQ(street(1).getHotelCount(), 2);
    EXPECT_EQ(street(3).getHotelCount(), 1);
    EXPECT_EQ(cpu->getBalance(), 144);
    EXPECT_FALSE(prop(1).isMortgaged2());
}

TEST_F(MakeMoney, InDebtWithOnlyHotelStreetsSellsUpwardAndMortgagesTheStrippedOne) {
    give(*cpu, {1, 3});
    putHotels(1, 1);
    putHotels(3, 1);
    setBalance(*cpu, -100);
    cpu->autoMakeMoney(0);
    // Cell 1: its hotel (54) leaves -46, so the stripped street is mortgaged (+45): -1.
    // Cell 3: its hotel (60) reaches 59 and the sales stop; cell 3 stays unmortgaged.
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_TRUE(prop(1).isMortgaged2());
    EXPECT_EQ(street(3).getHotelCount(), 0);
    EXPECT_FALSE(prop(3).isMortgaged2());
    EXPECT_EQ(cpu->getBalance(), 59);
}

TEST_F(MakeMoney, NothingLeftToGiveUpMeansBankruptcyOnceEvenWithoutDebt) {
    setBalance(*cpu, 60);
    cpu->autoMakeMoney(100);
    EXPECT_TRUE(cpu->isBankrupt2());
    EXPECT_EQ(rec.count("showBankRupt"), 1);
    EXPECT_EQ(cpu->getBalance(), 60);

    give(*rival, {1});
    putHotels(1, 1);
    setBalance(*rival, 30);
    rival->autoMakeMoney(100);             // its hotel sold, 84: short of 100 yet not below 0
    EXPECT_FALSE(prop(1).isMortgaged2());  // so the stripped street stays unmortgaged
    EXPECT_TRUE(rival->isBankrupt2());
}

class Trade : public Computer {};

TEST_F(Trade, NoOfferOnALowDrawForAStreetOfTheBankWithOneOfThreeOrBeforeOwnDist) {
    give(*cpu, {6, 8, 11, 13, 16, 18, 21, 37});
    give(*ann, {9, 14, 39});  // 19 and 23, 24 stay with the bank
    // The draws for districts 2 and 3; the last would make an offer if drawn.
    for (int d : {4, 0, 9}) random->push(ScriptedRandom::digit(d));
    cpu->autoTrade();  // a two-street district's third column still reads false
    EXPECT_EQ(random->remaining(), 1u);
    EXPECT_TRUE(rec.log.empty());
    EXPECT_FALSE(cardUp());
    EXPECT_FALSE(trading().isVisible());
}

TEST_F(Trade, BetweenComputersTheSaleAlwaysGoesThrough) {
    give(*cpu, {6, 8});
    give(*rival, {9});
    random->push(ScriptedRandom::digit(9));  // offer 150 * 0.545 = 81.75: 82
    random->push(ScriptedRandom::digit(9));  // the owner's draw: above half the price, taken anyway
    cpu->autoTrade();
    EXPECT_EQ(prop(9).getOwners(), cpu);
    EXPECT_EQ(cpu->getBalance(), 1500 - 82);
    EXPECT_EQ(rival->getBalance(), 1500 + 82);
    EXPECT_EQ(rec.count("wait 20"), 3);  // the buyer's face, the owner's face, once more
    EXPECT_TRUE(cpu->ownDist(1));
}

TEST_F(Trade, AnOfferToAHumanStaysOnTheTableWhileTheTurnGoesOn) {
    give(*cpu, {37});
    give(*ann, {39});
    cpu->ownDist(0);  // the third column of the two-street districts is marked held
    random->push(ScriptedRandom::digit(5));  // 500 * 0.525 = 262.5: 262
    cpu->autoTrade();
    EXPECT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().tradeAmount(), 262);
    trading().doneDeal_Click();
    EXPECT_EQ(prop(39).getOwners(), cpu);
    EXPECT_EQ(ann->getBalance(), 1762);
}

// In the two-street districts 1 and 8 the third column of the owner's table stands for no
// street. Before ownDist has run the search ends on ids 13 and 83, which no street has; once
// it has, it finds the street really lacking, whichever of the two is held (the second street
// of district 8 is asked for above).
TEST_F(Trade, TheOtherStreetIsAskedForOnceOwnDistHasRun) {
    give(*cpu, {3, 39});  // the second street of each
    give(*rival, {1});
    give(*ann, {37});
    cpu->autoTrade();
    EXPECT_EQ(random->remaining(), 0u);  // no draw: no offer came near
    EXPECT_TRUE(rec.log.empty());
    EXPECT_FALSE(trading().isVisible());

    EXPECT_FALSE(cpu->canBuild(3));          // its test runs ownDist
    random->push(ScriptedRandom::digit(9));  // district 1: 90 * 0.545 = 49.05, 49
    random->push(ScriptedRandom::digit(9));  // the owner's answer
    random->push(ScriptedRandom::digit(5));  // district 8: 400 * 0.525 = 210
    cpu->autoTrade();
    EXPECT_EQ(random->remaining(), 0u);
    EXPECT_EQ(prop(1).getOwners(), cpu);
    EXPECT_EQ(cpu->getBalance(), 1500 - 49);
    EXPECT_EQ(rival->getBalance(), 1500 + 49);
    EXPECT_TRUE(trading().isVisible());  // the offer to Ann waits for her answer
    EXPECT_EQ(trading().tradeAmount(), 210);
    EXPECT_EQ(prop(37).getOwners(), ann);
    EXPECT_TRUE(cpu->ownDist(0));
}

}  // namespace
}  // namespace gw::test
