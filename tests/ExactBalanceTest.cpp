// SPDX-License-Identifier: GPL-3.0-or-later
// A balance that is exactly what is asked: a hotel bought with its cost in hand, a rent
// paid with its sum in hand, both leaving 0 and no debt shown.
#include "GameFixture.h"

namespace gw::test {
namespace {

class ExactBalance : public TwoHumans {};

TEST_F(ExactBalance, AHotelIsBuiltWithExactlyItsCostInHand) {
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

TEST_F(ExactBalance, ARentOfExactlyTheBalanceIsPaidWithNoShortfall) {
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

}  // namespace
}  // namespace gw::test
