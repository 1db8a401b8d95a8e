// SPDX-License-Identifier: GPL-3.0-or-later
// The main window's buttons, message line and board marks as the rules drive them, and
// the clicks of a human through it.
#include <functional>

#include "GameFixture.h"
#include "windows/CellInfoWindow.h"

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
    Lines buttons() const {
        return shown("rollDice endTurn declareBank pay50Rent useJFLCard",
                     {&model.rollDice(), &model.endTurn(), &model.declareBank(), &model.pay50Rent(),
                      &model.useJFLCard()});
    }
    ClickingDelay delay;
    MainWindow model{rec, delay};
};

TEST_F(Window, AHumanFirstIsAskedToRollThenEndTurnHandsOverAndWritesTheTurnLine) {
    start({false, false});
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"}));
    EXPECT_EQ(model.Label2(), "P0");
    EXPECT_EQ(model.turnBar(), 0);
    EXPECT_EQ(model.playToken(), 4);
    EXPECT_EQ(model.panel(1).balance.caption, "1500");
    EXPECT_TRUE(model.bigToken(1).visible);
    EXPECT_EQ(model.Label1(), "Let the game begin!");

    nextThrow(5, 6);  // to Notre-Dame, unowned
    model.rollDice_Click();
    EXPECT_EQ(rec.log.front(), "sound: DICEROLL.wav");
    EXPECT_EQ(buttons(), (Lines{"rollDice*", "endTurn"}));
    EXPECT_EQ(model.bigToken(0).cell, 11);
    EXPECT_EQ(model.dieFace1(), 5);
    EXPECT_EQ(model.dieFace2(), 6);
    model.endTurn_Click();  // refused: the purchase card was not answered
    EXPECT_EQ(model.Label1(), "P0, its your turn to play.");
    EXPECT_EQ(board->getCurrPlayerIndex(), 0);
    card().forget_Click();
    model.endTurn_Click();
    EXPECT_EQ(board->getCurrPlayerIndex(), 1);
    EXPECT_EQ(model.Label1(), "P1, its your turn to play.");
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"}));
}

TEST_F(Window, ASecondClickOnRollDuringTheAnimationIsDropped) {
    start({false, false});
    nextThrow(1, 2);
    delay.click = [this] { model.rollDice_Click(); };
    model.rollDice_Click();
    EXPECT_EQ(rec.count("sound: DICEROLL.wav"), 1);
    EXPECT_EQ(board->getCurrPlayer().getPosition(), 3);
}

TEST_F(Window, AComputerFirstPlaysUntilAHumanIsCurrent) {
    start({true, false});
    EXPECT_EQ(board->getCurrPlayerIndex(), 1);
    EXPECT_TRUE(model.rollDice().isOpen());
}

TEST_F(Window, JailButtonsFollowBalanceAndCard) {
    start({false, false});
    player& p = board->getCurrPlayer();
    p.goToJail();
    setBalance(p, 49);
    model.UpdateTurnPlaying(TurnButtons::Roll);  // a later turn: to throw, in jail
    model.showInJail();
    const auto jailButtons = [this] {
        return shown("pay50Rent useJFLCard", {&model.pay50Rent(), &model.useJFLCard()});
    };
    EXPECT_EQ(jailButtons(), Lines{"pay50Rent*"});
    EXPECT_EQ(model.Label1(), "P0, you are in jail. Please roll a double or pay 50 to get out!");
    setBalance(p, 50);
    p.setHasGoJFC(true);
    model.showInJail();
    EXPECT_EQ(jailButtons(), (Lines{"pay50Rent", "useJFLCard"}));
    nextThrow(1, 2);
    model.pay50Rent_Click();  // leaves and throws in the same click, without the dice sound
    EXPECT_FALSE(p.IsInJail());
    EXPECT_EQ(p.getPosition(), 13);
    EXPECT_FALSE(rec.has("sound: DICEROLL.wav"));
    EXPECT_FALSE(model.pay50Rent().visible);
}

TEST_F(Window, ARentShortfallShowsOnlyBankruptcyWhichEndsATwoPlayerGame) {
    start({false, false});
    player& p0 = board->getCurrPlayer();
    give(*board->getPlayer(1), {39});
    setBalance(p0, 40);
    land(p0, 39);  // the rent card: 50 due
    EXPECT_TRUE(rec.has("showInfo: You cannot pay the rent, you must get $10"));
    EXPECT_EQ(buttons(), Lines{"declareBank"});
    p0.credit(10);  // the test of the rent, not the sign of the balance, decides
    EXPECT_TRUE(model.endTurn().visible);
    EXPECT_FALSE(model.declareBank().visible);
    EXPECT_FALSE(model.declareBank().enabled);

    p0.debit(1);
    ASSERT_TRUE(model.declareBank().isOpen());
    model.declareBank_Click();
    EXPECT_TRUE(p0.isBankrupt2());
    EXPECT_TRUE(model.gameEndShown());
    EXPECT_FALSE(model.isVisible());
    EXPECT_FALSE(model.bigToken(0).visible);
    EXPECT_EQ(model.panel(0).balance.caption, "Bankrupt");
    EXPECT_TRUE(rec.has("sound: Bankrupt.wav"));
}

TEST_F(Window, ADebtOfAComputerClosesEveryButton) {
    player& cpu = addComputer("Hal");
    addHuman("Ann");
    placeAt(cpu, 20);  // a free stop: the sign of the balance decides
    model.showNegBalance(true);
    EXPECT_EQ(buttons(), (Lines{"endTurn*", "declareBank*"}));
}

TEST_F(Window, CellClicksOpenCardsOnlyOnBuyableCellsAndOnlyForAHuman) {
    start({false, false});
    player& p0 = board->getCurrPlayer();
    model.cell_Click(10);
    model.cell_Click(4);
    EXPECT_FALSE(card().isVisible());
    model.cell_Click(39);
    EXPECT_TRUE(card().isVisible());
    EXPECT_EQ(card().cardOpt(), kOptInfo);
    card().Ok_Click(0);

    // On the cell under the token before the roll, the landing runs again.
    give(*board->getPlayer(1), {1});
    placeAt(p0, 1);
    p0.setDidAction(false);
    model.cell_Click(1);
    EXPECT_EQ(card().cardOpt(), kOptRent);
    card().payRent_Click();
    model.cell_Click(1);
    EXPECT_EQ(card().cardOpt(), kOptTrade);  // dealt with: the card only, open to a trade
    card().Ok_Click(0);

    p0.goToJail();
    model.UpdateTurnPlaying(TurnButtons::Roll);
    model.showInfo("");
    model.cell_Click(5);
    EXPECT_TRUE(card().isVisible());
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
