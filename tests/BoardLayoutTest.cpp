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
    EXPECT_EQ(board->getCell(19)->Cell_getName(), "De La Gauchetiere");
    EXPECT_EQ(board->getCell(30)->kind(), CellKind::GoToJail);
    EXPECT_EQ(board->getCell(12)->Cell_getName(), "Utility 1");
    EXPECT_EQ(board->getCell(28)->Cell_getName(), "HQ");
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

TEST_F(Layout, TheTwoFacesOfRentDifferOnAStreetWithHotels) {
    putHotels(39, 2);
    PropertyCell& asProperty = *board->getCell(39)->asProperty();
    EXPECT_EQ(asProperty.getProp().getRent(), 50);  // bare
    EXPECT_EQ(asProperty.getRent(), 600);           // due
    prop(1).Mortgage();
    EXPECT_EQ(street(1).getRent(), 0);
    EXPECT_EQ(prop(1).getMortgage(), 45);
}

TEST_F(Layout, AddHotelStopsAtFourWithoutARedraw) {
    addHuman("Ann");
    putHotels(6, 4);
    street(6).addHotel();
    EXPECT_EQ(street(6).getHotelCount(), 4);
    EXPECT_TRUE(rec.log.empty());
}

TEST_F(Layout, DisplayMarksEveryPlayerOnTheCellAndOnlyUpToTheirNumber) {
    player& ann = addHuman("Ann");
    player& bob = addHuman("Bob");
    addHuman("Cat");
    placeAt(ann, 5);
    placeAt(bob, 5);
    board->getCell(5)->display();
    EXPECT_EQ(rec.log, std::vector<std::string>{"showCell(5)"});
    const OnCell& on = board->getCell(5)->getCell().isOn();
    EXPECT_TRUE(on[0]);
    EXPECT_TRUE(on[1]);
    EXPECT_FALSE(on[2]);
    EXPECT_FALSE(on[6]);
    EXPECT_FALSE(board->getCell(5)->getCell().IsOn(0));  // always false; the table tells
}

TEST_F(Layout, PoliceSendsTheTokenRoundByGoToJailWithoutPay) {
    player& ann = addHuman("Ann");
    placeAt(ann, 30);
    board->getCell(30)->doAction(ann);
    const std::vector<std::string> expected = {
        "sound: newpolice.wav",  "UpdateTurnPlaying(2)", "showCell(30)", "MoveToken(0,30,39)",
        "MoveToken(0,0,0)",      "UpdateTurnPlaying(2)", "showCell(0)",  "MoveToken(0,0,10)",
        "showInfo: Go to jail!", "sound: jailthere.wav", "showCell(30)",
    };
    EXPECT_EQ(rec.log, expected);
    EXPECT_TRUE(ann.IsInJail());
    EXPECT_EQ(ann.getBalance(), 1500);
    EXPECT_FALSE(board->getCell(30)->getCell().isOn()[0]);
}

TEST_F(Layout, GoToJailFromTheJailCellMovesNothingButStillLocksUp) {
    player& ann = addHuman("Ann");
    placeAt(ann, 10);
    ann.goToJail();
    EXPECT_TRUE(rec.has("MoveToken(0,10,10)"));
    EXPECT_TRUE(rec.has("showInfo: Go to jail!"));
    EXPECT_TRUE(rec.has("sound: jailthere.wav"));
    EXPECT_TRUE(ann.IsInJail());
}

TEST_F(Layout, LandingOnABuyableCellOffersChargesOrAsksNothing) {
    player& ann = addHuman("Ann");
    player& bob = addHuman("Bob");
    placeAt(ann, 6);
    board->getCell(6)->doAction(ann);  // unowned
    EXPECT_EQ(card().cardOpt(), kOptBuy);
    card().forget_Click();

    give(bob, {8});
    placeAt(ann, 8);
    ann.setDidAction(false);
    board->getCell(8)->doAction(ann);
    EXPECT_EQ(card().cardOpt(), kOptRent);
    card().Ok_Click(0);

    prop(8).Mortgage();
    card().close();
    board->getCell(8)->doAction(ann);  // mortgaged: nothing due, nothing shown
    EXPECT_FALSE(card().isVisible());
    EXPECT_TRUE(ann.getDidAction());

    give(ann, {9});
    placeAt(ann, 9);
    ann.setDidAction(false);
    board->getCell(9)->doAction(ann);  // his own
    EXPECT_FALSE(card().isVisible());
    EXPECT_TRUE(ann.getDidAction());
    EXPECT_EQ(ann.getBalance(), 1500);
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
    EXPECT_EQ(board->getJFLDeck().getCursor(), 0);
}

}  // namespace
}  // namespace gw::test
