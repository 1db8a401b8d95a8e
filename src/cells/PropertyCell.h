// SPDX-License-Identifier: GPL-3.0-or-later
// The common part of the three buyable kinds (Street, Metro, Utility): the held
// Property, the landing rule, and the filling of the property card.
#pragma once

#include <array>
#include <span>

#include "cells/BoardCell.h"
#include "cells/Property.h"
#include "ports/WindowCodes.h"

namespace gw {

// The values printed on the property card: 8 for a street, 3 for the others.
struct CardValues {
    std::array<Integer, 8> values{};
    std::size_t count = 0;
    std::span<const Integer> span() const { return {values.data(), count}; }
};

class PropertyCell : public BoardCell {
public:
    Property& getProp() { return prop_; }
    const Property& getProp() const { return prop_; }

    // The rent due now; for a street it counts the hotels.
    virtual Integer getRent() const { return prop_.getRent(); }
    // Always 0 but on a street; kept here so that asking any buyable cell costs no call.
    Integer getHotelCount() const { return hotelCount_; }
    // 1 to 8 the district, 9 a metro station, 10 a utility.
    Integer groupNumber() const { return group_; }

    // A token lands: the offer to buy, the demand for rent, or nothing.
    void doAction(player& p) override;
    // Opens the property card. Unless this is the landing being dealt with, opt is
    // worked out anew from the owner and the player.
    void showInfo(player& p, Integer& opt);

protected:
    PropertyCell(CellKind kind, cell plain, Integer price, Integer group)
        : BoardCell(kind, std::move(plain)), prop_(getCell(), price), group_(group) {}
    // Price, bare rent and mortgage value; a street adds its hotel figures.
    virtual CardValues cardValues() const;
    void setHotelCount(Integer hotels) { hotelCount_ = hotels; }

private:
    Property prop_;
    Integer group_;
    Integer hotelCount_ = 0;
};

class Metro final : public PropertyCell {
public:
    Metro(cell plain, Integer price) : PropertyCell(CellKind::Metro, std::move(plain), price, 9) {}
};

class Utility final : public PropertyCell {
public:
    Utility(cell plain, Integer price)
        : PropertyCell(CellKind::Utility, std::move(plain), price, 10) {}
};

}  // namespace gw
