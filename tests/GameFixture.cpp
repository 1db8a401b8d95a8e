// SPDX-License-Identifier: GPL-3.0-or-later
#include "GameFixture.h"

#include "windows/CellInfoWindow.h"

namespace gw::test {

bool GameFixture::cardUp() const {
    return windows.cellInfo.isVisible();
}

void GameFixture::forgetCard() {
    windows.cellInfo.forget_Click();
}

}  // namespace gw::test
