// Random clicks through whole runs of the program, on a few seeds.
#include <gtest/gtest.h>

#include "Monkey.h"

namespace gw::test {
namespace {

TEST(Monkey, RandomClicksKeepEveryInvariantThroughWholeGames) {
    for (std::uint64_t seed : {1u, 2u, 3u}) {
        const monkey::MonkeyResult result = monkey::runMonkey(seed, 6000);
        EXPECT_EQ(result.failure, "") << "seed " << seed;
        EXPECT_EQ(result.steps, 6000);
    }
}

}  // namespace
}  // namespace gw::test
