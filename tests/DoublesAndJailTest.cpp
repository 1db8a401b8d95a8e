// SPDX-License-Identifier: GPL-3.0-or-later
// The chain of doubles: a throw without doubles ends it, jail voids the throw it promised,
// and a failed throw in jail shows its message and buttons in their order.
#include "GameFixture.h"

namespace gw::test {
namespace {

class DoublesAndJail : public TwoHumans {
protected:
    // A human's throw and landing, as the Roll Dice button runs them.
    void throwAndLand(int a, int b) {
        nextThrow(a, b);
        board->playTurn();
    }
};

TEST_F(DoublesAndJail, AThrowWithoutDoublesEndsTheChainAndTheTurnPassesOn) {
    throwAndLand(5, 5);  // to the jail cell, only visiting
    board->endTurn();
    ASSERT_EQ(&board->getCurrPlayer(), ann);
    throwAndLand(1, 2);  // to Saint-Sulpice, for sale
    EXPECT_EQ(ann->getDoubleCount(), 0);
    onCard("forget");
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_EQ(rec.log.back(), "showInJail");
    EXPECT_EQ(rec.log[rec.log.size() - 2], "UpdateTurnPlaying(0)");
}

TEST_F(DoublesAndJail, DoublesAroundAThrowWithoutAreNotThreeInARow) {
    for (auto [a, b] : {std::pair{5, 5}, {1, 2}, {1, 1}, {5, 5}}) {
        nextThrow(a, b);
        board->rollDice();
    }
    EXPECT_FALSE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 25);
    EXPECT_EQ(ann->getDoubleCount(), 2);
    EXPECT_FALSE(rec.has("showInfo: Ann, you have rolled three doubles, go to jail!"));
}

// Doubles that end in jail, by the police or by the card: End Turn hands over at once.
TEST_F(DoublesAndJail, ADoubleThatEndsInJailGivesNoFurtherThrow) {
    struct Case {
        Integer from;
        int face;
    };
    // To the police, then to a card cell whose top card, in the fixture's deck, is the jail.
    for (const Case& c : {Case{24, 3}, Case{0, 1}}) {
        SCOPED_TRACE(c.from);
        placeAt(*ann, c.from);
        ann->getOutOfJail();
        throwAndLand(c.face, c.face);
        ASSERT_TRUE(ann->IsInJail());
        EXPECT_EQ(ann->getPosition(), 10);
        EXPECT_EQ(ann->getDoubleCount(), 1);
        board->endTurn();
        EXPECT_EQ(&board->getCurrPlayer(), bob);
        EXPECT_EQ(ann->getDoubleCount(), 0);
        EXPECT_TRUE(ann->IsInJail());
        board->endTurn();  // Bob on Go ends his turn: Ann's next one starts in jail
        ASSERT_EQ(&board->getCurrPlayer(), ann);
    }
}

TEST_F(DoublesAndJail, AFailedThrowInJailShowsItsMessageThenTheButtonsThenTheDice) {
    ann->goToJail();
    rec.clear();
    throwAndLand(1, 2);
    const Lines expected = {
        "showInfo: Ann, no doubles, stay in jail!",
        "UpdateTurnPlaying(1)",
        "Showdice(1,2)",
        "showCell(10)",  // the landing on the cell she never left
        "UpdateTurnPlaying(1)",
    };
    EXPECT_EQ(rec.log, expected);
    EXPECT_EQ(ann->getJailCount(), 1);
    EXPECT_EQ(ann->getPosition(), 10);
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_TRUE(ann->IsInJail());
}

}  // namespace
}  // namespace gw::test
