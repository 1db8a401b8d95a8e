// SPDX-License-Identifier: GPL-3.0-or-later
// The game watched again: a seeded game of humans and computers, with clicks made inside
// the waits of the rules, played again from memory ends in the same state after the same
// calls to the main window; clicks during the replay are ignored, and Stop plays the rest
// at once to the same end. The game's story is checked on it too.
#include <gtest/gtest.h>

#include "Recorder.h"
#include "Signature.h"
#include "SteadyHumans.h"
#include "game/Board.h"
#include "windows/GameRun.h"
#include "windows/GameStory.h"
#include "windows/MessageBox.h"

namespace gw::test {
namespace {

// A person who, every so often inside a wait, clicks a cell of the board or mutes the
// sound: clicks that must come back at the same moment when the game is watched again.
class FidgetingDelay final : public Delay {
public:
    GameRun* run = nullptr;
    long long waits = 0;
    long long clicksTried = 0;
    std::function<void()> atWait;
    long long atWaitIndex = -1;

    void wait(Integer) override {
        ++waits;
        if (waits == atWaitIndex && atWait) atWait();
        if (run == nullptr || waits % 37 != 0) return;
        ++clicksTried;
        const auto cell = static_cast<Integer>(waits % 40);
        // A click keeps what it acts on, as a view's click keeps its window.
        MainWindow& main = run->mainWindow();
        run->click([&main, cell] { main.cell_Click(cell); });
        if (waits % 3 == 0) run->click([&main] { main.Mute_Click(); });
    }
};

class Replay : public ::testing::Test {
protected:
    Replay() : run(sound, delay, boxes, std::make_unique<SeededRandom>(17)) {
        run.watchMainWindow(window, [] {});
        // The windows are back to their state at load: what the rules say starts now.
        run.setOnReplay([this](bool on) {
            replayHooks.push_back(on);
            if (on) window.log.clear();
        });
        run.start();
        seatPlayers(run, {{"Ann", false}, {"Computer1", true}, {"Bob", false}});
        delay.run = &run;
        EXPECT_TRUE(playToTheEnd(run));
        delay.run = nullptr;
        endState = sim::stateHash(run.board());
        calls = window.log;
        waitsPlayed = delay.waits;
        winner = run.gameEnd().Label1().caption;
    }

    SilentSound sound;
    FidgetingDelay delay;
    RecordedMessageBox boxes;
    GameRun run;
    Recorder window;
    std::vector<bool> replayHooks;
    std::uint64_t endState = 0;
    std::vector<std::string> calls;
    long long waitsPlayed = 0;
    std::string winner;
};

TEST_F(Replay, EndsInTheSameStateAfterTheSameCalls) {
    ASSERT_GT(delay.clicksTried, 10);
    ASSERT_TRUE(run.canWatchAgain());
    window.log.clear();
    delay.waits = 0;
    delay.run = &run;  // the person keeps clicking: ignored while the game replays
    run.click([this] { run.watchAgain(); });
    EXPECT_FALSE(run.isReplaying());
    EXPECT_TRUE(run.gameEnd().isVisible());
    EXPECT_EQ(run.gameEnd().Label1().caption, winner);
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(window.log, calls);
    // The rules' waits, and one short pause before each click of a person.
    EXPECT_GT(delay.waits, waitsPlayed);
    EXPECT_EQ(replayHooks, (std::vector<bool>{true, false}));

    // And again: the memory is kept.
    window.log.clear();
    delay.run = nullptr;
    run.click([this] { run.watchAgain(); });
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(window.log, calls);
}

TEST_F(Replay, StopPlaysTheRestAtOnceToTheSameEnd) {
    window.log.clear();
    delay.waits = 0;
    delay.atWaitIndex = 100;
    delay.atWait = [this] { run.stopWatching(); };
    run.click([this] { run.watchAgain(); });
    EXPECT_EQ(delay.waits, 100);  // no wait after Stop
    EXPECT_TRUE(run.gameEnd().isVisible());
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(window.log, calls);
}

// The story of the whole game: one line per player with a point a round, the bankrupt at 0
// from the round they fell in, the winner ending at his worth, every rent paid received.
TEST_F(Replay, TheStoryHasAPointARoundAndEveryRentOnBothSides) {
    const GameStory& story = run.story();
    EXPECT_TRUE(story.isOver());
    ASSERT_GT(story.roundsPlayed(), 3);
    long long paid = 0;
    long long received = 0;
    int bankrupt = 0;
    for (std::size_t id = 0; id < story.players().size(); ++id) {
        const StoryPlayer& p = story.players()[id];
        ASSERT_EQ(p.worth.size(), static_cast<std::size_t>(story.roundsPlayed()) + 1);
        EXPECT_EQ(p.worth.front(), 1500);
        paid += p.rentPaid;
        received += p.rentReceived;
        player& seat = *run.board().getPlayer(static_cast<Integer>(id));
        EXPECT_EQ(p.bankruptAfterRound > 0, seat.isBankrupt2());
        if (p.bankruptAfterRound > 0) {
            ++bankrupt;
            EXPECT_LE(p.bankruptAfterRound, story.roundsPlayed());
            EXPECT_EQ(p.worth.back(), 0);
        } else {
            EXPECT_EQ(p.worth.back(), seat.calcAssets());
        }
    }
    EXPECT_EQ(bankrupt, 2);
    EXPECT_EQ(paid, received);
    EXPECT_GT(paid, 0);
    EXPECT_GT(story.largestRent().amount, 0);
    EXPECT_LE(story.largestRent().amount, paid);
    EXPECT_GT(story.purchases(), 5);
}

TEST_F(Replay, ANewGameForgetsTheOldOne) {
    run.click([this] { run.gameEnd().Command1_Click(); });
    EXPECT_FALSE(run.canWatchAgain());
    seatPlayers(run, {{"Cleo", false}, {"Computer2", true}});
    EXPECT_FALSE(run.canWatchAgain());
    ASSERT_TRUE(playToTheEnd(run));
    const std::uint64_t second = sim::stateHash(run.board());
    run.click([this] { run.watchAgain(); });
    EXPECT_EQ(sim::stateHash(run.board()), second);
    EXPECT_EQ(run.board().getNumPlayer(), 2);
}

}  // namespace
}  // namespace gw::test
