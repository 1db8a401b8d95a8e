// SPDX-License-Identifier: GPL-3.0-or-later
#include "RunFixture.h"

#include "windows/CellInfoWindow.h"
#include "windows/TradingCardWindow.h"

namespace gw::test {

void RunFixture::throwAndPass(int a, int b) {
    nextThrow(a, b);
    roll();
    if (card().isVisible() && card().forget().isOpen()) onCard("forget");
    endTurn();
}

void RunFixture::buyWhereTheThrowLands(int a, int b) {
    nextThrow(a, b);
    roll();
    ASSERT_TRUE(card().buy().isOpen());
    onCard("buy");
}

void RunFixture::typeSum(const std::string& digits) {
    TradingCardWindow& trading = windows().trading;
    click([&] {
        trading.amount_GotFocus();
        for (char key : digits) trading.typeKey(key);
    });
}

void RunFixture::askFor(Integer cellId, const std::string& sum) {
    click([&] { main().cell_Click(cellId); });
    ASSERT_TRUE(card().trade().isOpen());
    onCard("trade");
    ASSERT_EQ(windows().trading.face(), TradeFace::Buyer);
    typeSum(sum);
    click([&] { windows().trading.wantIt_Click(); });
}

void RunFixture::doneDeal() {
    click([&] { windows().trading.doneDeal_Click(); });
}

}  // namespace gw::test
