// SPDX-License-Identifier: GPL-3.0-or-later
// How the simulator's checks name players, cells and the money in play.
#pragma once

#include <string>

#include "game/Board.h"

namespace gw::sim {

inline long long moneyOf(const Board& board) {
    long long total = 0;
    for (Integer i = 0; i < board.getNumPlayer(); ++i) total += board.getPlayer(i)->getBalance();
    return total;
}

inline std::string nameOf(const Board& board, int slot) {
    const player* p = slot >= 0 ? board.getPlayer(static_cast<Integer>(slot)) : nullptr;
    return p != nullptr ? p->getName() : "the bank";
}

inline std::string cellText(const Board& board, Integer cell) {
    return "cell " + std::to_string(cell) + " (" + board.getCell(cell)->Cell_getName() + ")";
}

}  // namespace gw::sim
