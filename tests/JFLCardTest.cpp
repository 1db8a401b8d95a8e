// The twenty card effects, drawn by landing on a card cell: money, moves round Go,
// the landings they bring about, nested draws and what End Turn makes of the result.
#include <algorithm>

#include "GameFixture.h"

namespace gw::test {
namespace {

const std::vector<Integer> kCardCells = {2, 7, 17, 22, 33, 36};

class Cards : public GameFixture {
protected:
    Cards() {
        ann = &addHuman("Ann", 1);
        bob = &addHuman("Bob", 2);
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
    // Ann, with 1500, lands on a card cell with this card on top.
    void draw(int type, Integer cellId) {
        onTop({type});
        placeAt(*ann, cellId);
        setBalance(*ann, 1500);
        board->getCell(cellId)->doAction(*ann);
    }
    std::vector<std::string> moves() const { return rec.only({"MoveToken", "sound"}); }

    player* ann;
    player* bob;
};

TEST_F(Cards, MoneyCardsPayOrTakeTheirSumWithTheMatchingSound) {
    struct Case {
        int type;
        const char* text;
        Integer balance;
        const char* sound;
    };
    const Case cases[] = {
        {3, "Collect $250 from bank", 1750, "buy.wav"},
        {4, "Collect $200 from bank", 1700, "buy.wav"},
        {5, "Collect $150 from bank", 1650, "buy.wav"},
        {6, "Collect $100 from bank", 1600, "buy.wav"},
        {7, "Collect $50 from bank", 1550, "buy.wav"},
        {8, "Pay $250 to bank", 1250, "pay.wav"},
        {9, "Pay $200 to bank", 1300, "pay.wav"},
        {10, "Pay $150 to bank", 1350, "pay.wav"},
        {11, "Pay $100 to bank", 1400, "pay.wav"},
        {12, "Pay $50 to bank", 1450, "pay.wav"},
    };
    for (const Case& c : cases) {
        draw(c.type, 22);
        const std::vector<std::string> expected = {
            std::string("showInfo: ") + c.text,
            "wait 20",
            "setEnabled(true)",
            std::string("sound: ") + c.sound,
            "showNegBalance(false)",
            "UpdatePlayers",
            "showCell(22)",
        };
        EXPECT_EQ(rec.log, expected) << c.text;
        EXPECT_EQ(ann->getBalance(), c.balance) << c.text;
        EXPECT_EQ(ann->getPosition(), 22) << c.text;
    }
}

TEST_F(Cards, PayingMoreThanTheHandLeavesADebtThatHoldsUpEndTurn) {
    onTop({8});
    placeAt(*ann, 7);
    setBalance(*ann, 100);
    board->getCell(7)->doAction(*ann);
    EXPECT_EQ(ann->getBalance(), -150);
    EXPECT_TRUE(rec.has("showNegBalance(true)"));
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must make money first");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    setBalance(*ann, 0);
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
}

TEST_F(Cards, PassGoFromEveryCardCellEndsOnGoWithTwoHundred) {
    for (Integer cellId : kCardCells) {
        draw(kPassGo, cellId);
        EXPECT_EQ(ann->getPosition(), 0) << cellId;
        EXPECT_EQ(ann->getBalance(), 1700) << cellId;
        EXPECT_EQ(rec.count("sound: buy.wav"), 1) << cellId;
        EXPECT_FALSE(rec.has("showCell(0)")) << cellId;  // Go is reached, not landed on
        EXPECT_EQ(rec.log.back(), "showCell(" + std::to_string(cellId) + ")");
    }
}

TEST_F(Cards, AdvanceToGreenNeverPassesGoAndOpensItsCard) {
    for (Integer cellId : kCardCells) {
        draw(kGreen, cellId);
        EXPECT_EQ(ann->getPosition(), 37) << cellId;
        EXPECT_EQ(ann->getBalance(), 1500) << cellId;
        EXPECT_TRUE(card().isVisible()) << cellId;
        EXPECT_EQ(card().cardId(), 37) << cellId;
        EXPECT_EQ(card().cardOpt(), kOptBuy) << cellId;
    }
}

TEST_F(Cards, AdvanceToStLaurentPaysGoMoneyOnlyFromBeyondIt) {
    const std::pair<Integer, Integer> cases[] = {{2, 1500},  {7, 1500},  {17, 1700},
                                                 {22, 1700}, {33, 1700}, {36, 1700}};
    for (const auto& [cellId, balance] : cases) {
        draw(kStLaurent, cellId);
        EXPECT_EQ(ann->getPosition(), 16) << cellId;
        EXPECT_EQ(ann->getBalance(), balance) << cellId;
        EXPECT_EQ(card().cardId(), 16) << cellId;
        EXPECT_EQ(card().cardOpt(), kOptBuy) << cellId;
        if (cellId == 36) {  // via Go, then on to 16
            EXPECT_EQ(moves(), (std::vector<std::string>{"MoveToken(0,36,39)", "sound: buy.wav",
                                                         "MoveToken(0,0,0)", "MoveToken(0,0,16)"}));
        }
    }
}

TEST_F(Cards, ForwardSevenFrom33LandsOnGoAndFrom36EndsOnThree) {
    draw(kForward7, 33);
    EXPECT_EQ(ann->getPosition(), 0);
    EXPECT_EQ(ann->getBalance(), 1700);
    EXPECT_EQ(rec.count("sound: buy.wav"), 1);
    EXPECT_EQ(rec.only({"showCell"}),
              (std::vector<std::string>{"showCell(33)", "showCell(0)", "showCell(33)"}));

    draw(kForward7, 36);
    EXPECT_EQ(ann->getPosition(), 3);
    EXPECT_EQ(ann->getBalance(), 1700);
    EXPECT_EQ(card().cardId(), 3);
    EXPECT_EQ(card().cardOpt(), kOptBuy);
}

TEST_F(Cards, ForwardElevenFrom33PaysGoMoneyBeforeTheIncomeTaxCardOpens) {
    draw(kForward11, 33);
    EXPECT_EQ(ann->getPosition(), 4);
    EXPECT_EQ(ann->getBalance(), 1700);  // the tax waits for the player's click
    const std::vector<std::string> expected = {
        "showCell(33)",  // redrawn as the token leaves it
        "MoveToken(0,33,39)", "sound: buy.wav", "MoveToken(0,0,4)",
        "taxCard up",         "showCell(4)",    "showCell(33)",
    };
    EXPECT_EQ(rec.only({"MoveToken", "sound", "taxCard", "showCell"}), expected);
    EXPECT_EQ(windows.taxCard.taxId(), 4);
}

TEST_F(Cards, BackThreeGoesRoundWithoutGoMoneyAndLandsWhereItEnds) {
    draw(kBack3, 2);
    EXPECT_EQ(ann->getPosition(), 39);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(card().cardId(), 39);

    draw(kBack3, 7);
    EXPECT_EQ(ann->getPosition(), 4);
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(moves(), (std::vector<std::string>{"MoveToken(0,7,39)", "MoveToken(0,0,4)"}));
    EXPECT_TRUE(rec.has("taxCard up"));

    draw(kBack3, 33);  // onto Police
    EXPECT_TRUE(rec.has("sound: newpolice.wav"));
    EXPECT_TRUE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 10);
    EXPECT_EQ(ann->getBalance(), 1500);
}

TEST_F(Cards, GoToJailWalksToJailUnpaidAndVoidsTheThrowOfDoubles) {
    draw(kGoToJailCard, 36);
    EXPECT_TRUE(ann->IsInJail());
    EXPECT_EQ(ann->getPosition(), 10);
    EXPECT_EQ(ann->getBalance(), 1500);  // past Go on the way, unpaid
    EXPECT_TRUE(rec.has("showInfo: Go to jail!"));
    EXPECT_EQ(rec.log.back(), "showCell(36)");

    ann->getOutOfJail();
    onTop({kGoToJailCard});
    placeAt(*ann, 0);
    nextThrow(1, 1);
    board->playTurn();  // doubles onto cell 2
    EXPECT_TRUE(ann->IsInJail());
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
}

TEST_F(Cards, NestedDrawFinishesTheOuterCardAfterTheInnerOne) {
    onTop({kForward5, 7});
    placeAt(*ann, 2);
    board->getCell(2)->doAction(*ann);
    const std::vector<std::string> expected = {
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
    EXPECT_EQ(rec.log, (std::vector<std::string>{"showInfo: Do Nothing", "wait 20",
                                                 "setEnabled(true)", "showCell(17)"}));
    EXPECT_EQ(ann->getBalance(), 1500);
    EXPECT_EQ(ann->getPosition(), 17);
    EXPECT_EQ(windows.jflCard.Label2(), "Do Nothing");
    EXPECT_FALSE(windows.jflCard.isVisible());
}

TEST_F(Cards, HumanMovedOntoAPropertyMustDealWithItsCardBeforeEndTurn) {
    draw(kGreen, 33);
    card().close();  // the close box is not a decision
    rec.clear();
    board->endTurn();
    EXPECT_EQ(rec.log.front(), "showInfo: You must do something before you end your turn");
    EXPECT_EQ(&board->getCurrPlayer(), ann);
    EXPECT_TRUE(card().isVisible());  // the landing ran again
    EXPECT_EQ(card().cardOpt(), kOptBuy);
    card().forget_Click();
    board->endTurn();
    EXPECT_EQ(&board->getCurrPlayer(), bob);
}

}  // namespace
}  // namespace gw::test
