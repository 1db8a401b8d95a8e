// SPDX-License-Identifier: GPL-3.0-or-later
// The simulator's command line: good lines give the run asked for, and every bad one
// gives one line that names the option and what it accepts.
#include <gtest/gtest.h>

#include <string>

#include "CommandLine.h"
#include "Options.h"

namespace gw::test {
namespace {

sim::ParsedOptions parse(const std::string& line, unsigned cores = 2) {
    return parseLine(line, [cores](auto args) { return sim::parseOptions(args, cores); });
}

// The fields of a run, in the order the options list them.
struct ExpectedRun {
    long long games;
    int players;
    std::uint64_t seed;
    int maxTurns;
    int jobs;
    bool check;
};

void expectRun(const sim::RunConfig& run, const ExpectedRun& want) {
    EXPECT_EQ(run.games, want.games);
    EXPECT_EQ(run.players, want.players);
    EXPECT_EQ(run.seed, want.seed);
    EXPECT_EQ(run.maxTurns, want.maxTurns);
    EXPECT_EQ(run.jobs, want.jobs);
    EXPECT_EQ(run.check, want.check);
}

TEST(SimOptions, AGoodLineGivesTheRunAskedFor) {
    const sim::ParsedOptions parsed = parse(
        "--games 1000000000 --players=6 --seed 18446744073709551615 --max-turns 7 --jobs=3 "
        "--check");
    ASSERT_TRUE(parsed.ok()) << parsed.error;
    expectRun(parsed.options.run, {1000000000, 6, 18446744073709551615ULL, 7, 3, true});
    EXPECT_FALSE(parsed.options.help);
    EXPECT_FALSE(parsed.options.signature);
}

TEST(SimOptions, WithNoOptionsTheRunHasItsDefaultsAndAJobACore) {
    expectRun(parse("", 8).options.run, {100, 4, 1, 10000, 8, false});
    // A machine that cannot count its cores still plays on one thread.
    EXPECT_EQ(parse("", 0).options.run.jobs, 1);
}

TEST(SimOptions, HelpWinsOverWhatFollowsIt) {
    EXPECT_TRUE(parse("--help").options.help);
    const sim::ParsedOptions parsed = parse("--games 5 --help --no-such-option");
    EXPECT_TRUE(parsed.ok());
    EXPECT_TRUE(parsed.options.help);
}

TEST(SimOptions, TheSignatureTakesTheSeedTheJobsAndTheChecksOnly) {
    const sim::ParsedOptions parsed = parse("--signature --seed 4 --jobs 2 --check");
    ASSERT_TRUE(parsed.ok()) << parsed.error;
    EXPECT_TRUE(parsed.options.signature);
    EXPECT_EQ(parsed.options.run.seed, 4u);
    for (const char* line :
         {"--signature --games 5", "--players 3 --signature", "--signature --max-turns 9"}) {
        EXPECT_NE(parse(line).error.find("does not go with --signature"), std::string::npos)
            << line;
    }
}

TEST(SimOptions, EveryBadLineIsNamedWithWhatTheOptionAccepts) {
    const std::string games = "a whole number from 1 to 1000000000";
    const struct {
        const char* line;
        std::string error;
    } cases[] = {
        {"5", "'5' is not an option; options start with -- (see gildenway-sim --help)"},
        {"-g 5", "'-g' is not an option; options start with -- (see gildenway-sim --help)"},
        {"--games", "--games needs a value: " + games},
        {"--games=", "--games needs a value: " + games},
        {"--games --players 3", "--games needs a value: " + games},
        {"--games abc", "--games takes " + games + ", not 'abc'"},
        {"--games 12x", "--games takes " + games + ", not '12x'"},
        {"--games -5", "--games takes " + games + ", not '-5'"},
        {"--games +5", "--games takes " + games + ", not '+5'"},
        {"--games 0", "--games takes " + games + ", not '0'"},
        {"--games 1000000001", "--games takes " + games + ", not '1000000001'"},
        {"--players 7", "--players takes a whole number from 2 to 6, not '7'"},
        {"--players 1", "--players takes a whole number from 2 to 6, not '1'"},
        {"--seed 18446744073709551616",
         "--seed takes a whole number from 0 to 18446744073709551615, not "
         "'18446744073709551616'"},
        {"--seed -1", "--seed takes a whole number from 0 to 18446744073709551615, not '-1'"},
        {"--max-turns 0", "--max-turns takes " + games + ", not '0'"},
        {"--jobs 0", "--jobs takes a whole number from 1 to 1024, not '0'"},
        {"--jobs 1025", "--jobs takes a whole number from 1 to 1024, not '1025'"},
        {"--check=yes", "--check is a switch and takes no value"},
        {"--games 3 --games=4", "--games is given twice"},
        {"--gmaes 3",
         "--gmaes is not an option; the options are --games, --players, --seed, --max-turns, "
         "--jobs, --check, --signature, --help"},
    };
    for (const auto& c : cases) {
        const sim::ParsedOptions parsed = parse(c.line);
        EXPECT_FALSE(parsed.ok()) << c.line;
        EXPECT_EQ(parsed.error, c.error) << c.line;
        EXPECT_EQ(parsed.error.find('\n'), std::string::npos) << c.line;
    }
}

}  // namespace
}  // namespace gw::test
