#include "Simulation.h"

#include <algorithm>
#include <atomic>
#include <cmath>
#include <memory>
#include <optional>
#include <thread>

#include "Checker.h"
#include "game/Board.h"
#include "windows/Windows.h"

namespace gw::sim {
namespace {

std::string located(const GameConfig& config, int turn, const std::string& what) {
    return "seed " + std::to_string(config.seed) + ", game " + std::to_string(config.game) +
           ", turn " + std::to_string(turn) + ": " + what;
}

// The seat of each slot of the order of play, found by the players' names.
std::vector<int> seatsBySlot(const Board& board, int players) {
    std::vector<int> seats(static_cast<std::size_t>(players), -1);
    for (int slot = 0; slot < players; ++slot) {
        const std::string& name = board.getPlayer(static_cast<Integer>(slot))->getName();
        for (int seat = 0; seat < players; ++seat) {
            if (name == seatName(seat)) seats[static_cast<std::size_t>(slot)] = seat;
        }
    }
    return seats;
}

void countOutcome(const Board& board, int players, GameResult& result) {
    const std::vector<int> seats = seatsBySlot(board, players);
    for (int slot = 0; slot < players; ++slot) {
        const player& p = *board.getPlayer(static_cast<Integer>(slot));
        if (p.isBankrupt2()) {
            ++result.bankruptcies;
        } else if (result.finished) {
            result.winnerSeat = seats[static_cast<std::size_t>(slot)];
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
    for (int seat = 0; seat < players; ++seat) {
        board.addPlayer(seatName(seat), true, static_cast<Integer>(seat));
    }
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
    windows.main.UpdateTurnPlaying(2);
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
    return result;
}

std::vector<GameResult> playGames(const RunConfig& config) {
    std::vector<GameResult> results(static_cast<std::size_t>(std::max(config.games, 0)));
    std::atomic<int> next{0};
    // Each game writes its own slot only, so the results do not depend on the jobs.
    auto work = [&] {
        for (int g = next++; g < config.games; g = next++) {
            GameConfig game{config.seed, g, config.players, config.maxTurns, config.check};
            results[static_cast<std::size_t>(g)] = playGame(game);
        }
    };
    {
        std::vector<std::jthread> jobs;
        for (int j = 1; j < std::max(config.jobs, 1); ++j) jobs.emplace_back(work);
        work();
    }
    return results;
}

Summary summarize(const std::vector<GameResult>& results, int players) {
    Summary s;
    s.games = static_cast<int>(results.size());
    s.winsBySeat.assign(static_cast<std::size_t>(players), 0);
    std::vector<int> turns;
    turns.reserve(results.size());
    for (const GameResult& r : results) {
        turns.push_back(r.turns);
        s.turns += r.turns;
        if (!r.violation.empty()) {
            ++s.violations;
        } else if (r.finished) {
            ++s.finished;
        } else if (r.stalled) {
            ++s.stalled;
        } else {
            ++s.capped;
        }
        if (r.winnerSeat >= 0 && r.winnerSeat < players) {
            ++s.winsBySeat[static_cast<std::size_t>(r.winnerSeat)];
        }
        s.bankruptcies += r.bankruptcies;
        s.trades += r.trades;
        s.selfTrades += r.selfTrades;
        s.hotelsBuilt += r.hotelsBuilt;
        s.lostAtBound += r.lostAtBound;
    }
    if (turns.empty()) return s;
    std::sort(turns.begin(), turns.end());
    const std::size_t n = turns.size();
    s.meanTurns = static_cast<double>(s.turns) / static_cast<double>(n);
    s.medianTurns = n % 2 == 1 ? turns[n / 2] : (turns[n / 2 - 1] + turns[n / 2]) / 2.0;
    // The nearest rank: the smallest count that at least 95 games in 100 do not exceed.
    const auto rank = static_cast<std::size_t>(std::ceil(0.95 * static_cast<double>(n)));
    s.p95Turns = turns[std::max<std::size_t>(rank, 1) - 1];
    return s;
}

}  // namespace gw::sim
