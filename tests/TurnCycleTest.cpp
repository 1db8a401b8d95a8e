// SPDX-License-Identifier: GPL-3.0-or-later
// A turn from the throw to the hand-over: moves, Go money, the chain of doubles, jail and the
// two refusals of End Turn, checked against the recorded order of window calls and sounds.
#include "GameFixture.h"

namespace gw::test {
namespace {

class TurnCycle : public TwoHumans {
protected:
    // A human's throw and landing, as the Roll Dice button runs them.
    void throwAndLand(int a, int b) {
        nextThrow(a, b);
        board->playTurn();
    }
};

TEST_F(TurnCycle, ThrowPassingGoWalksInTwoStrokesWithTheGoMoneyBetween) {
    placeAt(*ann, 38);
    nextThrow(2, 3);
    board->rollDice();
    const Lines expected = {
        "UpdateTurnPlaying(2)",  "showCell(38)",  "MoveToken(0,38,39)", "sound: buy.wav",
        "showNegBalance(false)", "UpdatePlayers", "MoveToken(0,0,3)",
    };
    EXPECT_EQ(rec.only({"UpdateTurnPlaying", "showCell", "MoveToken", "sound", "showNegBalance",
                        "UpdatePlayers"}),
              expected);
    EXPECT_EQ(ann->getPosition(), 3);
    EXPECT_EQ(ann->getBalance(), 1700);
}

TEST_F(TurnCycle, DoublesLetTheSamePlayerGoAgainUntilAThrowWithout) {
    throwAndLand(5, 5);  // to the jail cell, only visiting
    EXPECT_TRUE(rec.has("showInfo: Ann, you have rolled doubles, go again!"));
    EXPECT_EQ(ann->getPosition(), 10);
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    EXPECT_EQ(rec.log.back(), "showInJail");
    EXPECT_EQ(rec.log[rec.log.size() - 2], "UpdateTurnPlaying(0)");
    throwAndLand(1, 2);  // to Saint-Sulpice, for sale
    EXPECT_EQ(ann->getDoubleCount(), 0);
    onCard("forget");
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_EQ(rec.log.back(), "showInJail");
    EXPECT_EQ(rec.log[rec.log.size() - 2], "UpdateTurnPlaying(0)");
}

TEST_F(TurnCycle, ThreeDoublesSendToJailWithoutGoMoneyAndEndTheTurn) {
    placeAt(*ann, 34);
    nextThrow(1, 1);
    board->rollDice();  // to 36: a card cell, not acted on here
    nextThrow(1, 1);
    board->rollDice();  // to 38
    rec.clear();
    nextThrow(2, 2);
    board->rollDice();
    const Lines expected = {
        "showInfo: Ann, you have rolled doubles, go again!",
        "showInfo: Ann, you have rolled three doubles, go to jail!",
        "sound2: newpolice.wav",
        "showInfo: Go to jail!",
        "sound: jailthere.wav",
        "Showdice(2,2)",
    };
    EXPECT_EQ(rec.only({"showInfo", "sound", "Showdice"}), expected);
    EXPECT_EQ(ann->getPosition(), 10);
    EXPECT_TRUE(ann->IsInJail());
    EXPECT_EQ(ann->getBalance(), 1500);  // the walk by Go paid nothing

    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
    EXPECT_EQ(ann->getDoubleCount(), 0);
}

// A failed throw in jail shows its message, then the buttons, then the dice; the third frees
// and moves.
TEST_F(TurnCycle, JailThrowsFailTwiceThenTheThirdFailureFreesAndMoves) {
    ann->goToJail();
    for (int attempt = 1; attempt <= 2; ++attempt) {
        rec.clear();
        throwAndLand(1, 2);
        EXPECT_EQ(rec.log, (Lines{"showInfo: Ann, no doubles, stay in jail!",
                                  "UpdateTurnPlaying(1)", "Showdice(1,2)",
                                  "showCell(10)",  // the landing on the cell she never left
                                  "UpdateTurnPlaying(1)"}));
        EXPECT_TRUE(ann->IsInJail());
        EXPECT_EQ(ann->getPosition(), 10);
        EXPECT_EQ(ann->getJailCount(), attempt);
        board->endTurn();
        EXPECT_EQ(&board->getCurrPlayer(), bob);
        board->endTurn();  // Bob on Go ends his turn
    }
    rec.clear();
    throwAndLand(1, 2);
    EXPECT_TRUE(rec.has("showInfo: Ann, no doubles, stay in jail!"));
    EXPECT_FALSE(ann->IsInJail());
    EXPECT_EQ(ann->getJailCount(), 0);
    EXPECT_EQ(ann->getPosition(), 13);
    EXPECT_EQ(ann->getBalance(), 1500);
}

TEST_F(TurnCycle, DoublesInJailFreeMoveAndThrowAgain) {
    ann->goToJail();
    rec.clear();
    nextThrow(4, 4);
    board->playTurn();
    EXPECT_TRUE(rec.has("showInfo: Good JobAnn, you can now get out of jail!"));
    EXPECT_FALSE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 18);
    onCard("forget");
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), ann);
}

TEST_F(TurnCycle, AHumanTurnEndsOnlyWhenTheLandingIsDealtWithAndNothingIsOwed) {
    nextThrow(1, 2);
    board->playTurn();
    EXPECT_EQ(ann->getPosition(), 3);
    EXPECT_EQ(rec.log.back(), "UpdateTurnPlaying(1)");
    EXPECT_TRUE(cardUp());  // the purchase card of Saint-Jacques
    EXPECT_EQ(cardOpt(), kOptBuy);
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must do something before you end your turn");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    EXPECT_TRUE(cardUp());  // the landing ran again

    onCard("forget");
    setBalance(*ann, -1);
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must make money first");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    setBalance(*ann, 0);
    board->endTurn();  // a balance of exactly 0 passes
    EXPECT_EQ(&board->getCurrPlayer(), bob);

    for (Integer cellId : {0, 10, 20}) {  // cells that ask for nothing
        board->endTurn();                 // Bob on Go
        ASSERT_EQ(&board->getCurrPlayer(), ann);
        placeAt(*ann, cellId);
        board->endTurn();
        EXPECT_EQ(&board->getCurrPlayer(), bob) << cellId;
    }
}

class TurnOrder : public GameFixture {};

TEST_F(TurnOrder, BankruptPlayersAreSkippedAndTheOrderWraps) {
    for (const char* name : {"A", "B", "C", "D"}) addHuman(name);
    board->endTurn();                            // A to B
    board->getCurrPlayer().declareBankruptcy();  // B gives up: on to C
    EXPECT_EQ(board->getCurrPlayerIndex(), 2);
    board->endTurn();                            // C to D
    board->getCurrPlayer().declareBankruptcy();  // the last slot: wraps to A
    EXPECT_EQ(board->getCurrPlayerIndex(), 0);
    board->endTurn();  // from A, past B, to C
    EXPECT_EQ(board->getCurrPlayerIndex(), 2);
}

TEST_F(TurnOrder, ShufflePlayersScattersIntoARingAndRenumbers) {
    for (const char* name : {"A", "B", "C", "D"}) addHuman(name);
    // Slots 2, 2 (taken: on to 3), 3 (taken: wraps to 0), 0 (on to 1).
    for (int s : {2, 2, 3, 0}) random->push(ScriptedRandom::slot(s, 4));
    board->shufflePlayers();
    Lines names;
    for (Integer i = 0; i < 4; ++i) {
        names.push_back(board->getPlayer(i)->getName());
        EXPECT_EQ(board->getPlayer(i)->getId(), i);
    }
    EXPECT_EQ(names, (Lines{"C", "D", "A", "B"}));
}

TEST_F(TurnOrder, ShuffleOfOnePlayerKeepsSlotZero) {
    addHuman("Solo");
    board->shufflePlayers();
    EXPECT_EQ(board->getPlayer(0)->getName(), "Solo");
    EXPECT_EQ(board->getPlayer(0)->getId(), 0);
}

TEST_F(TurnCycle, DoublesAroundAThrowWithoutAreNotThreeInARow) {
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
TEST_F(TurnCycle, ADoubleThatEndsInJailGivesNoFurtherThrow) {
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

}  // namespace
}  // namespace gw::test
