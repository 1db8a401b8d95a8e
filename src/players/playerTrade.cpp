// SPDX-License-Identifier: GPL-3.0-or-later
// Sales of one cell between two players, for money.
#include "cells/PropertyCell.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {

void player::offerTrade(Integer cellId, Integer amount) {
    PropertyCell* prop = board_.propertyAt(cellId);
    if (prop == nullptr) return;
    player* owner = prop->getProp().getOwners();
    // An offer left on the table for a cell that has gone back to the bank has nobody to ask.
    if (owner == nullptr) return;
    TradingCardPort& window = windows().cards.trading;
    window.seeTrade(cellId, *owner, amount);
    if (!owner->isComputer2()) return;
    window.computerThink();
    // The quotient is rounded first, so any offer above half the price is always taken
    // and one of half the price or less once in ten.
    const double q = rounded(static_cast<double>(amount) / prop->getProp().getPrice());
    const Integer limit = q > 0.5 ? rounded((q - 0.5) * 20) : Integer{0};
    const int draw = static_cast<int>(board_.draw() * 10000) + 1;
    if (draw % 10 <= limit) doTrade(cellId, amount);
}

void player::doTrade(Integer cellId, Integer amount) {
    PropertyCell* prop = board_.propertyAt(cellId);
    if (prop == nullptr) return;
    player* seller = prop->getProp().getOwners();
    if (seller == nullptr) return;  // the bank does not sell through this card
    seller->noMoreOwn(*prop);
    seller->credit(amount);
    debit(amount);
    newlyOwn(*prop);
}

}  // namespace gw
