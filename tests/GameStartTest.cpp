// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window through its clicks: the states of its buttons, the refusals, the
// names of computer players, the slots and the sounds.
#include "RunFixture.h"

namespace gw::test {
namespace {

using SetUpWindow = RunFixture;

std::vector<std::string> boxTexts(const RecordedMessageBox& boxes) {
    std::vector<std::string> texts;
    for (const auto& box : boxes.shown) {
        EXPECT_EQ(box.title, "Error");
        EXPECT_EQ(box.icon, MessageIcon::Exclamation);
        texts.push_back(box.text);
    }
    return texts;
}

TEST_F(SetUpWindow, LoadsWithNoButtonAHumanNextAndTheStartSound) {
    EXPECT_TRUE(start().isVisible());
    EXPECT_FALSE(main().isVisible());
    EXPECT_EQ(rec.log, Lines{"sound 3: gamestart.wav"});
    EXPECT_EQ(start().nickName(), "Enter your name here");
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_FALSE(start().Command2().visible);
    EXPECT_TRUE(start().Image1() && start().Image2() && start().Image3());
    EXPECT_FALSE(start().Image4());
    EXPECT_FALSE(start().nextIsComputer());
    for (int i = 0; i < kTokenCount; ++i) EXPECT_TRUE(start().Token(i).visible) << i;
    for (int i = kFirstSlot; i < kTokenControls; ++i) EXPECT_FALSE(start().Token(i).visible) << i;

    click([&] { start().Command1_Click(); });  // hidden: nothing
    EXPECT_EQ(start().playerCount(), 0);
    EXPECT_TRUE(boxes.shown.empty());
}

TEST_F(SetUpWindow, ATokenClickBordersItOffersAddAndTheFirstNameMayBeTheInitialText) {
    click([&] { start().Token_Click(3); });
    EXPECT_TRUE(start().Token(3).bordered);
    EXPECT_TRUE(start().Command1().isOpen());
    click([&] { start().Token_Click(5); });
    EXPECT_FALSE(start().Token(3).bordered);
    EXPECT_TRUE(start().Token(5).bordered);
    click([&] { start().Token_Click(5); });  // again: the sound, no change of border
    EXPECT_TRUE(start().Token(5).bordered);
    EXPECT_EQ(rec.log.size(), 4u);
    EXPECT_EQ(rec.log.back(), "sound 2: ChooseToken.wav");
    click([&] { start().Token_Click(15); });  // a slot is inert: no sound
    EXPECT_EQ(rec.log.size(), 4u);

    click([&] { start().Command1_Click(); });
    EXPECT_EQ(start().Label(1).caption, "Enter your name here");
    EXPECT_TRUE(start().Label(1).visible);
    EXPECT_EQ(start().Token(kFirstSlot).picture, 5);
    EXPECT_TRUE(start().Token(kFirstSlot).visible);
    EXPECT_FALSE(start().Token(5).visible);  // taken once, for good
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_EQ(rec.log.back(), "sound 2: Player1.wav");
}

TEST_F(SetUpWindow, BothRefusalsAndTheWayBackToAddPlayer) {
    click([&] {
        start().Token_Click(2);
        start().NickName_Change("");
        start().Command1_Click();
    });
    EXPECT_EQ(boxTexts(boxes), Lines{"You must enter a name for this player"});
    EXPECT_TRUE(start().Command1().visible);  // the empty name keeps the button

    addPlayer("Ann", 2);
    ASSERT_EQ(start().playerCount(), 1);
    // The text stays, so the next player is refused until it changes, computer or not.
    click([&] {
        start().Image1_Click();
        start().Token_Click(4);
        start().Command1_Click();
    });
    EXPECT_EQ(boxTexts(boxes).back(), "You cannot enter the same name twice");
    EXPECT_FALSE(start().Command1().visible);
    EXPECT_EQ(start().playerCount(), 1);
    EXPECT_TRUE(start().Token(4).visible);
    EXPECT_FALSE(start().NickName().enabled);
    click([&] { start().NickName_Change("Zed"); });  // a closed entry takes no typing
    EXPECT_EQ(start().nickName(), "Ann");

    addPlayer("ann", 6);  // another case is another name
    EXPECT_EQ(start().Label(2).caption, "ann");
    EXPECT_TRUE(start().Command2().isOpen());
    click([&] { start().NickName_Change("Cee"); });  // the computer's text is compared too
    addPlayer("", 4, true);
    EXPECT_EQ(start().Label(3).caption, "Computer4");
    EXPECT_EQ(start().setup().seats.size(), 3u);
    EXPECT_TRUE(start().setup().seats[2].computer);
    EXPECT_EQ(start().setup().seats[2].token, 4);
}

TEST_F(SetUpWindow, NothingIsOfferedAfterTheSixthPlayerAndTheBoardRefusesASeventh) {
    for (int i = 0; i < kMaxPlayers; ++i) addPlayer("", i, true);
    EXPECT_EQ(start().playerCount(), kMaxPlayers);
    for (int n = 1; n <= kMaxPlayers; ++n) {
        EXPECT_EQ(start().Label(n).caption, "Computer" + std::to_string(n - 1));
    }
    click([&] { start().Token_Click(9); });
    EXPECT_FALSE(start().Command1().visible);
    click([&] { start().Command1_Click(); });
    EXPECT_EQ(start().playerCount(), kMaxPlayers);

    Board& b = board();
    GameSetup seven;
    for (int i = 0; i < 7; ++i) seven.add("C" + std::to_string(i), true, static_cast<Integer>(i));
    b.deleteAllPlayer();
    b.init();
    b.addPlayers(seven);
    EXPECT_EQ(b.getNumPlayer(), kMaxPlayers);
    EXPECT_EQ(b.addPlayer("Seventh", false, 13), nullptr);
}

TEST_F(SetUpWindow, LetsStartHidesTheWindowAndOpensTheFirstTurn) {
    addPlayer("Ann", 1);
    addPlayer("Bob", 2);
    letsStart();
    EXPECT_FALSE(start().isVisible());
    EXPECT_TRUE(main().isVisible());
    EXPECT_EQ(board().getNumPlayer(), 2);
    EXPECT_EQ(main().Label2(), "Ann");
    EXPECT_EQ(buttons(), (Lines{"rollDice", "endTurn*"}));
    click([&] { start().Command2_Click(); });  // a hidden window starts nothing
    EXPECT_EQ(board().getNumPlayer(), 2);
}

}  // namespace
}  // namespace gw::test
