// SPDX-License-Identifier: GPL-3.0-or-later
// How a computer raises cash: utilities, then metro stations, then bare streets are
// mortgaged, then hotels sold; if all that is not enough, bankruptcy.
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"

namespace gw {

void player::autoMakeMoney(Integer amount) {
    if (balance_ >= amount) return;
    // Nothing changes hands here: each kind's cells of the player's own are listed once,
    // in the order of the board.
    auto ownCells = [this](CellKind kind) {
        return (held_ & board_.cellsOfKind(kind)).inBoardOrder();
    };
    for (const CellKind kind : {CellKind::Utility, CellKind::Metro, CellKind::Street}) {
        for (const Integer i : ownCells(kind)) {
            if (balance_ >= amount) return;
            if (canMort(i)) mortgageProp(i);
        }
    }
    for (const Integer i : ownCells(CellKind::Street)) {
        if (balance_ >= amount) return;
        while (canSellHotel(i) && balance_ < amount) sellHotel(i);
        // A stripped street is mortgaged only while the player is in debt.
        if (canMort(i) && balance_ < 0) mortgageProp(i);
    }
    if (balance_ < amount) declareBankruptcy();
}

}  // namespace gw
