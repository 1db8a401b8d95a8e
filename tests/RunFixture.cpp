// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunFixture.h"

#include "windows/CellInfoWindow.h"

namespace gw::test {

void RunFixture::throwAndPass(int a, int b) {
    nextThrow(a, b);
    roll();
    if (card().isVisible() && card().forget().isOpen()) click([&] { card().forget_Click(); });
    endTurn();
}

}  // namespace gw::test
