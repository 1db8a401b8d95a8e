// SPDX-License-Identifier: GPL-3.0-or-later
// One headless game of computer players, and runs of them spread over threads.
#include "Simulation.h"

#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <optional>
#include <thread>
#include <vector>

#include "Checker.h"
#include "Signature.h"
#include "game/Board.h"
#include "windows/Windows.h"

namespace gw::sim {
namespace {

std::string located(const GameConfig& config, int turn, const std::string& what) {
    return "seed " + std::to_string(config.seed) + ", game " + std::to_string(config.game) +
           ", turn " + std::to_string(turn) + ": " + what;
}

// The seats are the slots of the order of play that the game drew: slot 0 moved first.
void countOutcome(const Board& board, int players, GameResult& result) {
    for (int slot = 0; slot < players; ++slot) {
        const player& p = *board.getPlayer(static_cast<Integer>(slot));
        if (p.isBankrupt2()) {
            ++result.bankruptcies;
        } else if (result.finished) {
            result.winnerSeat = slot;
        }
    }
}

}  // namespace

std::uint64_t gameSeed(std::uint64_t seed, int game) {
    // A splitmix step, so that neighbouring games share no run of draws.
    std::uint64_t z = seed + 0x9e3779b97f4a7c15ULL * (static_cast<std::uint64_t>(game) + 1);
    z = (z ^ (z >> 30)) * 0xbf58476d1ce4e5b9ULL;
    z = (z ^ (z >> 27)) * 0x94d049bb133111ebULL;
    return z ^ (z >> 31);
}

std::string seatName(int seat) {
    return "Computer " + std::to_string(seat + 1);
}

GameResult playGame(const GameConfig& config) {
    LedgerWindow window(config.check);
    SilentSound sound;
    InstantDelay delay;
    Windows windows(window, sound, delay);
    Board board(windows, std::make_unique<SeededRandom>(gameSeed(config.seed, config.game)));
    board.init();
    const int players = std::clamp(config.players, 2, static_cast<int>(kMaxPlayers));
    GameSetup setup;
    for (int seat = 0; seat < players; ++seat) {
        setup.add(seatName(seat), true, static_cast<Integer>(seat));
    }
    board.addPlayers(setup);
    board.shufflePlayers();
    window.attach(board);
    Checker checker(board, window);

    GameResult result;
    result.game = config.game;
    // The hook runs after the turn has passed on, so the player who played is the one
    // who was to play when the hook ran last.
    int played = board.getCurrPlayerIndex();
    board.setOnTurnPlayed([&] {
        ++result.turns;
        if (config.check) {
            if (std::optional<std::string> fault = checker.afterTurn(played)) {
                result.violation = located(config, result.turns, *fault);
                return false;
            }
        }
        played = board.getCurrPlayerIndex();
        return result.turns < config.maxTurns;
    });
    windows.main.UpdateTurnPlaying(gw::TurnButtons::Neither);
    board.playTurn();
    board.setOnTurnPlayed({});

    result.finished = board.countSolvent() == 1;
    result.stalled = !result.finished && result.turns < config.maxTurns && result.violation.empty();
    if (config.check && result.violation.empty()) {
        if (result.stalled) {
            result.violation = located(
                config, result.turns,
                "the turns stopped with " + std::to_string(board.countSolvent()) + " players left");
        } else if (std::optional<std::string> fault = checker.atEnd()) {
            result.violation = located(config, result.turns, *fault);
        }
    }
    countOutcome(board, players, result);
    result.trades = window.trades();
    result.selfTrades = window.selfTrades();
    result.hotelsBuilt = window.hotelsBuilt();
    result.lostAtBound = checker.lostAtBound();
    result.endState = stateHash(board);
    return result;
}

void onThreads(int jobs, const std::function<void()>& work) {
    std::vector<std::jthread> threads;
    for (int j = 1; j < std::max(jobs, 1); ++j) threads.emplace_back(work);
    work();
}

Summary playGames(const RunConfig& config) {
    Summary total(config.players);
    std::mutex totalLock;
    std::atomic<int> next{0};
    // Each thread sums up its own games and adds them in once at the end; every count
    // is a sum, so the summary does not depend on which thread played which game.
    onThreads(config.jobs, [&] {
        Summary part(config.players);
        for (int g = next++; g < config.games; g = next++) {
            part.add(playGame({config.seed, g, config.players, config.maxTurns, config.check}));
        }
        const std::lock_guard lock(totalLock);
        total.merge(part);
    });
    return total;
}

}  // namespace gw::sim
