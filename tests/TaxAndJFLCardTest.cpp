// The tax card and the JFL card window: what they show, when the pay button is open,
// what a payment charges, and how both close after a computer's wait.
#include <utility>

#include "GameFixture.h"

namespace gw::test {
namespace {

using Lines = std::vector<std::string>;

// "Collect $250 from bank" on top, so that a landing on a JFL cell is a known credit.
std::vector<int> collect250First() {
    std::vector<int> order = deckInOrder();
    std::swap(order[0], order[3]);
    return order;
}

class TaxAndJflCard : public GameFixture {
protected:
    TaxAndJflCard() : GameFixture(collect250First()) {
        ann = &addHuman("Ann", 3);
        cal = &addComputer("Cal", 7);
    }
    void land(player& p, Integer cellId) {
        placeAt(p, cellId);
        board->getCell(cellId)->doAction(p);
    }
    taxCellWindow& tax() { return windows.taxCard; }
    JFLCardWindow& jfl() { return windows.jflCard; }

    player* ann;
    player* cal;
};

TEST_F(TaxAndJflCard, EachTaxCellShowsItsPictureAndFlatSum) {
    land(*ann, 4);
    EXPECT_TRUE(tax().isVisible());
    EXPECT_EQ(tax().taxId(), 4);
    EXPECT_EQ(tax().taxPlayer(), ann);
    EXPECT_EQ(tax().picture(), 0);
    EXPECT_EQ(tax().Label1(), "Pay $200");
    EXPECT_TRUE(tax().payRent().isOpen());
    land(*ann, 38);
    EXPECT_EQ(tax().picture(), 1);
    EXPECT_EQ(tax().Label1(), "Pay $75");
}

TEST_F(TaxAndJflCard, IncomeTaxCardShowsTwoHundredButChargesTheLesserSum) {
    land(*ann, 4);  // worth 1500: a tenth is 150
    EXPECT_EQ(tax().Label1(), "Pay $200");
    rec.clear();
    tax().payRent_Click();
    EXPECT_EQ(ann->getBalance(), 1350);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(tax().isVisible());
    EXPECT_EQ(rec.log.back(), "setEnabled(true)");

    give(*ann, {39});        // worth 1850
    setBalance(*ann, 1500);  // worth 2000: the flat sum applies
    land(*ann, 4);
    tax().payRent_Click();
    EXPECT_EQ(ann->getBalance(), 1300);
}

TEST_F(TaxAndJflCard, ExactSumOpensThePayButtonAndOneShortClosesIt) {
    setBalance(*ann, 75);
    land(*ann, 38);
    EXPECT_TRUE(tax().payRent().isOpen());
    EXPECT_EQ(rec.only({"showInfo"}), Lines{});
    setBalance(*ann, 74);
    land(*ann, 38);
    EXPECT_TRUE(tax().payRent().visible);
    EXPECT_FALSE(tax().payRent().enabled);
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You owe $1"});

    give(*ann, {39});
    setBalance(*ann, 56);  // worth 556: 55.6 rounds to 56
    land(*ann, 4);
    EXPECT_TRUE(tax().payRent().isOpen());
    setBalance(*ann, 55);  // worth 555: 55.5 rounds to the even 56
    land(*ann, 4);
    EXPECT_FALSE(tax().payRent().enabled);
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You owe $1"});
}

TEST_F(TaxAndJflCard, CardBroughtBackAfterMoneyCameInOpensTheButton) {
    setBalance(*ann, 74);
    land(*ann, 38);
    ASSERT_FALSE(tax().payRent().enabled);
    setBalance(*ann, 75);
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must do something before you end your turn");
    EXPECT_TRUE(tax().isVisible());
    EXPECT_TRUE(tax().payRent().isOpen());
    tax().payRent_Click();
    EXPECT_EQ(ann->getBalance(), 0);
}

TEST_F(TaxAndJflCard, ComputerSeesTheSumWithTheButtonClosedUntilTheWaitEnds) {
    land(*cal, 38);
    EXPECT_EQ(tax().Label1(), "Pay $75");
    EXPECT_TRUE(tax().payRent().visible);
    EXPECT_FALSE(tax().payRent().enabled);
    EXPECT_EQ(rec.only({"showInfo"}), Lines{});
    rec.clear();
    EXPECT_TRUE(tax().computerThink());
    EXPECT_FALSE(tax().isVisible());
    EXPECT_EQ(rec.log, (Lines{"wait 20", "setEnabled(true)"}));
    EXPECT_EQ(cal->getBalance(), 1500);  // the computer's own play charges it
}

TEST_F(TaxAndJflCard, JflCardShowsItsTextOnTheCardAndTheMessageLine) {
    jfl().showJFLCard("Do Nothing");
    EXPECT_TRUE(jfl().isVisible());
    EXPECT_EQ(jfl().Label2(), "Do Nothing");
    EXPECT_EQ(rec.log, Lines{"showInfo: Do Nothing"});
    rec.clear();
    EXPECT_TRUE(jfl().computerThink());
    EXPECT_EQ(rec.log, (Lines{"wait 20", "setEnabled(true)"}));
    EXPECT_FALSE(jfl().isVisible());

    jfl().showJFLCard("Do Nothing");
    rec.clear();
    jfl().Ok_Click();
    EXPECT_EQ(rec.log, Lines{"setEnabled(true)"});
    EXPECT_FALSE(jfl().isVisible());
}

TEST_F(TaxAndJflCard, DrawnCardClosesAfterTheWaitAndActsAfterIt) {
    land(*ann, 2);
    EXPECT_EQ(rec.only({"showInfo", "wait", "setEnabled", "sound"}),
              (Lines{"showInfo: Collect $250 from bank", "wait 20", "setEnabled(true)",
                     "sound: buy.wav"}));
    EXPECT_FALSE(jfl().isVisible());
    EXPECT_EQ(ann->getBalance(), 1750);
}

}  // namespace
}  // namespace gw::test
