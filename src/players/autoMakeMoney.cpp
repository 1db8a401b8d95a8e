// SPDX-License-Identifier: GPL-3.0-or-later
// How a computer raises cash: utilities, then metro stations, then bare streets are
// mortgaged, then hotels sold; if all that is not enough, bankruptcy.
#include <array>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"

namespace gw {

void player::autoMakeMoney(Integer amount) {
    constexpr int kBankruptcyStage = 4;
    if (balance_ >= amount) return;
    // Every step below needs a cell of the player's own, and none changes hands here:
    // they are looked up once, in the order of the board.
    std::array<Integer, kCellCount> own{};
    std::size_t ownCount = 0;
    for (Integer i = 0; i < kCellCount; ++i) {
        if (holds(i)) own[ownCount++] = i;
    }
    for (int stage = 0; balance_ < amount; ++stage) {
        if (stage == kBankruptcyStage) {
            declareBankruptcy();
            return;
        }
        for (std::size_t k = 0; k < ownCount && balance_ < amount; ++k) {
            const Integer i = own[k];
            const CellKind kind = board_.getCell(i)->kind();
            switch (stage) {
                case 0:
                    if (kind == CellKind::Utility && canMort(i)) mortgageProp(i);
                    break;
                case 1:
                    if (kind == CellKind::Metro && canMort(i)) mortgageProp(i);
                    break;
                case 2:
                    if (kind == CellKind::Street && canMort(i)) mortgageProp(i);
                    break;
                default:
                    if (kind != CellKind::Street) break;
                    while (canSellHotel(i) && balance_ < amount) sellHotel(i);
                    // A stripped street is mortgaged only while the player is in debt.
                    if (canMort(i) && balance_ < 0) mortgageProp(i);
                    break;
            }
        }
    }
}

}  // namespace gw
