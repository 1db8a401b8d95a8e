// The property card: which buttons each kind of card offers to whom, the values it
// prints, and what each button does to the game and to the main window.
#include <iterator>
#include <utility>

#include "GameFixture.h"

namespace gw::test {
namespace {

using Lines = std::vector<std::string>;
using Buttons = std::vector<std::string>;

// The buttons on show, in a fixed order; a closed one carries a trailing '*'.
Buttons buttons(const CellInfoWindow& c) {
    const char* const names[] = {"buy",        "forget",    "payRent",     "trade",
                                 "buyHotel",   "sellHotel", "Mortgage(0)", "Mortgage(1)",
                                 "Unmortgage", "Ok(0)",     "Ok(1)"};
    const Control* const controls[] = {
        &c.buy(),       &c.forget(),    &c.payRent(),    &c.trade(), &c.buyHotel(), &c.sellHotel(),
        &c.Mortgage(0), &c.Mortgage(1), &c.Unmortgage(), &c.Ok(0),   &c.Ok(1)};
    Buttons shown;
    for (std::size_t i = 0; i < std::size(names); ++i) {
        if (controls[i]->visible) {
            shown.push_back(names[i] + std::string(controls[i]->enabled ? "" : "*"));
        }
    }
    return shown;
}

class PropertyCard : public GameFixture {
protected:
    PropertyCard() {
        ann = &addHuman("Ann", 3);
        bob = &addHuman("Bob", 5);
        cal = &addComputer("Cal", 7);
    }
    ~PropertyCard() override { rec.model = nullptr; }

    // A landing, as the turn runs it.
    void land(player& p, Integer cellId) {
        placeAt(p, cellId);
        board->getCell(cellId)->doAction(p);
    }
    // A click on the cell on the board.
    void click(player& p, Integer cellId) {
        Integer opt = kOptInfo;
        board->getCell(cellId)->asProperty()->showInfo(p, opt);
    }
    // A real main window behind the recorder, for its enabled state and its own sounds.
    void attachMainWindow() {
        mainWindow.init(*board);
        rec.model = &mainWindow;
    }

    MainWindow mainWindow{rec, rec};
    player* ann;
    player* bob;
    player* cal;
};

TEST_F(PropertyCard, InformationCardPrintsEachValueInItsLabelAndNoButton) {
    click(*ann, 1);
    EXPECT_TRUE(card().isVisible());
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(buttons(card()), Buttons{});
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
}

TEST_F(PropertyCard, PictureFollowsTheGroup) {
    const std::pair<Integer, int> cases[] = {
        {1, 0},  {3, 0},  {6, 1},  {11, 2},  {16, 3},  {21, 4},  {26, 5}, {31, 6},
        {37, 7}, {39, 7}, {5, 11}, {15, 11}, {25, 11}, {35, 11}, {12, 9}, {28, 10}};
    for (const auto& [cellId, picture] : cases) {
        click(*ann, cellId);
        EXPECT_EQ(card().picture(), picture) << "cell " << cellId;
    }
}

TEST_F(PropertyCard, MortgagedCellPrintsNoRentButKeepsItsOtherValues) {
    give(*bob, {1, 5});
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

TEST_F(PropertyCard, PurchaseCardOpensBuyOnlyToAHumanWhoCanPay) {
    setBalance(*ann, 90);
    land(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptBuy);
    EXPECT_EQ(card().label(3), "");
    EXPECT_EQ(buttons(card()), (Buttons{"buy", "forget"}));
    card().close();
    setBalance(*ann, 89);
    land(*ann, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"buy*", "forget"}));
}

TEST_F(PropertyCard, RentCardWithTheExactSumOffersToPayTheRentDue) {
    give(*bob, {3});
    putHotels(3, 2);  // priced 100: 120 with two hotels
    setBalance(*ann, 120);
    land(*ann, 3);
    EXPECT_EQ(card().cardOpt(), kOptRent);
    EXPECT_EQ(buttons(card()), Buttons{"payRent"});
    EXPECT_EQ(card().payRent().caption, "Pay  120");
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: Ann you owe $120"});
    EXPECT_FALSE(rec.has("showNegBalance(true)"));
}

TEST_F(PropertyCard, RentCardOneDollarShortClosesPayAndNamesTheShortfall) {
    give(*bob, {39});  // rent 50
    setBalance(*ann, 49);
    land(*ann, 39);
    EXPECT_EQ(buttons(card()), Buttons{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{"showInfo: You cannot pay the rent, you must get $1"});
    ASSERT_GE(rec.log.size(), 2u);
    EXPECT_EQ(
        Lines(rec.log.end() - 2, rec.log.end()),
        (Lines{"showInfo: You cannot pay the rent, you must get $1", "showNegBalance(true)"}));
}

TEST_F(PropertyCard, ComputerCardsShowTheirButtonsClosedAndNoMortgage) {
    land(*cal, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"buy*", "forget*"}));
    rec.clear();
    EXPECT_TRUE(card().computerThink());
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.log, (Lines{"wait 20", "setEnabled(true)"}));
    EXPECT_FALSE(cal->getDidAction());  // the computer's own play sets it

    give(*bob, {39});
    land(*cal, 39);
    EXPECT_EQ(buttons(card()), Buttons{"payRent*"});
    EXPECT_EQ(rec.only({"showInfo"}), Lines{});

    give(*cal, {1, 3, 5});
    click(*cal, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"buyHotel*", "sellHotel*", "Ok(1)"}));
    cal->mortgageProp(5);
    click(*cal, 5);
    EXPECT_EQ(buttons(card()), Buttons{"Ok(0)"});
}

TEST_F(PropertyCard, OwnStreetShowsTheHotelRowOnlyWhenAHotelCanBeBuiltOrSold) {
    give(*ann, {1, 3});
    placeAt(*ann, 39);  // the token's place plays no part
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptOwn);
    EXPECT_EQ(buttons(card()), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
    setBalance(*ann, 53);  // a hotel costs 54
    click(*ann, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"Mortgage(0)", "Ok(0)"}));
    setBalance(*ann, 1500);
    putHotels(1, 4);
    click(*ann, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"buyHotel*", "sellHotel", "Ok(1)"}));
    click(*ann, 3);  // the neighbour of a street with hotels may still be mortgaged
    EXPECT_EQ(buttons(card()), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
}

TEST_F(PropertyCard, MortgagedStreetShowsUnmortgageOnlyWhenTheReleaseCanBePaid) {
    give(*ann, {1, 3});
    ann->mortgageProp(1);
    click(*ann, 3);  // a mortgaged neighbour does not stop the building
    EXPECT_EQ(buttons(card()), (Buttons{"buyHotel", "sellHotel*", "Mortgage(1)", "Ok(1)"}));
    setBalance(*ann, 50);  // 45 * 1.1 = 49.5
    click(*ann, 1);
    EXPECT_EQ(buttons(card()), (Buttons{"Unmortgage", "Ok(0)"}));
    setBalance(*ann, 49);
    click(*ann, 1);
    EXPECT_EQ(buttons(card()), Buttons{"Ok(0)"});
}

TEST_F(PropertyCard, OwnMetroAndUtilityNeverShowTheHotelRow) {
    give(*ann, {5, 15, 25, 35, 12});
    click(*ann, 5);
    EXPECT_EQ(buttons(card()), (Buttons{"Mortgage(0)", "Ok(0)"}));
    ann->mortgageProp(5);
    click(*ann, 5);
    EXPECT_EQ(buttons(card()), (Buttons{"Unmortgage", "Ok(0)"}));
    click(*ann, 12);
    EXPECT_EQ(buttons(card()), (Buttons{"Mortgage(0)", "Ok(0)"}));
}

TEST_F(PropertyCard, AnotherPlayersCellIsOpenToATradeUnlessHotelsOrDebt) {
    give(*bob, {1, 5});
    click(*ann, 5);
    EXPECT_EQ(card().cardOpt(), kOptTrade);
    EXPECT_EQ(buttons(card()), (Buttons{"trade", "Ok(0)"}));
    setBalance(*ann, 0);
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptTrade);
    setBalance(*ann, -1);
    click(*ann, 5);
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(buttons(card()), Buttons{});
    setBalance(*ann, 1500);
    putHotels(1, 1);
    click(*ann, 1);
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(buttons(card()), Buttons{});
}

TEST_F(PropertyCard, BuyMakesTheLanderTheOwnerAndTellsOfIt) {
    land(*ann, 1);
    rec.clear();
    card().buy_Click();
    EXPECT_EQ(prop(1).getOwners(), ann);
    EXPECT_EQ(ann->getBalance(), 1410);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    EXPECT_TRUE(rec.has("showOwner(1)"));
    EXPECT_TRUE(rec.has("setEnabled(true)"));
    EXPECT_EQ(rec.log.back(), "showInfo: Ann has bought Saint-Antoine");
}

TEST_F(PropertyCard, ForgetLeavesTheCellWithTheBankAndTheLandingDealtWith) {
    land(*ann, 1);
    card().forget_Click();
    EXPECT_EQ(prop(1).getOwners(), nullptr);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    click(*ann, 1);  // still on it, but the landing is over: no second chance to buy
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    EXPECT_EQ(buttons(card()), Buttons{});
    card().close();
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
}

TEST_F(PropertyCard, PayRentMovesTheRentDueEvenBeyondTheCash) {
    give(*bob, {3});
    putHotels(3, 2);
    setBalance(*ann, 119);  // the bare rent of 10 is covered, the 120 due is not
    land(*ann, 3);
    EXPECT_EQ(buttons(card()), Buttons{"payRent"});
    card().payRent_Click();
    EXPECT_EQ(ann->getBalance(), -1);
    EXPECT_EQ(bob->getBalance(), 1620);
    EXPECT_TRUE(ann->getDidAction());
    EXPECT_FALSE(card().isVisible());
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must make money first");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
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
    EXPECT_EQ(rec.only({"sound", "showHotel"}),
              (Lines{"sound: pay.wav", "showHotel(1)", "sound: building.wav"}));

    click(*ann, 1);
    rec.clear();
    card().sellHotel_Click();
    EXPECT_EQ(street(1).getHotelCount(), 0);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.only({"sound", "showHotel"}), (Lines{"sound: buy.wav", "showHotel(1)"}));
}

TEST_F(PropertyCard, MortgageIsHeardFromTheMainWindowAndAgainFromTheCard) {
    attachMainWindow();
    give(*ann, {6});
    click(*ann, 6);
    rec.clear();
    card().Mortgage_Click(0);
    EXPECT_TRUE(prop(6).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1565);
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(
        rec.only({"sound", "showMort"}),
        (Lines{"sound: buy.wav", "showMort(6)", "sound: mortaged.wav", "sound: mortaged.wav"}));
}

TEST_F(PropertyCard, UnmortgageChargesTheMortgagePlusATenth) {
    give(*ann, {1});
    ann->mortgageProp(1);  // 1545
    click(*ann, 1);
    rec.clear();
    card().Unmortgage_Click();
    EXPECT_FALSE(prop(1).isMortgaged2());
    EXPECT_EQ(ann->getBalance(), 1495);
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
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must do something before you end your turn");
    EXPECT_TRUE(card().isVisible());
    EXPECT_EQ(card().cardOpt(), kOptRent);
}

TEST_F(PropertyCard, TradeButtonOpensTheBuyersFace) {
    give(*bob, {5});
    click(*ann, 5);
    rec.clear();
    card().trade_Click();
    EXPECT_FALSE(card().isVisible());
    EXPECT_EQ(rec.log, Lines{"setEnabled(true)"});
    ASSERT_TRUE(trading().isVisible());
    EXPECT_EQ(trading().face(), 1);
    EXPECT_EQ(trading().tradeBuyer(), ann);
    EXPECT_EQ(trading().tradeId(), 5);
    EXPECT_EQ((Lines{trading().label(1), trading().label(2), trading().label(3)}),
              (Lines{"Outremont", "Bob", "Ann"}));
    EXPECT_TRUE(trading().wantIt().isOpen());
}

}  // namespace
}  // namespace gw::test
