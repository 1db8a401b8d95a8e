// The headless simulator: its games repeat by seed whatever the number of jobs, and its
// checks name a movement of money that no rule explains.
#include <gtest/gtest.h>

#include "Checker.h"
#include "Simulation.h"

namespace gw::test {
namespace {

TEST(Simulator, TheSameSeedGivesTheSameCheckedGamesWhateverTheJobs) {
    sim::RunConfig config{20, 4, 9, 10000, 1, true};
    const std::vector<sim::GameResult> one = sim::playGames(config);
    config.jobs = 3;
    const std::vector<sim::GameResult> three = sim::playGames(config);
    ASSERT_EQ(one.size(), three.size());
    for (std::size_t g = 0; g < one.size(); ++g) {
        EXPECT_EQ(one[g].violation, "");
        EXPECT_EQ(one[g].turns, three[g].turns);
        EXPECT_EQ(one[g].winnerSeat, three[g].winnerSeat);
    }
}

TEST(Simulator, AStrayPaymentIsCaught) {
    sim::LedgerWindow window(true);
    SilentSound sound;
    InstantDelay delay;
    Windows windows(window, sound, delay);
    Board board(windows, std::make_unique<SeededRandom>(5));
    board.init();
    board.addPlayer("A", true, 0);
    board.addPlayer("B", true, 1);
    window.attach(board);
    sim::Checker checker(board, window);
    board.getPlayer(1)->credit(7);
    EXPECT_TRUE(checker.afterTurn(0).has_value());
}

}  // namespace
}  // namespace gw::test
