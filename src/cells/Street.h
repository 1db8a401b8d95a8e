// SPDX-License-Identifier: GPL-3.0-or-later
// A buyable cell of a district that carries up to four hotels. The district id's tens
// digit is the district, its units digit the street's number in it.
#pragma once

#include "cells/PropertyCell.h"

namespace gw {

constexpr Integer kMaxHotels = 4;

class Street final : public PropertyCell {
public:
    Street(std::unique_ptr<cell> plain, Integer price, Integer distId)
        : PropertyCell(CellKind::Street, std::move(plain), price), distId_(distId) {}

    Integer getDistId() const { return distId_; }
    // The district, 1 to 8, and the street's number in it, 1 to 3.
    Integer district() const { return static_cast<Integer>(distId_ / 10); }
    Integer streetNumber() const { return static_cast<Integer>(distId_ % 10); }
    // The rent due: by the hotel table when there are hotels, else the bare rent.
    Integer getRent() const override;
    // Rent by the number of hotels, from the price; 0 for a count outside 1 to 4.
    Integer getRentWithHotels(Integer hotels) const;
    Integer getHotelCost() const { return rounded(getProp().getPrice() * 0.6); }
    Integer getHotelCount() const override { return hotelCount_; }
    void addHotel();
    void destroyHotel();
    Integer groupNumber() const override { return district(); }

protected:
    CardValues cardValues() const override;

private:
    Integer hotelCount_ = 0;
    Integer distId_;
};

}  // namespace gw
