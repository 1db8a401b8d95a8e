// SPDX-License-Identifier: GPL-3.0-or-later
// The twenty card effects, drawn by landing on a card cell: money, moves round Go,
// the landings they bring about, nested draws and what End Turn makes of the result.
#include <algorithm>

#include "GameFixture.h"
#include "windows/JFLCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

class Cards : public TwoHumans {
protected:
    Cards() {
        // The tax card has no line of its own in the log: give it one.
        windows.taxCard.setOnChanged([this] {
            rec.log.push_back(windows.taxCard.isVisible() ? "taxCard up" : "taxCard down");
        });
    }
    // Deals the deck again with these types on top, the rest in rising order.
    void onTop(std::vector<int> top) {
        for (int t = 0; t < kDeckSize; ++t) {
            if (std::find(top.begin(), top.end(), t) == top.end()) top.push_back(t);
        }
        for (double r : deckDraws(top)) random->push(r);
        board->getJFLDeck().init();
    }
    // Ann, with 1500 and no card up, lands on a card cell with this card on top.
    void draw(int type, Integer cellId) {
        onCard("close");
        onTop({type});
        setBalance(*ann, 1500);
        land(*ann, cellId);
    }
    Lines moves() const { return rec.only({"MoveToken", "sound"}); }
};

TEST_F(Cards, MoneyCardsPayOrTakeTheirSumWithTheMatchingSound) {
    struct Case {
        int type;
        const char* text;
        Integer balance;
    };
    const Case cases[] = {
        {3, "Collect $250 from bank", 1750}, {4, "Collect $200 from bank", 1700},
        {5, "Collect $150 from bank", 1650}, {6, "Collect $100 from bank", 1600},
        {7, "Collect $50 from bank", 1550},  {8, "Pay $250 to bank", 1250},
        {9, "Pay $200 to bank", 1300},       {10, "Pay $150 to bank", 1350},
        {11, "Pay $100 to bank", 1400},      {12, "Pay $50 to bank", 1450},
    };
    for (const Case& c : cases) {
        draw(c.type, 22);
        const Lines expected = {std::string("showInfo: ") + c.text,
                                "wait 20",
                                "setEnabled(true)",
                                c.balance > 1500 ? "sound: buy.wav" : "sound: pay.wav",
                                "showNegBalance(false)",
                                "UpdatePlayers",
                                "showCell(22)"};
        EXPECT_EQ(rec.log, expected) << c.text;
        EXPECT_EQ(ann->getBalance(), c.balance) << c.text;
        EXPECT_EQ(ann->getPosition(), 22) << c.text;
    }
}

TEST_F(Cards, PayingMoreThanTheHandLeavesADebt) {
    onTop({8});
    setBalance(*ann, 100);
    land(*ann, 7);
    EXPECT_EQ(ann->getBalance(), -150);
    EXPECT_TRUE(rec.has("showNegBalance(true)"));
}

TEST_F(Cards, AdvanceCardsFromEveryCardCellPayGoMoneyOnlyWhenPassingGo) {
    // Green (37) lies ahead of every card cell, St-Laurent (16) ahead of 2 and 7 only.
    const std::pair<Integer, Integer> stLaurent[] = {{2, 1500},  {7, 1500},  {17, 1700},
                                                     {22, 1700}, {33, 1700}, {36, 1700}};
    for (const auto& [cellId, balance] : stLaurent) {
        SCOPED_TRACE(cellId);
        draw(kPassGo, cellId);
        EXPECT_EQ(ann->getPosition(), 0);
        EXPECT_EQ(ann->getBalance(), 1700);
        EXPECT_EQ(rec.count("sound: buy.wav"), 1);
        EXPECT_FALSE(rec.has("showCell(0)"));  // Go is reached, not landed on
        EXPECT_EQ(rec.log.back(), "showCell(" + std::to_string(cellId) + ")");
        draw(kGreen, cellId);
        EXPECT_EQ(ann->getPosition(), 37);
        EXPECT_EQ(ann->getBalance(), 1500);
        EXPECT_TRUE(cardUp());
        EXPECT_EQ(cardCell(), 37);
        EXPECT_EQ(cardOpt(), kOptBuy);
        draw(kStLaurent, cellId);
        EXPECT_EQ(ann->getPosition(), 16);
        EXPECT_EQ(ann->getBalance(), balance);
        EXPECT_EQ(cardCell(), 16);
        EXPECT_EQ(cardOpt(), kOptBuy);
    }
    // The last, from 36: via Go, then on to 16.
    EXPECT_EQ(moves(), (Lines{"MoveToken(0,36,39)", "sound: buy.wav", "MoveToken(0,0,0)",
                              "MoveToken(0,0,16)"}));
}

TEST_F(Cards, ForwardCardsPayGoMoneyOnTheWayAndLandWhereTheyEnd) {
    draw(kForward7, 33);  // onto Go itself
    EXPECT_EQ(ann->getPosition(), 0);
    EXPECT_EQ(ann->getBalance(), 1700);
    EXPECT_EQ(rec.count("sound: buy.wav"), 1);
    EXPECT_EQ(rec.only({"showCell"}), (Lines{"showCell(33)", "showCell(0)", "showCell(33)"}));
    draw(kForward7, 36);
    EXPECT_EQ(ann->getPosition(), 3);
    EXPECT_EQ(ann->getBalance(), 1700);

    draw(kForward11, 33);  // the Go money comes before the income tax card opens
    EXPECT_EQ(ann->getPosition(), 4);
    EXPECT_EQ(ann->getBalance(), 1700);  // the tax waits for the player's click
    const Lines expected = {
        "showCell(33)",  // redrawn as the token leaves it
        "MoveToken(0,33,39)", "sound: buy.wav", "MoveToken(0,0,4)",
        "taxCard up",         "showCell(4)",    "showCell(33)",
    };
    EXPECT_EQ(rec.only({"MoveToken", "sound", "taxCard", "showCell"}), expected);
}

TEST_F(Cards, BackThreeGoesRoundWithoutGoMoneyAndLandsWhereItEnds) {
    draw(kBack3, 2);
    EXPECT_EQ(ann->getPosition(), 39);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(cardCell(), 39);

    draw(kBack3, 7);
    EXPECT_EQ(ann->getPosition(), 4);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(moves(), (Lines{"MoveToken(0,7,39)", "MoveToken(0,0,4)"}));
    EXPECT_TRUE(rec.has("taxCard up"));

    draw(kBack3, 33);  // onto Police
    EXPECT_TRUE(rec.has("sound: newpolice.wav"));
    EXPECT_TRUE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 10);
    EXPECT_EQ(ann->getBalance(), 1500);
}

// That it voids a throw of doubles, as the police do, is checked with the turn.
TEST_F(Cards, GoToJailWalksToJailUnpaid) {
    draw(kGoToJailCard, 36);
    EXPECT_TRUE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 10);
    EXPECT_EQ(ann->getBalance(), 1500);  // past Go on the way, unpaid
    EXPECT_TRUE(rec.has("showInfo: Go to jail!"));
    EXPECT_EQ(rec.log.back(), "showCell(36)");
}

TEST_F(Cards, NestedDrawFinishesTheOuterCardAfterTheInnerOne) {
    onTop({kForward5, 7});
    land(*ann, 2);
    const Lines expected = {
        "showInfo: Move forward 5 cells",
        "wait 20",
        "setEnabled(true)",
        "UpdateTurnPlaying(2)",
        "showCell(2)",
        "MoveToken(0,2,7)",
        "showInfo: Collect $50 from bank",
        "wait 20",
        "setEnabled(true)",
        "sound: buy.wav",
        "showNegBalance(false)",
        "UpdatePlayers",
        "showCell(7)",
        "showCell(2)",
    };
    EXPECT_EQ(rec.log, expected);
    EXPECT_EQ(ann->getBalance(), 1550);
    EXPECT_EQ(board->getJFLDeck().getCursor(), 2);
}

TEST_F(Cards, DoNothingShowsTheCardForTheWaitAndChangesNothing) {
    draw(kDoNothing, 17);
    EXPECT_EQ(rec.log,
              (Lines{"showInfo: Do Nothing", "wait 20", "setEnabled(true)", "showCell(17)"}));
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(ann->getPosition(), 17);
    EXPECT_EQ(windows.jflCard.Label2(), "Do Nothing");
    EXPECT_FALSE(windows.jflCard.isVisible());

    rec.clear();  // shown on its own, the card stays up until Ok
    windows.jflCard.showJFLCard("Do Nothing");
    EXPECT_TRUE(windows.jflCard.isVisible());
    EXPECT_EQ(rec.log, Lines{"showInfo: Do Nothing"});
    rec.clear();
    windows.jflCard.Ok_Click();
    EXPECT_EQ(rec.log, Lines{"setEnabled(true)"});
    EXPECT_FALSE(windows.jflCard.isVisible());
}

TEST_F(Cards, HumanMovedOntoAPropertyMustDealWithItsCardBeforeEndTurn) {
    draw(kGreen, 33);
    onCard("close");  // the close box is not a decision
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must do something before you end your turn");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    EXPECT_TRUE(cardUp());  // the landing ran again
    EXPECT_EQ(cardOpt(), kOptBuy);
}

}  // namespace
}  // namespace gw::test
