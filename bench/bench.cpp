// SPDX-License-Identifier: GPL-3.0-or-later
// The speed of the rules alone: computer players, no window, no sound, no waits.
#include <benchmark/benchmark.h>

#include <cstdint>
#include <memory>
#include <string>

#include "game/Board.h"
#include "windows/Windows.h"

namespace {

constexpr int kMaxTurns = 10000;

// One game of computer players. The board holds on to the windows, so they live here too
// and the whole stays in place.
class Game {
public:
    Game(std::uint64_t seed, int players)
        : windows_(main_, sound_, delay_),
          board_(windows_, std::make_unique<gw::SeededRandom>(seed)) {
        board_.init();
        gw::GameSetup setup;
        for (int seat = 0; seat < players; ++seat) {
            setup.add("Computer " + std::to_string(seat + 1), true, static_cast<gw::Integer>(seat));
        }
        board_.addPlayers(setup);
        board_.shufflePlayers();
        windows_.main.UpdateTurnPlaying(gw::TurnButtons::Neither);
    }

    // Plays one computer turn.
    void playOne() {
        board_.setOnTurnPlayed([] { return false; });
        board_.playTurn();
        ++turns_;
    }
    // Plays computer turns until the game is over or cut off.
    void playOut() {
        board_.setOnTurnPlayed([this] { return ++turns_ < kMaxTurns; });
        board_.playTurn();
    }
    bool over() const { return board_.countSolvent() == 1 || turns_ >= kMaxTurns; }
    int turns() const { return turns_; }

private:
    gw::NullMainWindow main_;
    gw::SilentSound sound_;
    gw::InstantDelay delay_;
    gw::Windows windows_;
    gw::Board board_;
    int turns_ = 0;
};

void BM_ComputerTurn(benchmark::State& state) {
    std::uint64_t seed = 1;
    auto game = std::make_unique<Game>(seed, 4);
    for (auto _ : state) {
        game->playOne();
        if (game->over()) {
            // A finished game is replaced outside the timing.
            state.PauseTiming();
            game = std::make_unique<Game>(++seed, 4);
            state.ResumeTiming();
        }
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(BM_ComputerTurn);

void BM_FourPlayerGame(benchmark::State& state) {
    std::uint64_t seed = 1;
    long long turns = 0;
    for (auto _ : state) {
        Game game(seed++, 4);
        game.playOut();
        turns += game.turns();
    }
    state.SetItemsProcessed(turns);
    state.counters["turns/game"] =
        benchmark::Counter(static_cast<double>(turns) / static_cast<double>(state.iterations()));
}
BENCHMARK(BM_FourPlayerGame)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
