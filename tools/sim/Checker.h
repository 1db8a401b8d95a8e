// SPDX-License-Identifier: GPL-3.0-or-later
// Checks a headless game after each turn: the turn's ledger, the players, the cells and
// the deck.
#pragma once

#include <optional>
#include <string>

#include "LedgerWindow.h"

namespace gw::sim {

class Checker {
public:
    Checker(Board& board, LedgerWindow& window);

    // Checks the turn just played by the player in slot `played`; a description of the
    // first thing found wrong, or nothing.
    std::optional<std::string> afterTurn(int played);
    // Checks the end of a run of turns: whether the game is over, and told so once.
    std::optional<std::string> atEnd() const;
    // Money that did not arrive because a balance stuck at the top of the 16-bit range.
    long long lostAtBound() const { return lostAtBound_; }

private:
    std::optional<std::string> checkLedger(int played);
    std::optional<std::string> checkPlayers(int played) const;
    std::optional<std::string> checkCells() const;
    std::optional<std::string> checkDeck() const;

    Board& board_;
    LedgerWindow& window_;
    long long total_ = 0;  // the players' money at the end of the last turn
    long long lostAtBound_ = 0;
};

}  // namespace gw::sim
