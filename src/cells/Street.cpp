// SPDX-License-Identifier: GPL-3.0-or-later
#include "cells/Street.h"

namespace gw {

Integer Street::getRent() const {
    return hotelCount_ != 0 ? getRentWithHotels(hotelCount_) : getProp().getRent();
}

Integer Street::getRentWithHotels(Integer hotels) const {
    const double price = getProp().getPrice();
    switch (hotels) {
        case 1:
            return rounded(price * 0.5);
        case 2:
            return rounded(price * 1.2);
        case 3:
            return rounded(price * 2);
        case 4:
            return rounded(price * 2.5);
        default:
            return 0;
    }
}

void Street::addHotel() {
    if (hotelCount_ >= kMaxHotels) return;
    ++hotelCount_;
    display();
}

void Street::destroyHotel() {
    --hotelCount_;
    display();
}

CardValues Street::cardValues() const {
    const Property& prop = getProp();
    return {{prop.getPrice(), prop.getRent(), getRentWithHotels(1), getRentWithHotels(2),
             getRentWithHotels(3), getRentWithHotels(4), prop.getMortgage(), getHotelCost()},
            8};
}

}  // namespace gw
