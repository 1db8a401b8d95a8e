// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/TaxCell.h"

#include "game/Board.h"
#include "windows/Windows.h"

namespace gw {

void TaxCell::showInfo(player& p, Integer opt) {
    getCell().getBoard().windows().cards.taxCard.showTaxCard(Cell_getId(), p, rent_, opt);
}

void TaxCell::doAction(player& p) {
    showInfo(p, 1);
    Cell_doAction(p);
}

}  // namespace gw
