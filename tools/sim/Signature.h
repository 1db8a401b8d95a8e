// SPDX-License-Identifier: GPL-3.0-or-later
// The determinism signature: a fixed set of seeded games whose end states are hashed
// into one line, so that any change to what the rules do shows as a changed line.
#pragma once

#include <cstdint>
#include <string>

#include "game/Board.h"

namespace gw::sim {

// 64-bit FNV-1a over whole numbers, each taken as eight bytes, lowest first, so that
// the hash is the same on every machine and in every build.
class Fnv1a {
public:
    void add(std::uint64_t value) {
        for (int byte = 0; byte < 8; ++byte) {
            hash_ ^= (value >> (8 * byte)) & 0xffU;
            hash_ *= 0x100000001b3ULL;
        }
    }
    void add(long long value) { add(static_cast<std::uint64_t>(value)); }
    void add(int value) { add(static_cast<long long>(value)); }
    void add(Integer value) { add(static_cast<long long>(value)); }
    void add(bool value) { add(static_cast<long long>(value)); }
    void add(const std::string& text);
    std::uint64_t value() const { return hash_; }

private:
    std::uint64_t hash_ = 0xcbf29ce484222325ULL;
};

// The hash of everything a board holds: the players' money, places, jail state and
// holdings, whose turn it is, the cells' owners, mortgages and hotels, the deck's order
// and cursor, and the dice.
std::uint64_t stateHash(Board& board);

// Games of each number of players, 2 to 6, in the signature.
constexpr int kSignatureGames = 500;

struct Signature {
    std::uint64_t seed = 0;
    long long games = 0;
    long long turns = 0;
    std::uint64_t hash = 0;  // of the end states, in the order of the games
    long long violations = 0;
    std::string firstFault;  // the fault of the lowest game index, with --check

    // One line, the same whatever the build and the number of jobs.
    std::string line() const;
};

// Plays kSignatureGames games of each number of players on `jobs` threads.
Signature playSignature(std::uint64_t seed, int jobs, bool check,
                        int gamesPerCount = kSignatureGames);

}  // namespace gw::sim
