// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/TaxCell.h"

#include "game/Board.h"  // the board holding this cell, which holds it in turn
#include "ports/Ports.h"

namespace gw {

void TaxCell::showInfo(player& p, Integer opt) {
    getCell().getBoard().windows().cards.taxCard.showTaxCard(Cell_getId(), p, rent_, opt);
}

void TaxCell::doAction(player& p) {
    showInfo(p, 1);
    Cell_doAction(p);
}

}  // namespace gw
