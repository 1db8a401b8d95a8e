// SPDX-License-Identifier: GPL-3.0-or-later
// A buyable cell of a district that carries up to four hotels. The district id's tens
// digit is the district, its units digit the street's number in it.
#pragma once

#include <array>

#include "cells/PropertyCell.h"

namespace gw {

constexpr Integer kMaxHotels = 4;

class Street final : public PropertyCell {
public:
    Street(cell plain, Integer price, Integer distId);

    Integer getDistId() const { return distId_; }
    // The district, 1 to 8, and the street's number in it, 1 to 3.
    Integer district() const { return static_cast<Integer>(distId_ / 10); }
    Integer streetNumber() const { return static_cast<Integer>(distId_ % 10); }
    // The rent due: by the hotel table when there are hotels, else the bare rent.
    Integer getRent() const override;
    // Rent by the number of hotels, from the price; 0 for a count outside 1 to 4.
    Integer getRentWithHotels(Integer hotels) const {
        return hotels >= 1 && hotels <= kMaxHotels
                   ? hotelRents_[static_cast<std::size_t>(hotels - 1)]
                   : Integer{0};
    }
    Integer getHotelCost() const { return hotelCost_; }
    void addHotel();
    void destroyHotel();

protected:
    CardValues cardValues() const override;

private:
    Integer distId_;
    // Worked out once from the price, which never changes: the computer's building
    // passes ask for them many times a turn.
    std::array<Integer, kMaxHotels> hotelRents_;
    Integer hotelCost_;
};

}  // namespace gw
