// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's message line, dice, tokens and board marks as the rules drive them, and
// the clicks of a human through it; its turn buttons are checked turn by turn with clicks.
#include <functional>

#include "GameFixture.h"

namespace gw::test {
namespace {

// A delay that runs a click inside the first wait it is asked for, as a real wait would
// when the user clicks during an animation.
class ClickingDelay final : public Delay {
public:
    std::function<void()> click;
    int waits = 0;
    void wait(Integer) override {
        ++waits;
        if (click) std::exchange(click, nullptr)();
    }
};

class Window : public GameFixture {
protected:
    Window() {
        rec.model = &model;
        model.init(*board);
    }
    void start(std::initializer_list<bool> computers) {
        int n = 0;
        for (bool computer : computers) {
            board->addPlayer("P" + std::to_string(n), computer, static_cast<Integer>(n + 4));
            ++n;
        }
        for (int s = 0; s < n; ++s) random->push(ScriptedRandom::slot(s, n));  // keep the order
        model.startGame();
    }
    // The token pictures in the cell's squares, up to the first empty one.
    std::vector<int> squares(int cellId) const {
        std::vector<int> shown;
        for (int s = 0; s < 6 && model.square(cellId, s) != kNoPicture; ++s) {
            shown.push_back(model.square(cellId, s));
        }
        return shown;
    }
    ClickingDelay delay;
    MainWindow model{rec, delay};
};

TEST_F(Window, AHumanFirstIsAskedToRollThenEndTurnHandsOverAndWritesTheTurnLine) {
    start({false, false});
    EXPECT_EQ(model.Label2(), "P0");
    EXPECT_EQ(model.turnBar(), 0);
    EXPECT_EQ(model.playToken(), 4);
    EXPECT_EQ(model.panel(1).balance.caption, "1500");
    EXPECT_TRUE(model.bigToken(1).visible);
    EXPECT_EQ(model.Label1(), "Let the game begin!");

    nextThrow(5, 6);  // to Notre-Dame, unowned
    model.rollDice_Click();
    EXPECT_EQ(rec.log.front(), "sound: DICEROLL.wav");
    EXPECT_EQ(model.bigToken(0).cell, 11);
    EXPECT_EQ(model.dieFace1(), 5);
    EXPECT_EQ(model.dieFace2(), 6);
    model.endTurn_Click();  // refused: the purchase card was not answered
    EXPECT_EQ(model.Label1(), "P0, its your turn to play.");
    EXPECT_EQ(board->getCurrPlayerIndex(), 0);
    onCard("forget");
    model.endTurn_Click();
    EXPECT_EQ(board->getCurrPlayerIndex(), 1);
    EXPECT_EQ(model.Label1(), "P1, its your turn to play.");
}

TEST_F(Window, ASecondClickOnRollDuringTheAnimationIsDropped) {
    start({false, false});
    nextThrow(1, 2);
    delay.click = [this] { model.rollDice_Click(); };
    model.rollDice_Click();
    EXPECT_EQ(rec.count("sound: DICEROLL.wav"), 1);
    EXPECT_EQ(board->getCurrPlayer().getPosition(), 3);
}

TEST_F(Window, CellClicksOpenCardsOnlyOnBuyableCellsAndOnlyForAHuman) {
    start({false, false});
    player& p0 = board->getCurrPlayer();
    model.cell_Click(10);
    model.cell_Click(4);
    EXPECT_FALSE(cardUp());
    model.cell_Click(39);
    EXPECT_TRUE(cardUp());
    EXPECT_EQ(cardOpt(), kOptInfo);
    onCard("Ok(0)");

    // On the cell under the token before the roll, the landing runs again.
    give(*board->getPlayer(1), {1});
    placeAt(p0, 1);
    p0.setDidAction(false);
    model.cell_Click(1);
    EXPECT_EQ(cardOpt(), kOptRent);
    onCard("payRent");
    model.cell_Click(1);
    EXPECT_EQ(cardOpt(), kOptTrade);  // dealt with: the card only, open to a trade
    onCard("Ok(0)");

    p0.goToJail();
    model.UpdateTurnPlaying(TurnButtons::Roll);
    model.showInfo("");
    model.cell_Click(5);
    EXPECT_TRUE(cardUp());
    EXPECT_TRUE(model.pay50Rent().visible);  // the jail buttons and message come back
    EXPECT_EQ(model.Label1(), "P0, you are in jail. Please roll a double or pay 50 to get out!");
}

TEST_F(Window, BoardMarksFollowTheRules) {
    start({false, false, false});
    player& p0 = board->getCurrPlayer();
    player& p1 = *board->getPlayer(1);
    placeAt(p0, 8);
    placeAt(*board->getPlayer(2), 8);
    board->getCell(8)->display();  // the tokens of those on the cell, packed from the first
    EXPECT_EQ(model.square(8, 0), 4);
    EXPECT_EQ(model.square(8, 1), 6);
    EXPECT_EQ(model.square(8, 2), kNoPicture);
    give(p1, {8});
    EXPECT_EQ(model.ownerMark(8), 5);
    p1.mortgageProp(8);
    EXPECT_TRUE(model.mortgageShown(8));
    EXPECT_EQ(rec.count("sound: mortaged.wav"), 1);
    p1.unmortgageProp(8);  // lifting a mortgage is silent
    EXPECT_FALSE(model.mortgageShown(8));
    EXPECT_EQ(rec.count("sound: mortaged.wav"), 1);
    setBalance(p0, -50);
    model.UpdatePlayers();
    EXPECT_EQ(model.panel(0).balance.caption, "-50");
}

// A token leaves the squares of the cell it walks away from and fills those it lands on.
TEST_F(Window, AThrowRedrawsTheCellLeftWithoutTheToken) {
    using Tokens = std::vector<int>;
    start({false, false});
    player& p0 = board->getCurrPlayer();
    nextThrow(1, 2);
    board->playTurn();                 // Go to Saint-Jacques
    EXPECT_EQ(squares(0), Tokens{5});  // P1 stays on Go
    EXPECT_EQ(squares(3), Tokens{4});

    onCard("forget");
    board->endTurn();
    nextThrow(2, 1);
    board->playTurn();  // P1 joins her
    EXPECT_EQ(squares(0), Tokens{});
    EXPECT_EQ(squares(3), (Tokens{4, 5}));

    onCard("forget");
    board->endTurn();
    placeAt(p0, 38);
    board->getCell(38)->display();
    ASSERT_EQ(squares(38), Tokens{4});
    nextThrow(2, 3);
    board->playTurn();  // round Go, back to Saint-Jacques
    EXPECT_EQ(squares(38), Tokens{});
    EXPECT_EQ(squares(3), (Tokens{4, 5}));
}

TEST_F(Window, AWalkTakesOneStepMoreThanItsCellsAndABackwardCallNone) {
    start({false, false});
    rec.clear();
    delay.waits = 0;
    model.MoveToken(0, 5, 8);
    EXPECT_EQ(delay.waits, 4);
    EXPECT_EQ(rec.count("sound: tokenmove.wav"), 4);
    model.MoveToken(0, 5, 2);
    EXPECT_EQ(delay.waits, 4);
    EXPECT_EQ(model.bigToken(0).cell, 8);
    model.Showdice(3, 4);
    EXPECT_EQ(delay.waits, 10);
}

TEST_F(Window, SoundMenuSetsTheVolumeOfTheMainPlayers) {
    model.Mute_Click();
    model.Enable_Click();
    EXPECT_EQ(rec.log,
              (Lines{"volume 0 -3000", "volume 1 -3000", "volume 0 -600", "volume 1 -600"}));
}

}  // namespace
}  // namespace gw::test
