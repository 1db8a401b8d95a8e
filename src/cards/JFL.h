// SPDX-License-Identifier: GPL-3.0-or-later
// A card cell: a landing draws the next card, shows it for the standard wait, and
// carries it out; the cell is redrawn after all that the card brought about.
#pragma once

#include "cells/BoardCell.h"

namespace gw {

class JFL final : public BoardCell {
public:
    explicit JFL(cell plain) : BoardCell(CellKind::JFL, std::move(plain)) {}
    void doAction(player& p) override;
};

}  // namespace gw
