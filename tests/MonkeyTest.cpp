// SPDX-License-Identifier: GPL-3.0-or-later
// Random clicks through whole runs of the program, on a few seeds, and the random player's
// command line.
#include <gtest/gtest.h>

#include <vector>

#include "CommandLine.h"
#include "GameFixture.h"
#include "Invariants.h"
#include "Monkey.h"
#include "MonkeyOptions.h"

namespace gw::test {
namespace {

TEST(Monkey, RandomClicksKeepEveryInvariantThroughWholeGames) {
    for (std::uint64_t seed : {1u, 2u, 3u}) {
        const monkey::MonkeyResult result = monkey::runMonkey(seed, 6000);
        EXPECT_EQ(result.failure, "") << "seed " << seed;
        EXPECT_EQ(result.steps, 6000);
        EXPECT_GT(result.games, 0) << "seed " << seed;
    }
}

// Hotels may outlive their district, sold off street by street, but never rise on one.
class HotelRises : public GameFixture {
protected:
    player& ann = addHuman("Ann", 1);
    player& bob = addHuman("Bob", 2);
    monkey::HotelWatch watch;
};

TEST_F(HotelRises, AreAllowedOnAWholeDistrictAndStayWhenItIsSoldApart) {
    give(ann, {1, 3});
    putHotels(3, 2);
    EXPECT_EQ(watch.check(*board), "");
    bob.doTrade(1, 50);  // Bob buys Saint-Antoine: Saint-Jacques keeps its two hotels
    EXPECT_EQ(watch.check(*board), "");
}

TEST_F(HotelRises, AreCaughtOnADistrictItsOwnerDoesNotHold) {
    give(ann, {1, 3});
    bob.doTrade(1, 50);
    putHotels(3, 1);
    EXPECT_EQ(watch.check(*board), "a hotel built on cell 3 of a district its owner does not hold");
}

monkey::MonkeyOptions parse(const std::string& line) {
    return parseLine(line, monkey::parseMonkeyOptions);
}

TEST(MonkeyOptions, AGoodLineGivesTheRunAskedForAndHelpStopsReading) {
    const monkey::MonkeyOptions o = parse("--steps 250 --seed 18446744073709551615");
    EXPECT_EQ(o.error, "");
    EXPECT_EQ(o.steps, 250);
    EXPECT_EQ(o.seed, 18446744073709551615ULL);
    EXPECT_EQ(parse("").steps, 100000);
    EXPECT_TRUE(parse("--help --steps x").help);
}

TEST(MonkeyOptions, EachBadValueGetsOneLineNamingTheOption) {
    const std::string steps = "a whole number from 1 to 1000000000";
    const std::vector<std::pair<std::string, std::string>> cases = {
        {"--steps", "--steps needs a value: " + steps},
        {"--steps 0", "--steps takes " + steps + ", not '0'"},
        {"--steps -3", "--steps takes " + steps + ", not '-3'"},
        {"--steps ten", "--steps takes " + steps + ", not 'ten'"},
        {"--steps 1000000001", "--steps takes " + steps + ", not '1000000001'"},
        {"--seed 18446744073709551616",
         "--seed takes a whole number from 0 to 18446744073709551615, not "
         "'18446744073709551616'"},
        {"--seed -1", "--seed takes a whole number from 0 to 18446744073709551615, not '-1'"},
        {"5", "'5' is not an option; options start with -- (see gildenway-monkey --help)"},
        {"--games 5", "--games is not an option; the options are --seed, --steps, --help"},
        {"--seed 1 --seed=2", "--seed is given twice"},
    };
    for (const auto& [line, error] : cases) EXPECT_EQ(parse(line).error, error) << line;
}

}  // namespace
}  // namespace gw::test
