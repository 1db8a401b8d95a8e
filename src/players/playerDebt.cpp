// SPDX-License-Identifier: GPL-3.0-or-later
// Rent, taxes, worth and bankruptcy. A debt has no record of its own: it is a cell
// under the token not dealt with, or a negative balance.
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {

Integer player::getRent() {
    const PropertyCell* prop = propertyUnder();
    return prop != nullptr ? prop->getRent() : Integer{0};
}

Integer player::canPayRent(Integer) {
    const PropertyCell* prop = propertyUnder();
    if (prop == nullptr) return 0;
    const Integer bareRent = prop->getProp().getRent();
    if (bareRent <= balance_) return 0;
    windows().main.showNegBalance(true);
    return subSat(bareRent, balance_);
}

Integer player::calcAssets() {
    long long total = balance_;
    for (const Integer i : held_.inBoardOrder()) {
        const PropertyCell* prop = board_.propertyAt(i);
        if (prop->getProp().getOwners() != this) continue;
        if (prop->getProp().isMortgaged2()) {
            total += rounded(prop->getProp().getPrice() * 0.5);
        } else {
            total += prop->getProp().getPrice();
            total += static_cast<long long>(prop->getHotelCount()) *
                     (prop->isStreet() ? static_cast<const Street*>(prop)->getHotelCost() : 0);
        }
    }
    return saturate(total);
}

Integer player::taxDue(const BoardCell& c) {
    const auto& tax = static_cast<const TaxCell&>(c);
    Integer amount = tax.getRent();
    if (tax.isIncomeTax()) {
        const double tenth = calcAssets() * 0.1;
        if (tenth < amount) amount = rounded(tenth);
    }
    return amount;
}

Integer player::canPayTax(Integer) {
    BoardCell* c = cellUnder();
    if (!c->isTax()) return 0;
    const Integer due = taxDue(*c);
    if (due <= balance_) return 0;
    windows().main.showNegBalance(true);
    return subSat(due, balance_);
}

void player::payRent() {
    BoardCell* c = cellUnder();
    if (PropertyCell* prop = propertyUnder()) {
        const Integer rent = getRent();
        player* owner = prop->getProp().getOwners();
        if (owner == this || owner == nullptr) return;
        const bool mortgaged = prop->getProp().isMortgaged2();
        if (isComputer_ && !mortgaged) {
            debit(rent);
            owner->credit(rent);
        } else if (!mortgaged && canPayRent(position_) == 0) {
            debit(rent);
            owner->credit(rent);
        }
    } else if (c->isTax()) {
        const Integer due = taxDue(*c);
        if (isComputer_ || canPayTax(position_) == 0) debit(due);
    }
}

player* player::isInDebtTo() {
    const PropertyCell* prop = propertyUnder();
    if (prop == nullptr) return nullptr;
    player* owner = prop->getProp().getOwners();
    return owner != this ? owner : nullptr;
}

void player::declareBankruptcy() {
    player* creditor = isInDebtTo();
    MainWindowPort& main = windows().main;
    // The cells held when the bankruptcy began; handing them on changes what is held.
    for (const Integer i : held_.inBoardOrder()) {
        PropertyCell* prop = board_.propertyAt(i);
        if (prop->getProp().getOwners() != this) continue;
        BoardCell& c = *prop;
        if (creditor != nullptr) {
            // Passed on as it stands: mortgaged or not, with all its hotels.
            creditor->newlyOwn(c);
            noMoreOwn(c);
            main.showOwner(i);
        } else {
            // Back to the bank, clean.
            noMoreOwn(c);
            prop->getProp().Unmortgage();
            main.showMort(i);
            prop->getProp().setOwner(nullptr);
            if (Street* s = board_.streetAt(i)) {
                while (s->getHotelCount() >= 1) s->destroyHotel();
                main.showHotel(i);
            }
            main.showOwner(i);
        }
    }
    main.showBankRupt();
    const Integer kept = position_;
    isBankrupt_ = true;
    position_ = 0;
    board_.getCell(kept)->display();
    Integer solvent = 0;
    for (Integer i = 0; i < board_.getNumPlayer(); ++i) {
        const player* p = board_.getPlayer(i);
        if (p != nullptr && !p->isBankrupt2()) ++solvent;
    }
    if (solvent == 1) main.showGameEnd();
    board_.endTurn();
}

}  // namespace gw
