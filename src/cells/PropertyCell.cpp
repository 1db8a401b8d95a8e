// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/PropertyCell.h"

#include "game/Board.h"      // the board holding this cell, which holds it in turn
#include "players/player.h"  // a cell charges players, who hold cells in turn
#include "ports/Ports.h"

namespace gw {

void PropertyCell::doAction(player& p) {
    prop_.doAction(p);
    const player* owner = prop_.getOwners();
    Integer opt = kOptInfo;
    if (owner == nullptr) {
        opt = kOptBuy;
        showInfo(p, opt);
    } else if (owner->getId() != p.getId() && !prop_.isMortgaged2()) {
        opt = kOptRent;
        showInfo(p, opt);
    } else {
        p.setDidAction(true);
    }
}

void PropertyCell::showInfo(player& p, Integer& opt) {
    const CardValues values = cardValues();
    std::string ownerName;
    const bool isTheLanding = p.getPosition() == Cell_getId() && !p.getDidAction();
    if (!isTheLanding) {
        const player* owner = prop_.getOwners();
        if (owner == nullptr) {
            opt = kOptInfo;
        } else {
            ownerName = owner->getName();
            if (owner->getId() == p.getId()) {
                opt = kOptOwn;
            } else if (getHotelCount() == 0 && p.getBalance() >= 0) {
                opt = kOptTrade;
            }
        }
    }
    getCell().getBoard().windows().cards.cellInfo.showInfoCard(
        Cell_getId(), groupNumber(), values.span(), opt, p, Cell_getName(), ownerName);
}

CardValues PropertyCell::cardValues() const {
    return {{prop_.getPrice(), prop_.getRent(), prop_.getMortgage()}, 3};
}

}  // namespace gw
