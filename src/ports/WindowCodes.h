// SPDX-License-Identifier: GPL-3.0-or-later
// Named codes that pass between the rules and the windows, so that a view's table of
// pictures is checked by the compiler rather than by bare numbers.
#pragma once

#include "base/Integer.h"

namespace gw {

// What the property card offers: the card value of a landing or a click.
enum CardOpt : Integer { kOptInfo = 0, kOptBuy = 1, kOptRent = 2, kOptOwn = 3, kOptTrade = 4 };

// The two main buttons of the turn: Roll Dice open, End Turn open, or neither.
enum class TurnButtons : Integer { Roll = 0, Finish = 1, Neither = 2 };

// The twelve faces of the property card. Spare is never chosen: it repeats District1.
enum class CardPicture {
    None = -1,
    District1,
    District2,
    District3,
    District4,
    District5,
    District6,
    District7,
    District8,
    Spare,
    Utility1,
    HQ,
    Metro,
};
constexpr int kCardPictureCount = 12;

enum class TaxPicture { None = -1, IncomeTax, LuxuryTax };

// The trading card's two faces.
enum class TradeFace { Owner, Buyer };

}  // namespace gw
