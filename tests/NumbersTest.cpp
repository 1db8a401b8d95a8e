// SPDX-License-Identifier: GPL-3.0-or-later
// Chance and arithmetic: the die's faces, the reseeded draw, rounding and saturation.
#include <gtest/gtest.h>

#include <array>

#include "base/Integer.h"
#include "game/Dice.h"
#include "game/Random.h"

namespace gw::test {
namespace {

TEST(Dice, FacesComeFromTheRemainderOfTenThousandValuesAndStayUntilTheNextRoll) {
    std::array<int, 7> count{};
    for (int k = 0; k < 10000; ++k)
        ++count[static_cast<std::size_t>(Dice::faceOf((k + 0.5) / 10000))];
    EXPECT_EQ(count[1], 1666);
    EXPECT_EQ(count[6], 1666);
    for (int face = 2; face <= 5; ++face) EXPECT_EQ(count[static_cast<std::size_t>(face)], 1667);
    // v = 6 gives 1, v = 1 gives 2, v = 10000 gives 5.
    EXPECT_EQ(Dice::faceOf(5.5 / 10000), 1);
    EXPECT_EQ(Dice::faceOf(0.0), 2);
    EXPECT_EQ(Dice::faceOf(9999.5 / 10000), 5);

    // The value is 0 before the first roll, and reading it does not roll the die again.
    ScriptedRandom random({ScriptedRandom::face(4)});
    Dice die(random);
    EXPECT_EQ(die.getValue(), 0);
    die.roll();
    EXPECT_EQ(die.getValue(), 4);
    EXPECT_EQ(die.getValue(), 4);
}

TEST(Random, ClockDrawsInOneTickDifferAndStayInRange) {
    ClockRandom random;
    double previous = random.draw();
    int repeats = 0;
    for (int i = 0; i < 10000; ++i) {
        const double r = random.draw();
        ASSERT_GE(r, 0.0);
        ASSERT_LT(r, 1.0);
        repeats += r == previous;
        previous = r;
    }
    EXPECT_LT(repeats, 5);  // the clock barely moves between draws, the numbers do
}

TEST(Random, TheSameSeedGivesTheSameSequence) {
    SeededRandom a(42), b(42), c(43);
    int differ = 0;
    for (int i = 0; i < 100; ++i) {
        const double x = a.draw();
        EXPECT_EQ(x, b.draw());
        differ += x != c.draw();
    }
    EXPECT_GT(differ, 90);
}

TEST(Random, ScriptedValuesComeFirstThenTheFallback) {
    ScriptedRandom random({0.25, 0.5});
    EXPECT_EQ(random.draw(), 0.25);
    EXPECT_EQ(random.draw(), 0.5);
    const double r = random.draw();
    EXPECT_GE(r, 0.0);
    EXPECT_LT(r, 1.0);
    for (int d = 0; d <= 9; ++d) {
        EXPECT_EQ((static_cast<int>(ScriptedRandom::digit(d) * 10000) + 1) % 10, d);
    }
}

TEST(Integer, RoundingIsHalfToEven) {
    EXPECT_EQ(rounded(0.5), 0);
    EXPECT_EQ(rounded(1.5), 2);
    EXPECT_EQ(rounded(2.5), 2);
    EXPECT_EQ(rounded(-2.5), -2);
    EXPECT_EQ(rounded(-3.5), -4);
    EXPECT_EQ(rounded(2.4999), 2);
    EXPECT_EQ(rounded(90 * 0.1), 9);
    EXPECT_EQ(rounded(50 * 1.1), 55);
}

TEST(Integer, SumsThatWouldLeaveTheRangeSaturateInsteadOfWrapping) {
    EXPECT_EQ(addSat(32000, 1000), 32767);
    EXPECT_EQ(subSat(-32000, 1000), -32768);
    EXPECT_EQ(subSat(100, -32768), 32767);
    EXPECT_EQ(addSat(-5, 3), -2);
    EXPECT_EQ(rounded(1e9), 32767);
    EXPECT_EQ(rounded(-1e9), -32768);
}

}  // namespace
}  // namespace gw::test
