// SPDX-License-Identifier: GPL-3.0-or-later
// What a buyable cell has beyond a plain cell: price, owner and mortgage flag, and the
// bare rent and mortgage value that follow from the price. Money never passes here.
#pragma once

#include "cells/cell.h"

namespace gw {

class Property {
public:
    Property(cell& cCell, Integer iPrice)
        : price_(iPrice),
          rent_(rounded(iPrice * 0.1)),
          mortgage_(rounded(iPrice * 0.5)),
          cCell_(cCell) {}

    cell& getCell() const { return cCell_; }
    player* getOwners() const { return owner_; }
    void setOwner(player* owner) { owner_ = owner; }
    bool isMortgaged2() const { return isMortgaged_; }
    Integer getPrice() const { return price_; }
    // The bare rent: a tenth of the price, 0 while mortgaged; hotels do not count.
    Integer getRent() const { return isMortgaged_ ? Integer{0} : rent_; }
    // Half the price, mortgaged or not.
    Integer getMortgage() const { return mortgage_; }
    void Mortgage() { isMortgaged_ = true; }
    void Unmortgage() { isMortgaged_ = false; }
    void display() { cCell_.display(); }
    void doAction(player& p) { cCell_.doAction(p); }

private:
    Integer price_;
    // Worked out once: the price never changes, and they are read on every landing.
    Integer rent_;
    Integer mortgage_;
    player* owner_ = nullptr;  // none: the bank holds the cell
    bool isMortgaged_ = false;
    cell& cCell_;
};

}  // namespace gw
