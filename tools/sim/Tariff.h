// SPDX-License-Identifier: GPL-3.0-or-later
// The ledger's own tables of every amount the game can ask at a cell: prices, rents by
// hotels, hotel costs, mortgage and release values, taxes, card sums, Go money and the
// jail fee. They are written out here, not taken from the cells or the players, on
// purpose: a check that read the rules' own constants would agree with a wrong constant,
// a wrong factor or a wrong rounding, and so could never catch one.
#pragma once

#include <array>

#include "base/Integer.h"

namespace gw::sim {

struct CellTariff {
    Integer price = 0;  // 0: not for sale
    bool street = false;
    std::array<Integer, 5> rent{};  // by hotels, 0 to 4; a metro or a utility has rent[0]
    Integer hotelCost = 0;
    Integer mortgage = 0;
    Integer release = 0;
};

namespace tariff {

constexpr CellTariff none() {
    return {};
}
constexpr CellTariff street(Integer price, std::array<Integer, 5> rent, Integer hotelCost,
                            Integer mortgage, Integer release) {
    return {price, true, rent, hotelCost, mortgage, release};
}
constexpr CellTariff station(Integer price, Integer rent, Integer mortgage, Integer release) {
    return {price, false, {rent, 0, 0, 0, 0}, 0, mortgage, release};
}

}  // namespace tariff

// By cell, 0 to 39.
constexpr std::array<CellTariff, 40> kTariffs = {{
    tariff::none(),
    tariff::street(90, {9, 45, 108, 180, 225}, 54, 45, 50),
    tariff::none(),
    tariff::street(100, {10, 50, 120, 200, 250}, 60, 50, 55),
    tariff::none(),
    tariff::station(300, 30, 150, 165),
    tariff::street(130, {13, 65, 156, 260, 325}, 78, 65, 72),
    tariff::none(),
    tariff::street(140, {14, 70, 168, 280, 350}, 84, 70, 77),
    tariff::street(150, {15, 75, 180, 300, 375}, 90, 75, 82),
    tariff::none(),
    tariff::street(170, {17, 85, 204, 340, 425}, 102, 85, 94),
    tariff::station(200, 20, 100, 110),
    tariff::street(180, {18, 90, 216, 360, 450}, 108, 90, 99),
    tariff::street(190, {19, 95, 228, 380, 475}, 114, 95, 105),
    tariff::station(300, 30, 150, 165),
    tariff::street(210, {21, 105, 252, 420, 525}, 126, 105, 116),
    tariff::none(),
    tariff::street(220, {22, 110, 264, 440, 550}, 132, 110, 121),
    tariff::street(230, {23, 115, 276, 460, 575}, 138, 115, 127),
    tariff::none(),
    tariff::street(250, {25, 125, 300, 500, 625}, 150, 125, 138),
    tariff::none(),
    tariff::street(260, {26, 130, 312, 520, 650}, 156, 130, 143),
    tariff::street(270, {27, 135, 324, 540, 675}, 162, 135, 148),
    tariff::station(300, 30, 150, 165),
    tariff::street(290, {29, 145, 348, 580, 725}, 174, 145, 160),
    tariff::street(300, {30, 150, 360, 600, 750}, 180, 150, 165),
    tariff::station(200, 20, 100, 110),
    tariff::street(310, {31, 155, 372, 620, 775}, 186, 155, 170),
    tariff::none(),
    tariff::street(330, {33, 165, 396, 660, 825}, 198, 165, 182),
    tariff::street(350, {35, 175, 420, 700, 875}, 210, 175, 193),
    tariff::none(),
    tariff::street(350, {35, 175, 420, 700, 875}, 210, 175, 193),
    tariff::station(300, 30, 150, 165),
    tariff::none(),
    tariff::street(400, {40, 200, 480, 800, 1000}, 240, 200, 220),
    tariff::none(),
    tariff::street(500, {50, 250, 600, 1000, 1250}, 300, 250, 275),
}};

inline const CellTariff& tariffOf(Integer cell) {
    return kTariffs[static_cast<std::size_t>(cell)];
}

constexpr Integer kGoSum = 200;
constexpr Integer kJailFeeSum = 50;
constexpr Integer kIncomeTaxCell = 4;
constexpr Integer kIncomeTaxCap = 200;  // or a tenth of the payer's worth, if less
constexpr Integer kLuxuryTaxCell = 38;
constexpr Integer kLuxuryTaxSum = 75;

// The cards by type: 3 to 7 collect these sums, 8 to 12 pay them.
constexpr std::array<Integer, 5> kCardSums = {250, 200, 150, 100, 50};
constexpr Integer kFirstCollectCard = 3;
constexpr Integer kFirstPayCard = 8;
constexpr Integer kLastPayCard = 12;
// The cards that walk forward and so may pass Go with its money; going to jail (type 0)
// and going back three cells (type 18) walk round the ring too, without it.
constexpr Integer kPassGoCard = 2;
constexpr Integer kStLaurentCard = 14;  // to cell 16: past Go it stops there first
constexpr Integer kForward7Card = 15;
constexpr Integer kForward11Card = 16;
constexpr Integer kForward5Card = 17;
constexpr Integer kStLaurentCell = 16;

// autoTrade's offers: the digits of its draw that lead to one, and the factor each gives.
constexpr int kFirstOfferDigit = 5;
constexpr int kLastOfferDigit = 9;

// The balances that the computer's choices turn on.
constexpr Integer kComputerReleasesFrom = 500;  // at least this before the first release
constexpr Integer kComputerTradesAbove = 200;   // more than this before the first purchase
constexpr Integer kComputerBuildsAbove = 200;   // more than this before the first hotel
constexpr Integer kComputerRaisesBelow = 100;   // a mortgage or a hotel sold only below this

}  // namespace gw::sim
