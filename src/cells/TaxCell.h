// SPDX-License-Identifier: GPL-3.0-or-later
// The two tax cells. They hold the flat sum and open the tax card; the money moves
// through the player's payRent, which also applies the lesser-of rule of income tax.
#pragma once

#include "cells/BoardCell.h"

namespace gw {

class TaxCell : public BoardCell {
public:
    Integer getRent() const { return rent_; }
    bool isIncomeTax() const { return kind() == CellKind::IncomeTax; }
    // Opens the tax card with the flat sum; opt 1 offers the pay button.
    void showInfo(player& p, Integer opt);
    void doAction(player& p) override;

protected:
    TaxCell(CellKind kind, cell plain, Integer rent)
        : BoardCell(kind, std::move(plain)), rent_(rent) {}

private:
    Integer rent_;
};

class IncomeTax final : public TaxCell {
public:
    explicit IncomeTax(cell plain) : TaxCell(CellKind::IncomeTax, std::move(plain), 200) {}
};

class LuxuryTax final : public TaxCell {
public:
    explicit LuxuryTax(cell plain) : TaxCell(CellKind::LuxuryTax, std::move(plain), 75) {}
};

}  // namespace gw
