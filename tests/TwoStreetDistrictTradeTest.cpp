// SPDX-License-Identifier: GPL-3.0-or-later
// The computer's search for the street it lacks in the two-street districts 1 and 8,
// whose third column of the owner's table stands for no street.
#include "GameFixture.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {
namespace {

class TwoStreetDistrict : public GameFixture {
protected:
    player* cpu = &addComputer("Hal", 1);
    player* ann = &addHuman("Ann", 2);
    player* rival = &addComputer("Max", 3);
};

// Before ownDist has run the search ends on ids 13 and 83, which no street has; once it
// has, it finds the street really lacking, whichever of the two is held.
TEST_F(TwoStreetDistrict, TheOtherStreetIsAskedForOnceOwnDistHasRun) {
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
