// SPDX-License-Identifier: GPL-3.0-or-later
#include "GameFixture.h"

#include <algorithm>
#include <stdexcept>

#include "windows/CellInfoWindow.h"

namespace gw::test::byName {

bool isUp(const CellInfoWindow& card) {
    return card.isVisible();
}
Integer opt(const CellInfoWindow& card) {
    return card.cardOpt();
}
Integer cell(const CellInfoWindow& card) {
    return card.cardId();
}

Lines buttons(const CellInfoWindow& c) {
    return shown(
        "buy forget payRent trade buyHotel sellHotel Mortgage(0) Mortgage(1) Unmortgage Ok(0) "
        "Ok(1)",
        {&c.buy(), &c.forget(), &c.payRent(), &c.trade(), &c.buyHotel(), &c.sellHotel(),
         &c.Mortgage(0), &c.Mortgage(1), &c.Unmortgage(), &c.Ok(0), &c.Ok(1)});
}

bool offers(const CellInfoWindow& card, std::string_view button) {
    const Lines on = buttons(card);
    return std::find(on.begin(), on.end(), button) != on.end();
}

void press(CellInfoWindow& card, std::string_view button) {
    if (button == "buy") return card.buy_Click();
    if (button == "forget") return card.forget_Click();
    if (button == "payRent") return card.payRent_Click();
    if (button == "trade") return card.trade_Click();
    if (button == "buyHotel") return card.buyHotel_Click();
    if (button == "sellHotel") return card.sellHotel_Click();
    if (button == "Mortgage(0)") return card.Mortgage_Click(0);
    if (button == "Mortgage(1)") return card.Mortgage_Click(1);
    if (button == "Unmortgage") return card.Unmortgage_Click();
    if (button == "Ok(0)") return card.Ok_Click(0);
    if (button == "Ok(1)") return card.Ok_Click(1);
    if (button == "close") return card.close();
    throw std::invalid_argument("no button " + std::string(button) + " on the property card");
}

}  // namespace gw::test::byName
