// SPDX-License-Identifier: GPL-3.0-or-later
// Whole games of computer players: they run to their end, and a long run of turns does
// not deepen the call stack.
#include <gtest/gtest.h>

#include <cstdint>

#include "game/Board.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

// Counts every wait, and the deepest stack seen at a wait, which sits inside a turn.
class DepthDelay final : public Delay {
public:
    std::uintptr_t deepest = UINTPTR_MAX;
    void wait(Integer) override {
        const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
        if (here < deepest) deepest = here;
    }
};

TEST(ComputerGame, AHundredThousandTurnsKeepTheStackFlat) {
    constexpr long kTurns = 100000;
    NullMainWindow main;
    SilentSound sound;
    DepthDelay delay;
    Windows windows(main, sound, delay);
    long turns = 0;
    int finished = 0;
    std::uintptr_t hookFrame = 0;
    std::uintptr_t deepestAfterFirstThousand = 0;
    bool flat = true;
    for (std::uint64_t seed = 1; turns < kTurns; ++seed) {
        Board board(windows, std::make_unique<SeededRandom>(seed));
        board.init();
        for (int i = 0; i < 6; ++i)
            board.addPlayer("C" + std::to_string(i), true, static_cast<Integer>(i));
        board.shufflePlayers();
        board.setOnTurnPlayed([&] {
            const auto here = reinterpret_cast<std::uintptr_t>(__builtin_frame_address(0));
            if (hookFrame == 0) hookFrame = here;
            flat = flat && here == hookFrame;
            if (++turns == 1000) deepestAfterFirstThousand = delay.deepest;
            return turns < kTurns;
        });
        board.playTurn();
        if (board.countSolvent() > 1) {
            EXPECT_EQ(turns, kTurns);  // only the cap stops a game
        } else {
            ++finished;
        }
    }
    EXPECT_TRUE(flat);
    // Deeper waits come from nested card landings, never from the number of turns.
    EXPECT_LT(deepestAfterFirstThousand - delay.deepest, 16u * 1024u);
    // Six computers end a game in some hundreds of turns: games that never ended, or ended
    // at once, would show here.
    EXPECT_GT(finished, kTurns / 2000);
    EXPECT_LT(finished, kTurns / 100);
}

}  // namespace
}  // namespace gw::test
