// SPDX-License-Identifier: GPL-3.0-or-later
#include "LedgerWindow.h"

#include "Tariff.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"

namespace gw::sim {
namespace {

using Kind = Event::Kind;

}  // namespace

void LedgerWindow::attach(Board& board) {
    board_ = &board;
    for (Integer i = 0; i < board.getNumPlayer(); ++i) {
        balances_[static_cast<std::size_t>(i)] = board.getPlayer(i)->getBalance();
    }
    for (Integer c = 0; c < kCellCount; ++c) {
        const PropertyCell* prop = board.getCell(c)->asProperty();
        const player* owner = prop != nullptr ? prop->getProp().getOwners() : nullptr;
        const auto at = static_cast<std::size_t>(c);
        shownOwner_[at] = owner != nullptr ? owner->getId() : -1;
        shownMortgaged_[at] = prop != nullptr && prop->getProp().isMortgaged2();
        shownHotels_[at] = prop != nullptr ? prop->getHotelCount() : 0;
    }
}

// The balances are followed only for the checks; the counts never read them.
void LedgerWindow::UpdatePlayers() {
    if (board_ == nullptr || !record_) return;
    Event e;
    e.current = board_->getCurrPlayerIndex();
    int changed = 0;
    for (Integer i = 0; i < board_->getNumPlayer(); ++i) {
        const auto slot = static_cast<std::size_t>(i);
        e.balances[slot] = board_->getPlayer(i)->getBalance();
        if (e.balances[slot] == balances_[slot]) continue;
        ++changed;
        e.who = i;
        e.delta = e.balances[slot] - balances_[slot];
    }
    balances_ = e.balances;
    if (changed > 1 && fault_.empty()) {
        fault_ = std::to_string(changed) + " balances changed between two updates of the panel";
    }
    describeStand(e);
    events_.push_back(e);
}

// What the player at turn stands on, as far as the bank's payments depend on it.
void LedgerWindow::describeStand(Event& e) const {
    player& p = *board_->getPlayer(static_cast<Integer>(e.current));
    e.position = p.getPosition();
    e.inJail = p.IsInJail();
    BoardCell& here = *board_->getCell(e.position);
    if (here.kind() == CellKind::JFL) {
        // The cursor stands just past the card drawn last.
        const JFLDeck& deck = board_->getJFLDeck();
        e.cardSlot = static_cast<Integer>((deck.getCursor() + kDeckSize - 1) % kDeckSize);
        e.card = deck.cardAt(e.cardSlot).getType();
    } else if (const PropertyCell* prop = here.asProperty()) {
        const player* owner = prop->getProp().getOwners();
        if (owner != nullptr && owner != &p && !prop->getProp().isMortgaged2()) {
            e.rentOwner = owner->getId();
            e.hotels = prop->getHotelCount();
        }
    } else if (here.isTax()) {
        e.worth = worthOf(p);
    }
}

// The balance and what the cells would fetch: a mortgaged cell its mortgage value, any
// other its price and the cost of its hotels, all from the ledger's own tables.
long long LedgerWindow::worthOf(const player& p) const {
    long long worth = p.getBalance();
    for (Integer c = 0; c < kCellCount; ++c) {
        const PropertyCell* prop = board_->propertyAt(c);
        if (prop == nullptr || prop->getProp().getOwners() != &p) continue;
        const CellTariff& t = tariffOf(c);
        worth += prop->getProp().isMortgaged2()
                     ? t.mortgage
                     : t.price + static_cast<long long>(prop->getHotelCount()) * t.hotelCost;
    }
    return worth;
}

void LedgerWindow::Showdice(Integer die1, Integer die2) {
    if (!record_ || board_ == nullptr) return;
    Event e;
    e.kind = Kind::Dice;
    e.current = board_->getCurrPlayerIndex();
    e.who = e.current;
    e.from = die1;
    e.to = die2;
    events_.push_back(e);
}

void LedgerWindow::MoveToken(Integer id, Integer from, Integer to) {
    if (!record_ || board_ == nullptr) return;
    Event e;
    e.kind = Kind::Move;
    e.current = board_->getCurrPlayerIndex();
    e.who = id;
    e.from = from;
    e.to = to;
    if (from >= 0 && from < kCellCount && board_->getCell(from)->kind() == CellKind::JFL) {
        const JFLDeck& deck = board_->getJFLDeck();
        e.cardSlot = static_cast<Integer>((deck.getCursor() + kDeckSize - 1) % kDeckSize);
        e.card = deck.cardAt(e.cardSlot).getType();
    }
    events_.push_back(e);
}

int LedgerWindow::ownerSlot(Integer cellId) const {
    const player* owner = board_->propertyAt(cellId)->getProp().getOwners();
    return owner != nullptr ? owner->getId() : -1;
}

// The cell as it stands and as it was shown last: read before the shown tables move on.
Event LedgerWindow::mark(Event::Kind kind, Integer cellId) const {
    Event e;
    e.kind = kind;
    e.current = board_->getCurrPlayerIndex();
    e.cell = cellId;
    const PropertyCell& prop = *board_->propertyAt(cellId);
    e.owner = ownerSlot(cellId);
    e.mortgaged = prop.getProp().isMortgaged2();
    e.hotels = prop.getHotelCount();
    const auto at = static_cast<std::size_t>(cellId);
    e.shownOwner = shownOwner_[at];
    e.shownMortgaged = shownMortgaged_[at];
    e.shownHotels = shownHotels_[at];
    return e;
}

// A cell that the player at turn takes from another player, or from itself, is a sale;
// one taken from the bank is a purchase, one given away a bankruptcy.
void LedgerWindow::showOwner(Integer cellId) {
    if (board_ == nullptr) return;
    const int owner = ownerSlot(cellId);
    const int current = board_->getCurrPlayerIndex();
    const int shown = shownOwner_[static_cast<std::size_t>(cellId)];
    if (owner == current && shown >= 0) {
        ++trades_;
        if (shown == current) ++selfTrades_;
    }
    if (record_) events_.push_back(mark(Kind::Owner, cellId));
    shownOwner_[static_cast<std::size_t>(cellId)] = owner;
}

void LedgerWindow::showHotel(Integer cellId) {
    if (board_ == nullptr) return;
    const Integer hotels = board_->propertyAt(cellId)->getHotelCount();
    const Integer shown = shownHotels_[static_cast<std::size_t>(cellId)];
    if (hotels > shown) hotelsBuilt_ += hotels - shown;
    if (record_) events_.push_back(mark(Kind::Hotel, cellId));
    shownHotels_[static_cast<std::size_t>(cellId)] = hotels;
}

void LedgerWindow::showMort(Integer cellId) {
    if (board_ == nullptr) return;
    if (record_) events_.push_back(mark(Kind::Mort, cellId));
    shownMortgaged_[static_cast<std::size_t>(cellId)] =
        board_->propertyAt(cellId)->getProp().isMortgaged2();
}

void LedgerWindow::showBankRupt() {
    if (board_ == nullptr || !record_) return;
    Event e;
    e.kind = Kind::Bankrupt;
    e.current = board_->getCurrPlayerIndex();
    // Shown before the bankrupt's token leaves the cell that it could not pay for.
    e.cell = board_->getPlayer(static_cast<Integer>(e.current))->getPosition();
    const PropertyCell* prop = board_->propertyAt(e.cell);
    const player* owner = prop != nullptr ? prop->getProp().getOwners() : nullptr;
    e.owner = owner != nullptr ? owner->getId() : -1;
    events_.push_back(e);
}

}  // namespace gw::sim
