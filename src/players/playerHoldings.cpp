// SPDX-License-Identifier: GPL-3.0-or-later
// Buying, hotels and mortgages. Each action asks its own test again and does nothing
// when it fails; buyProperty alone trusts its caller.
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {
namespace {

// The entry of a street in the owner's table: district row and street column.
int rowOf(const Street& s) {
    return s.district() - 1;
}
int columnOf(const Street& s) {
    return s.streetNumber() - 1;
}

}  // namespace

bool player::canBuy(Integer cellId) {
    const PropertyCell* c = board_.propertyAt(cellId);
    return c != nullptr && c->getProp().getOwners() == nullptr &&
           c->getProp().getPrice() <= balance_;
}

void player::buyProperty() {
    PropertyCell* prop = propertyUnder();
    if (prop == nullptr) return;  // only a buyable cell can be bought
    debit(prop->getProp().getPrice());
    newlyOwn(*prop);
}

void player::setStreetEntry(const BoardCell& c, bool owned) {
    if (!c.isStreet()) return;
    const auto& s = static_cast<const Street&>(c);
    const int row = rowOf(s);
    const int column = columnOf(s);
    if (row < 0 || row > 7 || column < 0 || column > 2) return;
    ownedStreets_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)] = owned;
    updateDistrict(static_cast<std::size_t>(row));
}

// The masks read the table as autoBuild and autoTrade read it: a two-street district is
// whole with its two, and the street to ask for is the last column that reads false, which
// for a two-street district whose third column is not yet marked is no street at all.
void player::updateDistrict(std::size_t row) {
    const auto& owned = ownedStreets_[row];
    const bool twoStreets = row == 0 || row == ownedStreets_.size() - 1;
    const int held = owned[0] + owned[1] + (twoStreets ? 0 : owned[2]);
    const bool whole = owned[0] && owned[1] && (twoStreets || owned[2]);
    const bool oneShort = twoStreets ? held == 1 && owned[2] : held == 2;
    const auto bit = static_cast<std::uint8_t>(1U << row);
    wholeDistricts_ =
        static_cast<std::uint8_t>(whole ? wholeDistricts_ | bit : wholeDistricts_ & ~bit);
    districtsOneShort_ =
        static_cast<std::uint8_t>(oneShort ? districtsOneShort_ | bit : districtsOneShort_ & ~bit);
}

void player::newlyOwn(BoardCell& pProp) {
    PropertyCell* prop = pProp.asProperty();
    if (prop == nullptr) return;
    prop->getProp().setOwner(this);
    held_.add(prop->Cell_getId());
    windows().main.showOwner(prop->getProp().getCell().getId());
    setStreetEntry(pProp, true);
}

void player::noMoreOwn(BoardCell& pProp) {
    if (pProp.isProperty()) held_.remove(pProp.Cell_getId());
    setStreetEntry(pProp, false);
}

void player::markTwoStreetDistricts() {
    if (ownedStreets_[0][2] && ownedStreets_[7][2]) return;
    ownedStreets_[0][2] = true;
    ownedStreets_[7][2] = true;
    updateDistrict(0);
    updateDistrict(7);
}

bool player::ownDist(Integer iDist) {
    markTwoStreetDistricts();
    if (iDist < 0 || iDist > 7) return false;
    const auto& row = ownedStreets_[static_cast<std::size_t>(iDist)];
    return row[0] && row[1] && row[2];
}

bool player::canBuild(Integer cellId) {
    const Street* s = board_.streetAt(cellId);
    if (s == nullptr || s->getProp().getOwners() != this) return false;
    return ownDist(static_cast<Integer>(rowOf(*s))) && s->getHotelCount() < kMaxHotels &&
           !s->getProp().isMortgaged2() && s->getHotelCost() <= balance_;
}

void player::buildHotel(Integer cellId) {
    if (!canBuild(cellId)) return;
    Street& s = *board_.streetAt(cellId);
    s.addHotel();
    debit(s.getHotelCost());
    windows().main.showHotel(cellId);
}

bool player::canSellHotel(Integer cellId) {
    const Street* s = board_.streetAt(cellId);
    return s != nullptr && s->getProp().getOwners() == this && s->getHotelCount() >= 1;
}

void player::sellHotel(Integer cellId) {
    if (!canSellHotel(cellId)) return;
    Street& s = *board_.streetAt(cellId);
    s.destroyHotel();
    credit(s.getHotelCost());
    windows().main.showHotel(cellId);
}

bool player::canMort(Integer cellId) {
    const PropertyCell* prop = board_.propertyAt(cellId);
    return prop != nullptr && prop->getProp().getOwners() == this &&
           !prop->getProp().isMortgaged2() && prop->getHotelCount() == 0;
}

void player::mortgageProp(Integer cellId) {
    if (!canMort(cellId)) return;
    Property& prop = board_.propertyAt(cellId)->getProp();
    prop.Mortgage();
    credit(prop.getMortgage());
    windows().main.showMort(cellId);
}

bool player::canUnmort(Integer cellId) {
    const PropertyCell* prop = board_.propertyAt(cellId);
    // Unrounded on purpose: a mortgage of 50 costs 55, yet 50 * 1.1 lies just above 55.
    return prop != nullptr && prop->getProp().getOwners() == this &&
           prop->getProp().isMortgaged2() && !(prop->getProp().getMortgage() * 1.1 > balance_);
}

void player::unmortgageProp(Integer cellId) {
    if (!canUnmort(cellId)) return;
    Property& prop = board_.propertyAt(cellId)->getProp();
    prop.Unmortgage();
    debit(rounded(prop.getMortgage() * 1.1));
    windows().main.showMort(cellId);
}

}  // namespace gw
