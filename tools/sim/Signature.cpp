// SPDX-License-Identifier: GPL-3.0-or-later
// The hash of a board and the fixed games of the signature.
#include "Signature.h"

#include <atomic>
#include <cstdio>
#include <vector>

#include "Simulation.h"
#include "cells/PropertyCell.h"

namespace gw::sim {

void Fnv1a::add(const std::string& text) {
    add(static_cast<std::uint64_t>(text.size()));
    for (const char c : text) add(static_cast<std::uint64_t>(static_cast<unsigned char>(c)));
}

std::uint64_t stateHash(Board& board) {
    Fnv1a h;
    h.add(board.getNumPlayer());
    h.add(board.getCurrPlayerIndex());
    for (Integer slot = 0; slot < board.getNumPlayer(); ++slot) {
        const player& p = *board.getPlayer(slot);
        h.add(p.getName());
        h.add(p.getBalance());
        h.add(p.getPosition());
        h.add(p.IsInJail());
        h.add(p.getJailCount());
        h.add(p.hasGoJFC());
        h.add(p.isBankrupt2());
        h.add(p.getDoubleCount());
        h.add(p.getDidAction());
        for (int row = 0; row < 8; ++row) {
            for (int column = 0; column < 3; ++column) h.add(p.ownsStreetEntry(row, column));
        }
    }
    for (Integer cell = 0; cell < kCellCount; ++cell) {
        const PropertyCell* property = board.propertyAt(cell);
        if (property == nullptr) continue;
        const player* owner = property->getProp().getOwners();
        h.add(owner != nullptr ? owner->getId() : Integer{-1});
        h.add(property->getProp().isMortgaged2());
        h.add(property->getHotelCount());
    }
    JFLDeck& deck = board.getJFLDeck();
    h.add(deck.getCursor());
    h.add(deck.getInDeck());
    for (int slot = 0; slot < kDeckSize; ++slot) h.add(deck.cardAt(slot).getType());
    h.add(board.dice1().getValue());
    h.add(board.dice2().getValue());
    return h.value();
}

std::string Signature::line() const {
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx", static_cast<unsigned long long>(hash));
    return "signature seed " + std::to_string(seed) + ": " + std::to_string(games) +
           " games of 2 to 6 players, " + std::to_string(turns) + " computer turns, fnv1a " + hex;
}

Signature playSignature(std::uint64_t seed, int jobs, bool check, int gamesPerCount) {
    constexpr int kCounts = static_cast<int>(kMaxPlayers) - 1;  // 2 to 6 players
    const int games = kCounts * gamesPerCount;
    // Each game writes its own slot, and the slots are folded in the order of the games,
    // so the signature does not depend on which thread finished first.
    std::vector<GameResult> results(static_cast<std::size_t>(games));
    std::atomic<int> next{0};
    onThreads(jobs, [&] {
        for (int g = next++; g < games; g = next++) {
            const int players = 2 + g / gamesPerCount;
            results[static_cast<std::size_t>(g)] =
                playGame({.seed = seed, .game = g, .players = players, .check = check});
        }
    });
    Signature s;
    s.seed = seed;
    s.games = games;
    Fnv1a h;
    for (const GameResult& r : results) {
        s.turns += r.turns;
        h.add(r.endState);
        if (!r.violation.empty()) {
            if (s.violations == 0) s.firstFault = r.violation;
            ++s.violations;
        }
    }
    h.add(s.turns);
    s.hash = h.value();
    return s;
}

}  // namespace gw::sim
