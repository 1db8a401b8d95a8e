// SPDX-License-Identifier: GPL-3.0-or-later
// How a computer completes a district: it asks the owner of the one street it lacks,
// for a little more than half its price, through the same cards a human uses.
#include <array>
#include <string>

#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {

void player::autoTrade() {
    // The district id of the street to ask for, by row of ownedStreets; 0 for none.
    std::array<Integer, 8> wanted{};
    for (int r = 0; r < 8; ++r) {
        const auto& row = ownedStreets_[static_cast<std::size_t>(r)];
        const bool twoStreets = r == 0 || r == 7;
        const int held = row[0] + row[1] + (twoStreets ? 0 : row[2]);
        if (!(held == 2 || (held == 1 && twoStreets))) continue;
        for (int column = 0; column < 3; ++column) {
            // The third column of a two-street district reads false until ownDist has run.
            if (!row[static_cast<std::size_t>(column)]) {
                wanted[static_cast<std::size_t>(r)] =
                    static_cast<Integer>((r + 1) * 10 + column + 1);
            }
        }
    }

    CardPorts& ui = windows().cards;
    for (const Integer distId : wanted) {
        if (distId == 0) continue;
        Street* target = nullptr;
        Integer c = 0;
        for (Integer i = 0; i < kCellCount; ++i) {
            Street* s = board_.streetAt(i);
            if (s != nullptr && s->getDistId() == distId) {
                target = s;
                c = i;
                break;
            }
        }
        if (target == nullptr || target->getProp().getOwners() == nullptr) continue;
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
