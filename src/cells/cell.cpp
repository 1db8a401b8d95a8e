// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/cell.h"

#include "game/Board.h"      // the board holding this cell, which holds it in turn
#include "players/player.h"  // a cell charges players, who hold cells in turn
#include "ports/Ports.h"

namespace gw {

bool cell::IsOn(Integer) const {
    return false;
}

void cell::updateIsOn() {
    const Integer n = board_.getNumPlayer();
    for (Integer i = 0; i < n; ++i) {
        const player* p = board_.getPlayer(i);
        isOn_[static_cast<std::size_t>(i)] = p != nullptr && p->getPosition() == id_;
    }
}

void cell::display() {
    updateIsOn();
    board_.windows().main.showCell(isOn_, id_);
}

}  // namespace gw
