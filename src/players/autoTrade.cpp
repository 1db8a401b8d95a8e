// SPDX-License-Identifier: GPL-3.0-or-later
// How a computer completes a district: it asks the owner of the one street it lacks,
// for a little more than half its price, through the same cards a human uses.
#include <algorithm>
#include <cstdint>
#include <string>

#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {

void player::autoTrade() {
    // The districts one street short, as they stood before any offer of this turn.
    const std::uint8_t oneShort = districtsOneShort_;
    if (oneShort == 0) return;
    CardPorts& ui = windows().cards;
    for (std::size_t r = 0; r < ownedStreets_.size(); ++r) {
        if (((oneShort >> r) & 1U) == 0) continue;
        const auto& row = ownedStreets_[r];
        const auto missing =
            static_cast<int>(std::find(row.begin(), row.end(), false) - row.begin());
        Street* target = board_.streetInDistrict(static_cast<int>(r), missing);
        if (target == nullptr || target->getProp().getOwners() == nullptr) continue;
        const Integer c = target->Cell_getId();
        const int d = (static_cast<int>(board_.draw() * 10000) + 1) % 10;
        if (d <= 4) continue;
        const double factor = d / 10.0 / 20.0 + 0.5;
        const Integer offer = rounded(target->getProp().getPrice() * factor);
        const bool ownerIsComputer = target->getProp().getOwners()->isComputer2();

        Integer opt = kOptInfo;
        target->showInfo(*this, opt);
        ui.cellInfo.trade_Click();
        ui.trading.setAmountText(std::to_string(offer));
        ui.trading.computerThink();
        ui.trading.wantIt_Click();
        if (ownerIsComputer) {
            // Between two computers the sale goes through, whatever the owner answered.
            ui.trading.computerThink();
            doTrade(c, offer);
        }
    }
}

}  // namespace gw
