// SPDX-License-Identifier: GPL-3.0-or-later
// The headless simulator: its runs repeat by seed whatever the number of jobs, its summary
// counts seats in the order of play and turns over finished games only, a long run of turns
// does not deepen the call stack; and the determinism signature: the line kept in the
// repository, its independence of the number of jobs, and a hash of the board that sees every
// part of the end state.
//
// The expected line lives in tests/signature.txt. A deliberate change to the rules
// changes it; after checking that the change is meant, write it anew with
//     gildenway-sim --signature > tests/signature.txt
#include <gtest/gtest.h>

#include <algorithm>
#include <cstdint>
#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>
#include <vector>

#include "LedgerWindow.h"
#include "Recorder.h"
#include "Signature.h"
#include "Simulation.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

TEST(Simulator, TheSameSeedGivesTheSameCheckedRunWhateverTheJobs) {
    sim::RunConfig config{40, 4, 9, 10000, 1, true};
    const sim::Summary one = sim::playGames(config);
    config.jobs = 3;
    const sim::Summary three = sim::playGames(config);
    EXPECT_EQ(one.games, 40);
    EXPECT_EQ(one.violations, 0);
    EXPECT_TRUE(one == three);
    EXPECT_EQ(one.medianTurns(), three.medianTurns());
}

TEST(Simulator, WinsAreCountedBySeatInTheOrderOfPlay) {
    int reordered = 0;
    for (int game = 0; game < 12; ++game) {
        const sim::GameConfig config{3, game, 4, 10000, false};
        const sim::GameResult result = sim::playGame(config);
        ASSERT_TRUE(result.finished);

        // The same game played out here: the slot of the one left standing.
        sim::LedgerWindow window(false);
        SilentSound sound;
        InstantDelay delay;
        Windows windows(window, sound, delay);
        Board board(windows, std::make_unique<SeededRandom>(sim::gameSeed(3, game)));
        board.init();
        for (int seat = 0; seat < 4; ++seat) {
            board.addPlayer(sim::seatName(seat), true, static_cast<Integer>(seat));
        }
        board.shufflePlayers();
        window.attach(board);
        board.playTurn();
        int left = -1;
        for (Integer slot = 0; slot < 4; ++slot) {
            if (!board.getPlayer(slot)->isBankrupt2()) left = slot;
        }
        EXPECT_EQ(result.winnerSeat, left) << "game " << game;
        if (board.getPlayer(static_cast<Integer>(left))->getName() != sim::seatName(left)) {
            ++reordered;
        }
    }
    // Otherwise the seats of sitting down and of play would not have been told apart.
    EXPECT_GT(reordered, 0);
}

sim::GameResult finishedIn(int turns, int winner = 0) {
    sim::GameResult r;
    r.turns = turns;
    r.finished = true;
    r.winnerSeat = winner;
    return r;
}

TEST(Simulator, TurnFiguresAreOverFinishedGamesOnly) {
    sim::Summary s(3);
    // 20 finished games of 1 to 20 turns, and long games that did not finish.
    for (int t = 20; t >= 1; --t) s.add(finishedIn(t, t % 3));
    sim::GameResult capped;
    capped.turns = 10000;
    s.add(capped);
    sim::GameResult stalled = capped;
    stalled.stalled = true;
    s.add(stalled);
    sim::GameResult fault = finishedIn(9000);
    fault.violation = "broken";
    s.add(fault);

    EXPECT_EQ(s.games, 23);
    EXPECT_EQ(s.finished, 20);
    EXPECT_EQ(s.capped, 1);
    EXPECT_EQ(s.stalled, 1);
    EXPECT_EQ(s.violations, 1);
    EXPECT_EQ(s.turns, 210 + 29000);
    EXPECT_DOUBLE_EQ(s.meanTurns(), 10.5);
    EXPECT_DOUBLE_EQ(s.medianTurns(), 10.5);
    EXPECT_EQ(s.p95Turns(), 19);  // rank 19 of 20
    EXPECT_EQ(s.winsBySeat, (std::vector<long long>{6, 7, 7}));

    s.add(finishedIn(21));
    EXPECT_DOUBLE_EQ(s.medianTurns(), 11);
    EXPECT_EQ(s.p95Turns(), 20);  // rank 20 of 21
}

TEST(Simulator, PartsOfARunAddUpToTheWholeAndKeepTheFirstFaults) {
    std::vector<sim::GameResult> results;
    for (int g = 0; g < 30; ++g) {
        sim::GameResult r = finishedIn(100 + g * 7 % 13, g % 4);
        r.game = g;
        r.bankruptcies = 3;
        if (g % 2 == 1) r.violation = "fault in game " + std::to_string(g);
        results.push_back(r);
    }
    sim::Summary whole(4);
    for (const sim::GameResult& r : results) whole.add(r);
    sim::Summary someParts(4);
    sim::Summary otherParts(4);
    for (auto r = results.rbegin(); r != results.rend(); ++r)
        (r->game % 3 == 0 ? someParts : otherParts).add(*r);
    otherParts.merge(someParts);
    EXPECT_TRUE(otherParts == whole);
    ASSERT_EQ(whole.faults.size(), sim::Summary::kKeptFaults);
    EXPECT_EQ(whole.faults.front().second, "fault in game 1");
    EXPECT_EQ(whole.faults.back().second, "fault in game 19");
}

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

std::string expectedLine() {
    const std::filesystem::path file =
        std::filesystem::path(__FILE__).parent_path() / "signature.txt";
    std::ifstream in(file);
    std::string line;
    std::getline(in, line);
    return line;
}

TEST(Signature, TheFixedGamesEndAsTheKeptLineSays) {
    const std::string expected = expectedLine();
    ASSERT_FALSE(expected.empty()) << "tests/signature.txt is missing or empty";
    const sim::Signature signature = sim::playSignature(1, 2, false);
    EXPECT_EQ(signature.line(), expected)
        << "if the rules were changed on purpose: gildenway-sim --signature > "
           "tests/signature.txt";
}

TEST(Signature, TheSameSeedGivesTheSameLineWhateverTheJobs) {
    const sim::Signature one = sim::playSignature(7, 1, true, 10);
    const sim::Signature three = sim::playSignature(7, 3, true, 10);
    EXPECT_EQ(one.violations, 0) << one.firstFault;
    EXPECT_EQ(one.games, 50);
    EXPECT_EQ(one.line(), three.line());
    EXPECT_NE(sim::playSignature(8, 1, false, 10).hash, one.hash);
}

// A board of two players, as new, on which a test changes one thing.
class Table {
public:
    Table() : windows_(rec_, rec_, rec_), board_(windows_, std::make_unique<SeededRandom>(5)) {
        board_.init();
        board_.addPlayer("A", true, 0);
        board_.addPlayer("B", true, 1);
    }
    Board& board() { return board_; }
    player& first() { return *board_.getPlayer(0); }

private:
    Recorder rec_;
    Windows windows_;
    Board board_;
};

TEST(Signature, TheBoardHashSeesEveryPartOfTheState) {
    constexpr Integer kStreet = 1;
    const std::map<std::string, std::function<void(Table&)>> changes{
        {"as new", [](Table&) {}},
        {"balance", [](Table& t) { t.first().credit(1); }},
        {"position", [](Table& t) { t.first().move(10, true); }},
        {"in jail", [](Table& t) { t.first().goToJail(); }},
        {"jail card", [](Table& t) { t.first().setHasGoJFC(true); }},
        {"owner", [](Table& t) { t.first().newlyOwn(*t.board().getCell(kStreet)); }},
        {"mortgage",
         [](Table& t) {
             t.first().newlyOwn(*t.board().getCell(kStreet));
             t.board().propertyAt(kStreet)->getProp().Mortgage();
         }},
        {"hotel",
         [](Table& t) {
             t.first().newlyOwn(*t.board().getCell(kStreet));
             t.board().streetAt(kStreet)->addHotel();
         }},
        {"deck order", [](Table& t) { t.board().getJFLDeck().shuffle(); }},
        {"deck cursor", [](Table& t) { t.board().getJFLDeck().getCard(); }},
    };
    std::map<std::uint64_t, std::string> seen;
    for (const auto& [name, change] : changes) {
        Table table;
        change(table);
        const std::uint64_t hash = sim::stateHash(table.board());
        const auto [at, isNew] = seen.emplace(hash, name);
        EXPECT_TRUE(isNew) << name << " hashes as " << at->second;
        Table again;
        change(again);
        EXPECT_EQ(sim::stateHash(again.board()), hash) << name;
    }
}

}  // namespace
}  // namespace gw::test
