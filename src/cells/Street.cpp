// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/Street.h"

namespace gw {
namespace {

// The rent of a street of that price with one to four hotels.
std::array<Integer, kMaxHotels> hotelRentsFor(double price) {
    return {rounded(price * 0.5), rounded(price * 1.2), rounded(price * 2), rounded(price * 2.5)};
}

}  // namespace

Street::Street(cell plain, Integer price, Integer distId)
    : PropertyCell(CellKind::Street, std::move(plain), price, static_cast<Integer>(distId / 10)),
      distId_(distId),
      hotelRents_(hotelRentsFor(price)),
      hotelCost_(rounded(price * 0.6)) {}

Integer Street::getRent() const {
    const Integer hotels = getHotelCount();
    return hotels != 0 ? getRentWithHotels(hotels) : getProp().getRent();
}

void Street::addHotel() {
    if (getHotelCount() >= kMaxHotels) return;
    setHotelCount(static_cast<Integer>(getHotelCount() + 1));
    display();
}

void Street::destroyHotel() {
    setHotelCount(static_cast<Integer>(getHotelCount() - 1));
    display();
}

CardValues Street::cardValues() const {
    const Property& prop = getProp();
    return {{prop.getPrice(), prop.getRent(), hotelRents_[0], hotelRents_[1], hotelRents_[2],
             hotelRents_[3], prop.getMortgage(), hotelCost_},
            8};
}

}  // namespace gw
