// SPDX-License-Identifier: GPL-3.0-or-later
// File > Voice: silent at start, reads each new message of the message line once enabled,
// and stops when muted.
#include "RunFixture.h"

namespace gw::test {
namespace {

class VoiceRun : public RunFixture {
protected:
    VoiceRun() {
        run->setVoice(voice);
        addPlayer("Ann", 1);
        addPlayer("Robot", 2, true);
        letsStart();
    }
    Narrator& narrator() { return run->narrator(); }
    // Ann throws onto Saint-Jacques and buys it; the computer throws onto Outremont.
    void scriptedTurn() {
        nextThrow(1, 2);
        roll();
        onCard("buy");
        nextThrow(2, 3);
        endTurn();
    }

    RecordedVoice voice;
};

TEST_F(VoiceRun, SaysNothingUntilEnabled) {
    EXPECT_FALSE(narrator().isEnabled());
    scriptedTurn();
    EXPECT_TRUE(voice.said.empty());
}

TEST_F(VoiceRun, ReadsTheMessagesOfAScriptedTurnInOrder) {
    click([&] { narrator().Enable1_Click(); });
    scriptedTurn();
    EXPECT_EQ(voice.said, (std::vector<std::string>{"Ann has bought Saint-Jacques",
                                                    "Ann, its your turn to play."}));
}

TEST_F(VoiceRun, MuteStopsTheSentenceAndTheNextOnes) {
    click([&] { narrator().Enable1_Click(); });
    nextThrow(1, 2);
    roll();
    onCard("buy");
    click([&] { narrator().Mute1_Click(); });
    EXPECT_EQ(voice.stops, 1);
    nextThrow(2, 3);
    endTurn();
    EXPECT_EQ(voice.said, (std::vector<std::string>{"Ann has bought Saint-Jacques"}));
}

}  // namespace
}  // namespace gw::test
