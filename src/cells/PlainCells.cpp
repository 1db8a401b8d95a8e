// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/PlainCells.h"

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"
#include "game/Board.h"      // the board holding this cell, which holds it in turn
#include "players/player.h"  // a cell charges players, who hold cells in turn
#include "ports/Ports.h"

namespace gw {

PropertyCell* BoardCell::asProperty() {
    return isProperty() ? static_cast<PropertyCell*>(this) : nullptr;
}

Street* BoardCell::asStreet() {
    return isStreet() ? static_cast<Street*>(this) : nullptr;
}

TaxCell* BoardCell::asTax() {
    return isTax() ? static_cast<TaxCell*>(this) : nullptr;
}

void goToJail::doAction(player& p) {
    getCell().getBoard().windows().sound.play(MediaPlayer::Main1, SoundEffect::Police);
    p.goToJail();
    Cell_doAction(p);  // cell 30 redrawn with the token gone
}

}  // namespace gw
