// SPDX-License-Identifier: GPL-3.0-or-later
// The four cells whose landing asks nothing of the player: Go, the jail (a visit),
// the free stop, and Police, which sends the token to jail.
#pragma once

#include "cells/BoardCell.h"

namespace gw {

// Landing on these is a redraw; the Go money is paid by the move itself.
class QuietCell final : public BoardCell {
public:
    using BoardCell::BoardCell;
    void doAction(player& p) override { Cell_doAction(p); }
};

class goToJail final : public BoardCell {
public:
    explicit goToJail(cell plain) : BoardCell(CellKind::GoToJail, std::move(plain)) {}
    void doAction(player& p) override;
};

}  // namespace gw
