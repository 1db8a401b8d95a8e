// SPDX-License-Identifier: GPL-3.0-or-later
// The JFL deck: the fixed cycle of twenty cards, the scatter that deals it, and the jail
// card that leaves the cycle while held and comes back just behind the cursor.
#include <algorithm>
#include <set>

#include "GameFixture.h"

namespace gw::test {
namespace {

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
    EXPECT_EQ(drawTypes(20), (std::vector<int>{6,  7,  8,  9,  10, 11, 12, 13, 14, 15,
                                               16, 17, 18, 19, 0,  2,  3,  4,  5,  1}));
}

TEST_F(JailCard, ABankruptHolderTakesItOutOfPlayForGood) {
    land(*ann, 22);
    ann->declareBankruptcy();  // nobody gives the card back
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_FALSE(deck().getInDeck());
    const auto cycle = drawTypes(19);
    EXPECT_EQ(std::set<int>(cycle.begin(), cycle.end()).size(), 19u);
    EXPECT_EQ(std::count(cycle.begin(), cycle.end(), kJailFreeCard), 0);
    EXPECT_EQ(drawTypes(19), cycle);
    expectTwentyDistinct();
}

}  // namespace
}  // namespace gw::test
