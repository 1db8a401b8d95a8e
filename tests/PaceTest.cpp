// SPDX-License-Identifier: GPL-3.0-or-later
// The pace of the waits: what a wait lasts at each pace, a change of pace inside a wait,
// sounds skipped at Instant, and a seeded game of humans and computers that ends in the
// same state with the same window calls at every pace.
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "Recorder.h"
#include "Signature.h"
#include "SteadyHumans.h"
#include "game/Random.h"
#include "windows/GameRun.h"
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

TEST(PaceTest, NamesCaptionsAndLengthsOfAWait) {
    EXPECT_EQ(paceCaption(Pace::Designed), "As designed");
    EXPECT_EQ(paceCaption(Pace::Fast), "Fast");
    EXPECT_EQ(paceCaption(Pace::Instant), "Instant");
    for (const Pace p : kPaces) EXPECT_EQ(paceFromName(paceName(p)), p);
    EXPECT_EQ(paceFromName("Fast"), std::nullopt);
    EXPECT_EQ(paceFromName(""), std::nullopt);

    // A computer's card, a step of a walk, a frame of the dice.
    EXPECT_EQ(paceWaitMs(Pace::Designed, 20, 80), 1600);
    EXPECT_EQ(paceWaitMs(Pace::Fast, 20, 80), 400);
    EXPECT_EQ(paceWaitMs(Pace::Fast, 2, 80), 40);
    EXPECT_EQ(paceWaitMs(Pace::Fast, 1, 80), 20);
    EXPECT_EQ(paceWaitMs(Pace::Instant, 20, 80), 0);
    EXPECT_EQ(paceWaitMs(Pace::Designed, 0, 80), 0);
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

class CountingSound final : public Sound {
public:
    std::vector<std::string> played;
    std::vector<int> volumes;
    void play(MediaPlayer, SoundEffect effect) override { played.emplace_back(soundFile(effect)); }
    void setVolume(MediaPlayer, int v) override { volumes.push_back(v); }
};

TEST(PaceTest, InstantSkipsTheSoundsButNotTheVolume) {
    FakeClock clock;
    PacedDelay delay(clock);
    CountingSound inner;
    PacedSound sound(inner, delay);
    sound.play(MediaPlayer::Main1, SoundEffect::DiceRoll);
    delay.setPace(Pace::Fast);
    sound.play(MediaPlayer::Main1, SoundEffect::TokenMove);
    delay.setPace(Pace::Instant);
    sound.play(MediaPlayer::Main1, SoundEffect::Pay);
    sound.setVolume(MediaPlayer::Main1, kMutedVolume);
    EXPECT_EQ(inner.played, (std::vector<std::string>{"DICEROLL.wav", "tokenmove.wav"}));
    EXPECT_EQ(inner.volumes, (std::vector<int>{kMutedVolume}));
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
    CountingSound heard;
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
    game.sounds = heard.played.size();
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

}  // namespace
}  // namespace gw::test
