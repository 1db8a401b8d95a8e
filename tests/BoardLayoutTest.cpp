// SPDX-License-Identifier: GPL-3.0-or-later
// The ring of cells and what a landing on each kind does.
#include "GameFixture.h"

namespace gw::test {
namespace {

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

TEST_F(Layout, RentsHotelCostsAndMortgagesFollowThePrice) {
    Street& cheapest = street(1);
    EXPECT_EQ(cheapest.getRent(), 9);
    EXPECT_EQ(cheapest.getProp().getMortgage(), 45);
    EXPECT_EQ(cheapest.getHotelCost(), 54);
    const std::array<Integer, 6> cheap = {0, 45, 108, 180, 225, 0};
    const std::array<Integer, 6> dear = {0, 250, 600, 1000, 1250, 0};
    for (Integer h = 0; h <= 5; ++h) {
        EXPECT_EQ(cheapest.getRentWithHotels(h), cheap[static_cast<std::size_t>(h)]);
        EXPECT_EQ(street(39).getRentWithHotels(h), dear[static_cast<std::size_t>(h)]);
    }
    EXPECT_EQ(street(39).getHotelCost(), 300);
    EXPECT_EQ(board->getCell(5)->asProperty()->getRent(), 30);
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
