// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/EndLine.h"

#include <cstdio>

#include "Signature.h"
#include "windows/GameRun.h"

namespace gw::app {

std::string endLine(GameRun& run) {
    Board& board = run.board();
    std::string winner = "nobody";
    for (Integer id = 0; id < board.getNumPlayer(); ++id) {
        const player* p = board.getPlayer(id);
        if (p != nullptr && !p->isBankrupt2()) winner = p->getName();
    }
    char hex[17];
    std::snprintf(hex, sizeof hex, "%016llx",
                  static_cast<unsigned long long>(sim::stateHash(board)));
    return "game over: " + winner + " won after " + std::to_string(run.computerTurns()) +
           " computer turns, end state fnv1a " + hex;
}

}  // namespace gw::app
