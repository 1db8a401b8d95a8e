// SPDX-License-Identifier: GPL-3.0-or-later
// The game watched again: a seeded game of humans and computers, with clicks made inside
// the waits of the rules, played again from memory ends in the same state after the same
// calls to the main window; clicks during the replay are ignored, and Stop plays the rest
// at once to the same end.
#include <gtest/gtest.h>

#include "CallLog.h"
#include "Signature.h"
#include "SteadyHumans.h"
#include "game/Board.h"
#include "windows/GameRun.h"
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
        run.watchMainWindow(log, [] {});
        // The windows are back to their state at load: what the rules say starts now.
        run.setOnReplay([this](bool on) {
            replayHooks.push_back(on);
            if (on) log.lines.clear();
        });
        run.start();
        seatPlayers(run, {{"Ann", false}, {"Computer1", true}, {"Bob", false}});
        delay.run = &run;
        EXPECT_TRUE(playToTheEnd(run));
        delay.run = nullptr;
        endState = sim::stateHash(run.board());
        calls = log.lines;
        waitsPlayed = delay.waits;
        winner = run.gameEnd().Label1().caption;
    }

    SilentSound sound;
    FidgetingDelay delay;
    RecordedMessageBox boxes;
    GameRun run;
    CallLog log;
    std::vector<bool> replayHooks;
    std::uint64_t endState = 0;
    std::vector<std::string> calls;
    long long waitsPlayed = 0;
    std::string winner;
};

TEST_F(Replay, EndsInTheSameStateAfterTheSameCalls) {
    ASSERT_GT(delay.clicksTried, 10);
    ASSERT_TRUE(run.canWatchAgain());
    log.lines.clear();
    delay.waits = 0;
    delay.run = &run;  // the person keeps clicking: ignored while the game replays
    run.click([this] { run.watchAgain(); });
    EXPECT_FALSE(run.isReplaying());
    EXPECT_TRUE(run.gameEnd().isVisible());
    EXPECT_EQ(run.gameEnd().Label1().caption, winner);
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(log.lines, calls);
    // The rules' waits, and one short pause before each click of a person.
    EXPECT_GT(delay.waits, waitsPlayed);
    EXPECT_EQ(replayHooks, (std::vector<bool>{true, false}));

    // And again: the memory is kept.
    log.lines.clear();
    delay.run = nullptr;
    run.click([this] { run.watchAgain(); });
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(log.lines, calls);
}

TEST_F(Replay, StopPlaysTheRestAtOnceToTheSameEnd) {
    log.lines.clear();
    delay.waits = 0;
    delay.atWaitIndex = 100;
    delay.atWait = [this] { run.stopWatching(); };
    run.click([this] { run.watchAgain(); });
    EXPECT_EQ(delay.waits, 100);  // no wait after Stop
    EXPECT_TRUE(run.gameEnd().isVisible());
    EXPECT_EQ(sim::stateHash(run.board()), endState);
    EXPECT_EQ(log.lines, calls);
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
