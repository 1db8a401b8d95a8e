// SPDX-License-Identifier: GPL-3.0-or-later
// What every one of the forty cells offers its callers: a kind to test, a redraw and a
// landing. Kinds are told apart by `kind()`; the as... casts give the concrete class.
#pragma once

#include <cstddef>

#include "cells/cell.h"

namespace gw {

class PropertyCell;
class Street;
class TaxCell;
class JFL;

enum class CellKind : std::uint8_t {
    Go,
    Jail,
    OlympicPark,
    GoToJail,
    IncomeTax,
    LuxuryTax,
    JFL,
    Street,
    Metro,
    Utility,
};

constexpr std::size_t kCellKindCount = 10;

class BoardCell {
public:
    BoardCell(CellKind kind, cell plain) : kind_(kind), cCell_(std::move(plain)) {}
    virtual ~BoardCell() = default;
    BoardCell(const BoardCell&) = delete;
    BoardCell& operator=(const BoardCell&) = delete;

    CellKind kind() const { return kind_; }
    bool isProperty() const {
        return kind_ == CellKind::Street || kind_ == CellKind::Metro || kind_ == CellKind::Utility;
    }
    bool isStreet() const { return kind_ == CellKind::Street; }
    bool isTax() const { return kind_ == CellKind::IncomeTax || kind_ == CellKind::LuxuryTax; }

    // Null when the cell is not of that kind.
    PropertyCell* asProperty();
    Street* asStreet();
    TaxCell* asTax();

    // The landing of a token.
    virtual void doAction(player& p) = 0;
    // Redraws the tokens that stand here.
    void display() { cCell_.display(); }

    cell& getCell() { return cCell_; }
    const cell& getCell() const { return cCell_; }
    Integer Cell_getId() const { return cCell_.getId(); }
    const std::string& Cell_getName() const { return cCell_.getName(); }

protected:
    void Cell_doAction(player& p) { cCell_.doAction(p); }

private:
    CellKind kind_;
    cell cCell_;
};

}  // namespace gw
