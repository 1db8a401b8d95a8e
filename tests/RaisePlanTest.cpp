// SPDX-License-Identifier: GPL-3.0-or-later
// The helping hand of a human in debt: the plan is what autoMakeMoney does from the same
// position, planning touches nothing, and the plan carried out makes the same calls.
#include "GameFixture.h"
#include "windows/RaisePlan.h"

namespace gw::test {
namespace {

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
