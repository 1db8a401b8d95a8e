// SPDX-License-Identifier: GPL-3.0-or-later
// The JFL deck and its cards. The deck: the fixed cycle of twenty cards, the scatter that
// deals it, and the jail card that leaves the cycle while held and comes back just behind the
// cursor. The twenty card effects, drawn by landing on a card cell: money, moves round Go,
// the landings they bring about, nested draws and what End Turn makes of the result.
#include <algorithm>
#include <set>

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
    // Each card's own calls are checked above; here the order of the two.
    const Lines expected = {
        "showInfo: Move forward 5 cells",
        "showCell(2)",
        "MoveToken(0,2,7)",
        "showInfo: Collect $50 from bank",
        "sound: buy.wav",
        "showCell(7)",
        "showCell(2)",
    };
    EXPECT_EQ(rec.only({"showInfo", "showCell", "MoveToken", "sound"}), expected);
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

// A scrambled deck with the jail card last and "Go to jail" in slot 1.
const std::vector<int> kScrambled = {13, 0,  2,  19, 4,  5,  6,  7,  8,  9,
                                     10, 11, 12, 3,  14, 15, 16, 17, 18, 1};

// The types in rising order, with the jail card moved into the slot.
std::vector<int> withJailAt(int slot) {
    std::vector<int> order = {0};
    for (int t = 2; t < kDeckSize; ++t) order.push_back(t);
    order.insert(order.begin() + slot, kJailFreeCard);
    return order;
}

class Deck : public GameFixture {
protected:
    Deck() : GameFixture(kScrambled) {}

    JFLDeck& deck() { return board->getJFLDeck(); }
    std::vector<int> types() {
        std::vector<int> t;
        for (int s = 0; s < kDeckSize; ++s) t.push_back(deck().cardAt(s).getType());
        return t;
    }
    std::vector<int> drawTypes(int count) {
        std::vector<int> t;
        for (int i = 0; i < count; ++i) t.push_back(deck().getCard().getType());
        return t;
    }
    // Builds the deck again from raw draws, one for each of the values 1 to 19.
    void dealFrom(const std::vector<double>& draws) {
        for (double r : draws) random->push(r);
        deck().init();
    }
    void deal(const std::vector<int>& order) { dealFrom(deckDraws(order)); }
    // Deals the jail card into a slot, draws it and walks the cursor to the target.
    void holdJailAt(int slot, int cursor) {
        deal(withJailAt(slot));
        drawTypes(slot + 1);
        for (int guard = 0; guard < 2 * kDeckSize && deck().getCursor() != cursor; ++guard) {
            deck().getCard();
        }
        ASSERT_EQ(deck().getCursor(), cursor);
        ASSERT_FALSE(deck().getInDeck());
    }
    void expectTwentyDistinct() {
        const auto t = types();
        EXPECT_EQ(std::set<int>(t.begin(), t.end()).size(), 20u);
    }
};

TEST_F(Deck, TwentyDrawsGiveEachCardOnceAndTheSameObjectsComeRoundAgain) {
    std::vector<const JFLCard*> first;
    for (int i = 0; i < kDeckSize; ++i) first.push_back(&deck().getCard());
    std::vector<int> firstTypes;
    for (const JFLCard* c : first) firstTypes.push_back(c->getType());
    EXPECT_EQ(firstTypes, kScrambled);
    EXPECT_EQ(&deck().getCard(), first[0]);  // no new shuffle when the cycle starts again
    EXPECT_EQ(&deck().getCard(), first[1]);  // "Go to jail", drawn once, is still in its slot
    EXPECT_EQ(deck().getCursor(), 2);
}

TEST_F(Deck, WhileTheJailCardIsHeldTheCycleIsNineteenDrawsAndSkipsItAcrossTheWrap) {
    drawTypes(kDeckSize);  // the last is the jail card: now held
    EXPECT_FALSE(deck().getInDeck());
    const std::vector<int> nineteen(kScrambled.begin(), kScrambled.end() - 1);
    EXPECT_EQ(drawTypes(19), nineteen);
    EXPECT_EQ(deck().getCursor(), 19);          // on the held card
    EXPECT_EQ(deck().getCard().getType(), 13);  // slot 0
    EXPECT_EQ(deck().getCursor(), 1);
    EXPECT_EQ(drawTypes(18), std::vector<int>(nineteen.begin() + 1, nineteen.end()));
    expectTwentyDistinct();
}

TEST_F(Deck, InsertJailPutsTheCardInTheSlotJustBehindTheCursor) {
    struct Case {
        int slot, cursor;
        std::vector<int> types;
    };
    const Case cases[] = {
        // To slot 0: the cards of slots 0 to 4 move back one to make room.
        {5, 1, {1, 0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
        // From cursor 0, behind it is the last slot.
        {5, 0, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 1}},
        // To slot 11: slots 6 to 11 move forward one.
        {5, 12, {0, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 1, 12, 13, 14, 15, 16, 17, 18, 19}},
        // To slot 5: slots 5 to 14 move back one.
        {15, 6, {0, 2, 3, 4, 5, 1, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE("from slot " + std::to_string(c.slot) + ", cursor " +
                     std::to_string(c.cursor));
        holdJailAt(c.slot, c.cursor);
        deck().insertJail();
        EXPECT_EQ(types(), c.types);
        EXPECT_EQ(deck().getCursor(), c.cursor);
        EXPECT_TRUE(deck().getInDeck());
        EXPECT_EQ(drawTypes(20).back(), kJailFreeCard);  // the slot the cursor reaches last
    }
}

TEST_F(Deck, ShufflePassesTakenSlotsOnAndWrapsAtNineteenEvenWhenAllHitTheLast) {
    auto at = [](int s) { return ScriptedRandom::slot(s, kDeckSize); };
    // 1 -> 17, 2 -> 18; 3 hits 17, finds 18 taken and wraps to 0 without trying 19;
    // 4 -> 19; 5 hits 19: on to 0, 1; 6 hits 18: on past 19 to 2; 7 to 18 -> 3 to 14;
    // 19 hits 17 and searches round to 15. Target 16 stays free: card 16 gets slot 0.
    std::vector<double> draws = {at(17), at(18), at(17), at(19), at(19), at(18)};
    for (int s = 3; s <= 14; ++s) draws.push_back(at(s));
    draws.push_back(at(17));
    dealFrom(draws);
    EXPECT_EQ(types(), (std::vector<int>{16, 17, 18, 0, 19, 1,  2,  3,  4,  5,
                                         6,  7,  8,  9, 10, 11, 12, 13, 14, 15}));
    EXPECT_EQ(deck().getCursor(), 0);
    EXPECT_TRUE(deck().getInDeck());

    // 1 -> 19, then 2 to 19 each wrap to the first free slot from 0: target 18 stays free.
    dealFrom(std::vector<double>(19, ScriptedRandom::slot(19, kDeckSize)));
    EXPECT_EQ(types(), (std::vector<int>{18, 19, 0,  1,  2,  3,  4,  5,  6,  7,
                                         8,  9,  10, 11, 12, 13, 14, 15, 16, 17}));
}

TEST_F(Deck, ASecondInitDealsANewDeckWithTheCursorAtZero) {
    drawTypes(kDeckSize);  // the jail card is held, the cursor back on 0
    drawTypes(3);
    for (double r : deckDraws(deckInOrder())) random->push(r);
    board->init();
    EXPECT_EQ(types(), deckInOrder());
    EXPECT_EQ(deck().getCursor(), 0);
    EXPECT_TRUE(deck().getInDeck());
}

class JailCard : public Deck {
protected:
    JailCard() { deal(withJailAt(0)); }
    player* ann = &addHuman("Ann", 1);
    player* bob = &addHuman("Bob", 2);
};

TEST_F(JailCard, DrawnItIsHeldThenUsedItReturnsBehindTheCursor) {
    land(*ann, 22);
    EXPECT_TRUE(rec.has("showInfo: Get Out of Jail Free Card"));
    EXPECT_TRUE(ann->hasGoJFC());
    EXPECT_FALSE(deck().getInDeck());
    EXPECT_EQ(ann->getBalance(), 1500);

    drawTypes(5);  // others draw on: the cursor moves to 6
    ann->goToJail();
    ann->useGOJFC();
    EXPECT_FALSE(ann->hasGoJFC());
    EXPECT_TRUE(deck().getInDeck());
    EXPECT_FALSE(ann->IsInJail());
    // Back into slot 5, the last that the cursor reaches; slots 1 to 5 move forward one.
    EXPECT_EQ(types(), withJailAt(5));
    EXPECT_EQ(deck().getCursor(), 6);
}

TEST_F(JailCard, ABankruptHolderTakesItOutOfPlayForGood) {
    land(*ann, 22);
    ann->declareBankruptcy();  // nobody gives the card back
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_FALSE(deck().getInDeck());  // the cycle without it is checked with the deck
}

}  // namespace
}  // namespace gw::test
