// SPDX-License-Identifier: GPL-3.0-or-later
// The ring of cells and what a landing on each kind does; buying, districts, hotels and
// mortgages, the rules that the property card does not show; and a balance that is exactly
// what a hotel or a rent asks.
#include "GameFixture.h"

namespace gw::test {
namespace {

class Holdings : public TwoHumans {};

// The price against the balance is checked through the purchase card.
TEST_F(Holdings, BuyingAFreeBuyableCellPaysThePriceThenMarksTheOwner) {
    EXPECT_FALSE(ann->canBuy(0));
    give(*bob, {3});
    EXPECT_FALSE(ann->canBuy(3));
    give(*ann, {6});
    EXPECT_FALSE(ann->canBuy(6));
    EXPECT_TRUE(ann->canBuy(39));
    placeAt(*ann, 39);
    ann->buyProperty();
    EXPECT_EQ(rec.log,
              (Lines{"sound: pay.wav", "showNegBalance(false)", "UpdatePlayers", "showOwner(39)"}));
    EXPECT_EQ(ann->getBalance(), 1000);
    EXPECT_EQ(prop(39).getOwners(), ann);
    EXPECT_TRUE(ann->ownsStreetEntry(7, 1));
}

// Money and mortgages against building are checked through the property card.
TEST_F(Holdings, BuildingWantsTheWholeDistrictOfTwoOrThreeStreets) {
    give(*ann, {1, 3});
    EXPECT_TRUE(ann->ownDist(0));
    give(*ann, {6, 8});
    EXPECT_FALSE(ann->ownDist(1));
    EXPECT_FALSE(ann->canBuild(6));
    give(*ann, {9});
    EXPECT_TRUE(ann->ownDist(1));
    EXPECT_TRUE(ann->canBuild(6));
    EXPECT_FALSE(ann->canBuild(5));  // metro
    EXPECT_FALSE(bob->canBuild(6));

    putHotels(6, 2);  // losing a street stops the building, but hotels and rent stay
    ann->noMoreOwn(*board->getCell(9));
    bob->newlyOwn(*board->getCell(9));
    EXPECT_FALSE(ann->canBuild(6));
    EXPECT_EQ(street(6).getHotelCount(), 2);
    EXPECT_EQ(street(6).getRent(), 156);  // 1.2 times its price of 130
}

TEST_F(Holdings, HotelsNeedNotBeEvenAndStopAtFour) {
    give(*ann, {1, 3});
    for (int i = 0; i < 4; ++i) ann->buildHotel(3);
    EXPECT_EQ(street(3).getHotelCount(), 4);
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_EQ(ann->getBalance(), 1500 - 4 * 60);
    EXPECT_FALSE(ann->canBuild(3));
    rec.clear();
    ann->buildHotel(3);
    EXPECT_TRUE(rec.log.empty());
    EXPECT_EQ(street(3).getRent(), 250);
}

// The property card shows when its owner may sell a hotel, mortgage or release; not
// that nobody else may.
TEST_F(Holdings, NobodyActsOnAnotherPlayersCellsOrOnACellNotForSale) {
    give(*ann, {1, 3});
    putHotels(1, 1);
    EXPECT_FALSE(bob->canSellHotel(1));
    EXPECT_FALSE(bob->canMort(3));
    EXPECT_FALSE(ann->canMort(0));
    bob->mortgageProp(3);
    EXPECT_TRUE(rec.log.empty());
    EXPECT_FALSE(prop(3).isMortgaged2());
}

TEST_F(Holdings, ReleaseCostsTenPercentMoreTestedUnrounded) {
    give(*ann, {3});
    ann->mortgageProp(3);  // +50
    setBalance(*ann, 55);
    EXPECT_FALSE(ann->canUnmort(3));  // 50 * 1.1 lies just above 55
    setBalance(*ann, 56);
    EXPECT_TRUE(ann->canUnmort(3));
    EXPECT_FALSE(bob->canUnmort(3));
}

TEST_F(Holdings, ABalanceStopsAtTheBoundsOfItsRangeInsteadOfWrapping) {
    setBalance(*ann, 32000);
    ann->credit(1000);
    EXPECT_EQ(ann->getBalance(), 32767);
    setBalance(*bob, -32000);
    bob->debit(1000);
    EXPECT_EQ(bob->getBalance(), -32768);
    EXPECT_EQ(rec.log.back(), "UpdatePlayers");
}

// A balance that is exactly what is asked leaves 0 and shows no debt.
TEST_F(Holdings, AHotelIsBuiltWithExactlyItsCostInHand) {
    give(*ann, {1, 3});  // Saint-Jacques: a hotel costs 60
    setBalance(*ann, 59);
    EXPECT_FALSE(ann->canBuild(3));
    setBalance(*ann, 60);
    ASSERT_TRUE(ann->canBuild(3));
    ann->buildHotel(3);
    EXPECT_EQ(street(3).getHotelCount(), 1);
    EXPECT_EQ(ann->getBalance(), 0);
    EXPECT_FALSE(rec.has("showNegBalance(true)"));
    EXPECT_FALSE(ann->canBuild(1));  // with 0 left, the next one waits
}

TEST_F(Holdings, ARentOfExactlyTheBalanceIsPaidWithNoShortfall) {
    give(*bob, {1, 3});
    // Bare, then with a hotel: 45 due, though the test of the rent reads the bare 9.
    for (const Integer due : {9, 45}) {
        SCOPED_TRACE(due);
        if (due == 45) putHotels(1, 1);
        setBalance(*bob, 1500);
        ann->setDidAction(false);
        placeAt(*ann, 0);
        setBalance(*ann, due);
        land(*ann, 1);
        ASSERT_EQ(cardOpt(), kOptRent);
        onCard("payRent");
        EXPECT_EQ(ann->getBalance(), 0);
        EXPECT_EQ(bob->getBalance(), 1500 + due);
        EXPECT_FALSE(rec.has("showNegBalance(true)"));
        EXPECT_FALSE(rec.has("showInfo: You cannot pay the rent, you must get $0"));
        board->endTurn();  // dealt with, nothing owed: the turn passes
        EXPECT_EQ(&board->getCurrPlayer(), bob);
        board->endTurn();
    }
}

class Layout : public GameFixture {};

TEST_F(Layout, EveryPositionGivesItsCellAndNothingOutsideTheRing) {
    EXPECT_EQ(board->getCell(-1), nullptr);
    EXPECT_EQ(board->getCell(40), nullptr);
    int streets = 0, metros = 0, utilities = 0, cards = 0;
    for (Integer i = 0; i < kCellCount; ++i) {
        BoardCell* c = board->getCell(i);
        ASSERT_NE(c, nullptr);
        EXPECT_EQ(c->Cell_getId(), i);
        streets += c->kind() == CellKind::Street;
        metros += c->kind() == CellKind::Metro;
        utilities += c->kind() == CellKind::Utility;
        cards += c->kind() == CellKind::JFL;
    }
    EXPECT_EQ(streets, 22);
    EXPECT_EQ(metros, 4);
    EXPECT_EQ(utilities, 2);
    EXPECT_EQ(cards, 6);
    EXPECT_EQ(board->getCell(0)->Cell_getName(), "GO");
    EXPECT_EQ(board->getCell(30)->kind(), CellKind::GoToJail);
    EXPECT_EQ(prop(32).getPrice(), 350);  // Rachel breaks the step of 10
    EXPECT_EQ(street(39).getDistId(), 82);
    EXPECT_EQ(street(39).groupNumber(), 8);
    EXPECT_EQ(street(19).groupNumber(), 4);
}

// The cheapest street's values, a metro's and the headquarters' are read off their cards.
TEST_F(Layout, RentsHotelCostsAndMortgagesFollowThePrice) {
    const std::array<Integer, 6> dear = {0, 250, 600, 1000, 1250, 0};
    for (Integer h = 0; h <= 5; ++h) {
        EXPECT_EQ(street(39).getRentWithHotels(h), dear[static_cast<std::size_t>(h)]);
    }
    EXPECT_EQ(street(39).getHotelCost(), 300);
    EXPECT_EQ(board->getCell(12)->asProperty()->getRent(), 20);
}

TEST_F(Layout, PoliceSendsTheTokenRoundByGoToJailWithoutPay) {
    player& ann = addHuman("Ann");
    land(ann, 30);
    const Lines expected = {
        "sound: newpolice.wav",  "UpdateTurnPlaying(2)", "showCell(30)", "MoveToken(0,30,39)",
        "MoveToken(0,0,0)",      "UpdateTurnPlaying(2)", "showCell(0)",  "MoveToken(0,0,10)",
        "showInfo: Go to jail!", "sound: jailthere.wav", "showCell(30)",
    };
    EXPECT_EQ(rec.log, expected);
    EXPECT_TRUE(ann.IsInJail());
    EXPECT_EQ(ann.getBalance(), 1500);
    EXPECT_FALSE(board->getCell(30)->getCell().isOn()[0]);

    rec.clear();
    ann.goToJail();  // from the jail cell: no move, but locked up again
    EXPECT_EQ(rec.only({"MoveToken", "showInfo", "sound"}),
              (Lines{"MoveToken(0,10,10)", "showInfo: Go to jail!", "sound: jailthere.wav"}));
    EXPECT_TRUE(ann.IsInJail());
}

// The purchase and rent cards a landing opens are checked with the property card.
TEST_F(Layout, LandingOnAMortgagedOrOwnCellAsksNothing) {
    player& ann = addHuman("Ann");
    player& bob = addHuman("Bob");
    give(bob, {8});
    prop(8).Mortgage();
    give(ann, {9});
    for (Integer cellId : {8, 9}) {
        ann.setDidAction(false);
        land(ann, cellId);
        EXPECT_FALSE(cardUp()) << cellId;
        EXPECT_TRUE(ann.getDidAction()) << cellId;
        EXPECT_EQ(ann.getBalance(), 1500) << cellId;
    }
}

TEST_F(Layout, ASecondInitLeavesNoTraceOfTheFirstGame) {
    player& ann = addHuman("Ann");
    give(ann, {1, 3});
    putHotels(1, 2);
    prop(3).Mortgage();
    board->deleteAllPlayer();
    board->init();
    EXPECT_EQ(board->getNumPlayer(), 0);
    EXPECT_EQ(prop(1).getOwners(), nullptr);
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_FALSE(prop(3).isMortgaged2());
}

}  // namespace
}  // namespace gw::test
