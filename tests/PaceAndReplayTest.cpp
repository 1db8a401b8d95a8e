// SPDX-License-Identifier: GPL-3.0-or-later
// The pace of the waits: what a wait lasts at each pace, a change of pace inside a wait,
// sounds skipped at Instant, and a seeded game of humans and computers that ends in the same
// state with the same window calls at every pace. The game watched again: a seeded game, with
// clicks made inside the waits of the rules, played again from memory ends in the same state
// after the same calls to the main window; clicks during the replay are ignored, and Stop
// plays the rest at once to the same end. The game's story is checked on it too.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Recorder.h"
#include "Signature.h"
#include "SteadyHumans.h"
#include "game/Board.h"
#include "game/Random.h"
#include "windows/GameRun.h"
#include "windows/GameStory.h"
#include "windows/MessageBox.h"
#include "windows/PacedDelay.h"
#include "windows/PacedSound.h"

namespace gw::test {
namespace {

// Time that passes only in waits. A wait can run a click part of the way through, as a
// real one serves events, and a change of pace made by that click wakes it.
class FakeClock final : public WaitClock {
public:
    long long now = 0;
    std::vector<long long> waits;  // the length asked of each waitMs
    int served = 0;
    // Runs once, `clickAfterMs` into the next wait that lasts longer than that.
    std::function<void()> click;
    long long clickAfterMs = 0;

    long long nowMs() override { return now; }
    End waitMs(long long ms) override {
        waits.push_back(ms);
        if (click && ms > clickAfterMs) {
            now += clickAfterMs;
            woken_ = false;
            std::exchange(click, nullptr)();
            if (woken_) return End::Woken;
            now += ms - clickAfterMs;
            return End::Elapsed;
        }
        now += ms;
        return End::Elapsed;
    }
    void wake() override { woken_ = true; }
    void serveEvents() override { ++served; }

private:
    bool woken_ = false;
};

TEST(PaceTest, NamesAndCaptions) {
    EXPECT_EQ(paceCaption(Pace::Designed), "As designed");
    EXPECT_EQ(paceCaption(Pace::Fast), "Fast");
    EXPECT_EQ(paceCaption(Pace::Instant), "Instant");
    for (const Pace p : kPaces) EXPECT_EQ(paceFromName(paceName(p)), p);
    EXPECT_EQ(paceFromName("Fast"), std::nullopt);
    EXPECT_EQ(paceFromName(""), std::nullopt);
}

TEST(PaceTest, AWaitLastsWhatItsPaceGives) {
    FakeClock clock;
    PacedDelay delay(clock);
    delay.wait(20);
    EXPECT_EQ(clock.now, 1600);
    delay.setPace(Pace::Fast);
    delay.wait(20);
    EXPECT_EQ(clock.now, 2000);
    delay.setPace(Pace::Instant);
    delay.wait(20);
    EXPECT_EQ(clock.now, 2000);
    EXPECT_EQ(clock.waits, (std::vector<long long>{1600, 400}));
}

TEST(PaceTest, AChangeOfPaceInsideAWaitShortensItAtOnce) {
    FakeClock clock;
    PacedDelay delay(clock);
    // 100 ms into a computer's card the person picks Fast: 300 ms are left, not 1500.
    clock.clickAfterMs = 100;
    clock.click = [&] { delay.setPace(Pace::Fast); };
    delay.wait(20);
    EXPECT_EQ(clock.now, 400);
    EXPECT_EQ(clock.waits, (std::vector<long long>{1600, 300}));

    // 250 ms into the next card he picks Fast again, then Instant halfway through the rest:
    // picking the pace in force changes nothing, Instant ends the wait there.
    clock.waits.clear();
    clock.clickAfterMs = 50;
    clock.click = [&] { delay.setPace(Pace::Fast); };
    delay.wait(20);
    EXPECT_EQ(clock.now, 800);
    clock.clickAfterMs = 150;
    clock.click = [&] { delay.setPace(Pace::Instant); };
    delay.wait(20);
    EXPECT_EQ(clock.now, 950);
    // Back to the designed pace past the new length: the wait ends at once as well.
    delay.setPace(Pace::Designed);
    clock.clickAfterMs = 1000;
    clock.click = [&] { delay.setPace(Pace::Fast); };
    delay.wait(20);
    EXPECT_EQ(clock.now, 1950);
}

TEST(PaceTest, WithoutWaitsTheWindowsAreServedNowAndThen) {
    FakeClock clock;
    PacedDelay delay(clock);
    delay.setPace(Pace::Instant);
    for (int i = 0; i < 10; ++i) delay.wait(20);
    EXPECT_EQ(clock.served, 1);  // the first wait serves; no time has passed since
    clock.now += PacedDelay::kServeEveryMs;
    delay.wait(2);
    delay.wait(2);
    EXPECT_EQ(clock.served, 2);
}

TEST(PaceTest, InstantSkipsTheSoundsButNotTheVolume) {
    FakeClock clock;
    PacedDelay delay(clock);
    Recorder inner;
    PacedSound sound(inner, delay);
    sound.play(MediaPlayer::Main1, SoundEffect::DiceRoll);
    delay.setPace(Pace::Fast);
    sound.play(MediaPlayer::Main1, SoundEffect::TokenMove);
    delay.setPace(Pace::Instant);
    sound.play(MediaPlayer::Main1, SoundEffect::Pay);
    sound.setVolume(MediaPlayer::Main1, kMutedVolume);
    EXPECT_EQ(inner.log, (std::vector<std::string>{"sound: DICEROLL.wav", "sound: tokenmove.wav",
                                                   "volume 0 -3000"}));
}

struct PacedGame {
    std::vector<std::string> calls;
    std::uint64_t endState = 0;
    long long computerTurns = 0;
    std::string winner;
    long long waitedMs = 0;
    std::size_t sounds = 0;
};

// A seeded game of two humans and two computers, at one pace from the start, or changed
// to `later` after the first hundred calls to the main window.
PacedGame playAt(Pace pace, std::uint64_t seed, std::optional<Pace> later = std::nullopt) {
    FakeClock clock;
    PacedDelay delay(clock);
    delay.setPace(pace);
    Recorder heard;
    PacedSound sound(heard, delay);
    RecordedMessageBox boxes;
    GameRun run(sound, delay, boxes, std::make_unique<SeededRandom>(seed));
    Recorder window;
    run.watchMainWindow(window, [] {});
    run.start();
    seatPlayers(run, {{"Ann", false}, {"Computer1", true}, {"Bob", false}, {"Computer2", true}});
    bool changed = false;
    for (long c = 0; c < 200000 && !run.gameEnd().isVisible(); ++c) {
        if (later && !changed && window.log.size() > 100) {
            delay.setPace(*later);
            changed = true;
        }
        if (!clickAsSteadyHuman(run)) break;
    }
    EXPECT_TRUE(run.gameEnd().isVisible())
        << "seed " << seed << ", " << window.log.size() << " calls, last "
        << (window.log.empty() ? "" : window.log.back()) << ", turns " << run.computerTurns();
    PacedGame game;
    game.calls = std::move(window.log);
    game.endState = sim::stateHash(run.board());
    game.computerTurns = run.computerTurns();
    game.winner = run.gameEnd().Label1().caption;
    game.waitedMs = clock.now;
    game.sounds = heard.log.size();
    return game;
}

TEST(PaceTest, HumansAndComputersEndAlikeAtEveryPace) {
    for (const std::uint64_t seed : {3U, 11U}) {
        const PacedGame designed = playAt(Pace::Designed, seed);
        const PacedGame fast = playAt(Pace::Fast, seed);
        const PacedGame instant = playAt(Pace::Instant, seed);
        const PacedGame switched = playAt(Pace::Designed, seed, Pace::Instant);
        ASSERT_GT(designed.computerTurns, 10);
        EXPECT_NE(designed.winner.find("the richest person in Kestrovia!"), std::string::npos);
        for (const PacedGame* other : {&fast, &instant, &switched}) {
            EXPECT_EQ(other->endState, designed.endState) << "seed " << seed;
            EXPECT_EQ(other->calls, designed.calls) << "seed " << seed;
            EXPECT_EQ(other->computerTurns, designed.computerTurns);
            EXPECT_EQ(other->winner, designed.winner);
        }
        // Only the time and the sounds differ.
        EXPECT_EQ(fast.waitedMs * 4, designed.waitedMs);
        EXPECT_EQ(instant.waitedMs, 0);
        EXPECT_LT(switched.waitedMs, designed.waitedMs);
        EXPECT_GT(designed.sounds, 100U);
        EXPECT_EQ(fast.sounds, designed.sounds);
        EXPECT_EQ(instant.sounds, 0U);
    }
}

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
