// Buying, districts, hotels and mortgages, each with its test and its action.
#include "GameFixture.h"

namespace gw::test {
namespace {

class Holdings : public GameFixture {
protected:
    Holdings() {
        ann = &addHuman("Ann", 2);
        bob = &addHuman("Bob", 4);
    }
    player* ann;
    player* bob;
};

TEST_F(Holdings, BuyingNeedsAFreeCellAndEnoughMoney) {
    setBalance(*ann, 90);
    EXPECT_TRUE(ann->canBuy(1));  // a price equal to the balance may be paid
    setBalance(*ann, 89);
    EXPECT_FALSE(ann->canBuy(1));
    EXPECT_FALSE(ann->canBuy(0));  // not a buyable cell
    setBalance(*ann, 1500);
    give(*bob, {3});
    EXPECT_FALSE(ann->canBuy(3));
    give(*ann, {6});
    EXPECT_FALSE(ann->canBuy(6));
}

TEST_F(Holdings, BuyPropertyPaysThePriceThenMarksTheOwner) {
    placeAt(*ann, 39);
    ann->buyProperty();
    const std::vector<std::string> expected = {"sound: pay.wav", "showNegBalance(false)",
                                               "UpdatePlayers", "showOwner(39)"};
    EXPECT_EQ(rec.log, expected);
    EXPECT_EQ(ann->getBalance(), 1000);
    EXPECT_EQ(prop(39).getOwners(), ann);
    EXPECT_TRUE(ann->ownsStreetEntry(7, 1));
}

TEST_F(Holdings, TwoStreetDistrictsAreWholeWithTwoAndThreeStreetDistrictsNeedThree) {
    give(*ann, {1, 3});
    EXPECT_TRUE(ann->ownDist(0));
    give(*ann, {6, 8});
    EXPECT_FALSE(ann->ownDist(1));
    give(*ann, {9});
    EXPECT_TRUE(ann->ownDist(1));
}

TEST_F(Holdings, BuildingWantsTheWholeDistrictNoMortgageRoomAndMoney) {
    give(*ann, {6, 8});
    EXPECT_FALSE(ann->canBuild(6));
    give(*ann, {9});
    EXPECT_TRUE(ann->canBuild(6));
    prop(8).Mortgage();
    EXPECT_TRUE(ann->canBuild(6));  // a mortgaged neighbour does not stop it
    EXPECT_FALSE(ann->canBuild(8));
    EXPECT_FALSE(ann->canBuild(5));  // metro
    EXPECT_FALSE(bob->canBuild(6));
    setBalance(*ann, 77);  // hotel on Wellington costs 78
    EXPECT_FALSE(ann->canBuild(6));
    setBalance(*ann, 78);
    EXPECT_TRUE(ann->canBuild(6));
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

TEST_F(Holdings, BuildHotelAddsPaysAndShowsInThatOrder) {
    give(*ann, {1, 3});
    ann->buildHotel(1);
    const std::vector<std::string> expected = {
        "showCell(1)", "sound: pay.wav", "showNegBalance(false)", "UpdatePlayers", "showHotel(1)"};
    EXPECT_EQ(rec.log, expected);
}

TEST_F(Holdings, AHotelSellsBackAtItsFullCost) {
    give(*ann, {37, 39});
    putHotels(39, 4);
    EXPECT_TRUE(ann->canSellHotel(39));
    EXPECT_FALSE(bob->canSellHotel(39));
    EXPECT_FALSE(ann->canSellHotel(37));
    ann->sellHotel(39);
    EXPECT_EQ(ann->getBalance(), 1800);
    EXPECT_EQ(street(39).getHotelCount(), 3);
}

TEST_F(Holdings, LosingAStreetStopsBuildingButHotelsAndTheirRentStay) {
    give(*ann, {1, 3});
    putHotels(1, 2);
    ann->noMoreOwn(*board->getCell(3));
    bob->newlyOwn(*board->getCell(3));
    EXPECT_FALSE(ann->canBuild(1));
    EXPECT_EQ(street(1).getHotelCount(), 2);
    EXPECT_EQ(street(1).getRent(), 108);
}

TEST_F(Holdings, MortgageWantsOwnerNoHotelsAndNoMortgageYet) {
    give(*ann, {1, 3, 5});
    putHotels(1, 1);
    EXPECT_FALSE(ann->canMort(1));
    EXPECT_TRUE(ann->canMort(3));  // its neighbour's hotel does not matter
    EXPECT_TRUE(ann->canMort(5));
    EXPECT_FALSE(ann->canMort(0));
    ann->sellHotel(1);
    EXPECT_TRUE(ann->canMort(1));
    rec.clear();
    bob->mortgageProp(1);  // not his
    EXPECT_TRUE(rec.log.empty());
    ann->mortgageProp(1);
    EXPECT_TRUE(prop(1).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1500 + 54 + 45);
    EXPECT_EQ(rec.log.back(), "showMort(1)");
    EXPECT_FALSE(ann->canMort(1));
}

TEST_F(Holdings, ReleaseCostsTenPercentMoreTestedUnrounded) {
    give(*ann, {3});
    ann->mortgageProp(3);  // +50
    setBalance(*ann, 55);
    EXPECT_FALSE(ann->canUnmort(3));  // 50 * 1.1 lies just above 55
    setBalance(*ann, 56);
    EXPECT_TRUE(ann->canUnmort(3));
    EXPECT_FALSE(bob->canUnmort(3));
    ann->unmortgageProp(3);
    EXPECT_EQ(ann->getBalance(), 1);
    EXPECT_FALSE(prop(3).isMortgaged2());
    EXPECT_EQ(prop(3).getOwners(), ann);
    EXPECT_FALSE(ann->canUnmort(3));

    give(*ann, {1});
    ann->mortgageProp(1);  // +45, release 49.5 rounds to 50
    setBalance(*ann, 60);
    ann->unmortgageProp(1);
    EXPECT_EQ(ann->getBalance(), 10);
}

TEST_F(Holdings, AReleasedCellChargesItsRentAgain) {
    give(*bob, {5});
    bob->mortgageProp(5);
    placeAt(*ann, 5);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 1500);
    bob->unmortgageProp(5);
    ann->payRent();
    EXPECT_EQ(ann->getBalance(), 1470);
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

}  // namespace
}  // namespace gw::test
