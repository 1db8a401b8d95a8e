// SPDX-License-Identifier: GPL-3.0-or-later
// The determinism signature: the line kept in the repository, its independence of the
// number of jobs, and a hash of the board that sees every part of the end state.
//
// The expected line lives in tests/signature.txt. A deliberate change to the rules
// changes it; after checking that the change is meant, write it anew with
//     gildenway-sim --signature > tests/signature.txt
#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <functional>
#include <map>
#include <string>

#include "Recorder.h"
#include "Signature.h"
#include "cells/Street.h"
#include "windows/Windows.h"

namespace gw::test {
namespace {

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
