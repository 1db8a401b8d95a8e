// SPDX-License-Identifier: GPL-3.0-or-later
// The property card: which buttons each kind of card offers to whom, the values it
// prints, and what each button does to the game and to the main window.
#include "GameFixture.h"
#include "windows/CellInfoWindow.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {
namespace {

using Buttons = Lines;

class PropertyCard : public TwoHumans {
protected:
    ~PropertyCard() override { rec.model = nullptr; }

    // A real main window behind the recorder, for its enabled state and its own sounds.
    void attachMainWindow() {
        mainWindow.init(*board);
        rec.model = &mainWindow;
    }

    MainWindow mainWindow{rec, rec};
    player* cal = &addComputer("Cal", 7);
};

TEST_F(PropertyCard, InformationCardPrintsEachValueInItsLabelAndNoButton) {
    click(*ann, 1);
    EXPECT_TRUE(card().isVisible());
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(cardButtons(), Buttons{});
    // Priced 90: rent 9, hotel rents 45/108/180/225, mortgage 45, hotel 54.
    const Lines labels = {"Saint-Antoine", "$90",  "",     "$9",  "$45",
                          "$108",          "$180", "$225", "$45", "$54"};
    for (int n = 1; n <= 10; ++n) EXPECT_EQ(card().label(n), labels[n - 1]) << "Label" << n;

    click(*ann, 5);  // a metro fills three labels; the street's others must not stay
    EXPECT_EQ(card().label(1), "Outremont");
    EXPECT_EQ((Lines{card().label(2), card().label(6), card().label(8)}),
              (Lines{"$300", "$30", "$150"}));
    for (int n : {4, 5, 7, 9, 10}) EXPECT_EQ(card().label(n), "") << "Label" << n;
    click(*ann, 28);
    EXPECT_EQ((Lines{card().label(2), card().label(6), card().label(8)}),
              (Lines{"$200", "$20", "$100"}));

    give(*bob, {1, 5});  // mortgaged, they print no rent but keep their other values
    bob->mortgageProp(1);
    bob->mortgageProp(5);
    click(*ann, 1);
    EXPECT_EQ(card().label(3), "Bob");
    const Lines values = {"$0", "$45", "$108", "$180", "$225", "$45", "$54"};
    for (int n = 4; n <= 10; ++n) EXPECT_EQ(card().label(n), values[n - 4]) << "Label" << n;
    click(*ann, 5);
    EXPECT_EQ(card().label(6), "$0");
    EXPECT_EQ(card().label(8), "$150");
}

TEST_F(PropertyCard, PictureFollowsTheGroup) {
    using P = CardPicture;
    const std::pair<Integer, P> cases[] = {
        {1, P::District1},  {3, P::District1},  {6, P::District2},  {11, P::District3},
        {16, P::District4}, {21, P::District5}, {26, P::District6}, {31, P::District7},
        {37, P::District8}, {39, P::District8}, {5, P::Metro},      {15, P::Metro},
        {25, P::Metro},     {35, P::Metro},     {12, P::Utility1},  {28, P::HQ}};
    for (const auto& [cellId, picture] : cases) {
        click(*ann, cellId);
        EXPECT_EQ(card().picture(), picture) << "cell " << cellId;
    }
}

TEST_F(PropertyCard, PurchaseCardOpensBuyToAHumanWhoCanPayAndForgetOrBuyDealsWithIt) {
    setBalance(*ann, 89);
    land(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptBuy);
    EXPECT_EQ(card().label(3), "");
    EXPECT_EQ(cardButtons(), (Buttons{"buy*", "forget"}));
    card().forget_Click();
    EXPECT_EQ(prop(1).getOwners(), nullptr);
    EXPECT_EQ(ann->getBalance(), 89);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    click(*ann, 1);  // still on it, but the landing is over: no second chance to buy
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(cardButtons(), Buttons{});
    card().close();

    ann->setDidAction(false);  // a landing anew
    setBalance(*ann, 90);
    land(*ann, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"buy", "forget"}));
    rec.clear();
    card().buy_Click();
    EXPECT_EQ(prop(1).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 0);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    EXPECT_TRUE(rec.has("setEnabled(true)"));
    EXPECT_EQ(rec.log.back(), "showInfo: Ann has bought Saint-Antoine");
}

TEST_F(PropertyCard, RentCardOpensPayOnTheBareRentAndChargesTheRentDueBeyondTheCash) {
    give(*bob, {3});
    putHotels(3, 2);  // priced 100: bare rent 10, 120 with two hotels
    setBalance(*ann, 119);
    land(*ann, 3);
    EXPECT_EQ(card().cardOpt(), kOptRent);
    EXPECT_EQ(cardButtons(), Buttons{"payRent"});
    EXPECT_EQ(card().payRent().caption, "Pay  120");
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: Ann you owe $120"});
    EXPECT_FALSE(rec.has("showNegBalance(true)"));
    card().payRent_Click();
    EXPECT_EQ(ann->getBalance(), -1);
    EXPECT_EQ(bob->getBalance(), 1620);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
}

TEST_F(PropertyCard, RentCardOneDollarShortClosesPayAndNamesTheShortfall) {
    give(*bob, {39});  // rent 50
    setBalance(*ann, 49);
    land(*ann, 39);
    EXPECT_EQ(cardButtons(), Buttons{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You cannot pay the rent, you must get $1"});
    EXPECT_EQ(rec.log.back(), "showNegBalance(true)");
}

TEST_F(PropertyCard, ComputerCardsShowTheirButtonsClosedAndNoMortgage) {
    land(*cal, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"buy*", "forget*"}));
    rec.clear();
    card().computerThink();
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.log, (Lines{"wait 20", "setEnabled(true)"}));
    EXPECT_FALSE(cal->getDidAction());  // the computer's own play sets it

    give(*bob, {39});
    land(*cal, 39);
    EXPECT_EQ(cardButtons(), Buttons{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{});

    give(*cal, {1, 3, 5});
    click(*cal, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"buyHotel*", "sellHotel*", "Ok(1)"}));
    cal->mortgageProp(5);
    click(*cal, 5);
    EXPECT_EQ(cardButtons(), Buttons{"Ok(0)"});
}

TEST_F(PropertyCard, OwnCellShowsTheHotelRowOnlyWhenAHotelCanBeBuiltOrSold) {
    give(*ann, {1, 3, 5, 12});
    placeAt(*ann, 39);  // the token's place plays no part
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptOwn);
    EXPECT_EQ(cardButtons(), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
    for (Integer cellId : {5, 12}) {  // a metro and a utility never have one
        click(*ann, cellId);
        EXPECT_EQ(cardButtons(), (Buttons{"Mortgage(0)", "Ok(0)"})) << cellId;
    }
    setBalance(*ann, 53);  // a hotel costs 54
    click(*ann, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"Mortgage(0)", "Ok(0)"}));

    setBalance(*ann, 1500);
    ann->mortgageProp(1);
    click(*ann, 3);  // a mortgaged neighbour does not stop the building
    EXPECT_EQ(cardButtons(), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
    click(*ann, 1);  // but the mortgaged street itself takes no hotel
    EXPECT_EQ(cardButtons(), (Buttons{"Unmortgage", "Ok(0)"}));
    setBalance(*ann, 50);  // 45 * 1.1 = 49.5
    click(*ann, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"Unmortgage", "Ok(0)"}));
    setBalance(*ann, 49);
    click(*ann, 1);
    EXPECT_EQ(cardButtons(), Buttons{"Ok(0)"});

    setBalance(*ann, 1500);
    ann->unmortgageProp(1);
    putHotels(1, 4);
    click(*ann, 1);
    EXPECT_EQ(cardButtons(), (Buttons{"buyHotel*", "sellHotel", "Ok(1)"}));
    click(*ann, 3);  // the neighbour of a street with hotels may still be mortgaged
    EXPECT_EQ(cardButtons(), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
}

TEST_F(PropertyCard, AnotherPlayersCellIsOpenToATradeUnlessHotelsOrDebt) {
    give(*bob, {1, 5});
    click(*ann, 5);
    EXPECT_EQ(card().cardOpt(), kOptTrade);
    EXPECT_EQ(cardButtons(), (Buttons{"trade", "Ok(0)"}));
    rec.clear();
    card().trade_Click();  // opens the buyer's face
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.log, Lines{"setEnabled(true)"});
    ASSERT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().face(), TradeFace::Buyer);
    EXPECT_EQ((Lines{trading().label(1), trading().label(2), trading().label(3)}),
              (Lines{"Outremont", "Bob", "Ann"}));

    setBalance(*ann, 0);
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptTrade);
    setBalance(*ann, -1);
    click(*ann, 5);
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(cardButtons(), Buttons{});
    setBalance(*ann, 1500);
    putHotels(1, 1);
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(cardButtons(), Buttons{});
}

TEST_F(PropertyCard, HotelButtonsBuildAndSellAtTheHotelCost) {
    give(*ann, {1, 3});
    click(*ann, 1);
    rec.clear();
    card().buyHotel_Click();
    EXPECT_EQ(street(1).getHotelCount(), 1);
    EXPECT_EQ(ann->getBalance(), 1446);
    EXPECT_FALSE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.only({"showCell", "sound", "showHotel"}),
              (Lines{"showCell(1)", "sound: pay.wav", "showHotel(1)", "sound: building.wav"}));

    click(*ann, 1);
    rec.clear();
    card().sellHotel_Click();
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.only({"sound", "showHotel"}), (Lines{"sound: buy.wav", "showHotel(1)"}));
}

TEST_F(PropertyCard, MortgageIsHeardTwiceAndUnmortgageChargesTheMortgagePlusATenth) {
    attachMainWindow();
    give(*ann, {1});
    click(*ann, 1);
    rec.clear();
    card().Mortgage_Click(0);
    EXPECT_TRUE(prop(1).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1545);
    EXPECT_FALSE(card().isVisible());
    // Once from the main window's mark, once from the card.
    EXPECT_EQ(
        rec.only({"sound", "showMort"}),
        (Lines{"sound: buy.wav", "showMort(1)", "sound: mortaged.wav", "sound: mortaged.wav"}));
    click(*ann, 1);
    rec.clear();
    card().Unmortgage_Click();
    EXPECT_FALSE(prop(1).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1495);  // 45 * 1.1 = 49.5 rounds to 50
    EXPECT_EQ(prop(1).getOwners(), ann);
    EXPECT_FALSE(card().isVisible());
    EXPECT_TRUE(rec.has("showMort(1)"));
}

TEST_F(PropertyCard, CardOverAnOpenCardHoldsTheMainWindowUntilItIsDismissed) {
    attachMainWindow();
    give(*bob, {3});
    give(*ann, {1});
    land(*ann, 3);
    EXPECT_FALSE(rec.has("setEnabled(false)"));  // the first card leaves the window alone
    click(*ann, 5);                              // information only: no button of its own
    EXPECT_FALSE(mainWindow.isEnabled());
    card().close();
    EXPECT_TRUE(mainWindow.isEnabled());

    land(*ann, 3);
    click(*ann, 1);
    EXPECT_FALSE(mainWindow.isEnabled());
    card().Ok_Click(0);
    EXPECT_TRUE(mainWindow.isEnabled());
    EXPECT_FALSE(card().isVisible());
    EXPECT_FALSE(ann->getDidAction());  // so the rent is still to be dealt with
}

}  // namespace
}  // namespace gw::test
