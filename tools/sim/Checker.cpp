// SPDX-License-Identifier: GPL-3.0-or-later
#include "Checker.h"

#include "SimText.h"
#include "TurnBook.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"

namespace gw::sim {

Checker::Checker(Board& board, LedgerWindow& window)
    : board_(board), window_(window), total_(moneyOf(board)) {}

std::optional<std::string> Checker::afterTurn(int played) {
    if (!window_.fault().empty()) return window_.fault();
    if (auto fault = checkLedger(played)) return fault;
    if (auto fault = checkPlayers(played)) return fault;
    if (auto fault = checkCells()) return fault;
    return checkDeck();
}

std::optional<std::string> Checker::atEnd() const {
    const bool over = board_.countSolvent() == 1;
    if (over && window_.gameEnds() != 1) {
        return "the game is over and its end was shown " + std::to_string(window_.gameEnds()) +
               " times";
    }
    return std::nullopt;
}

std::optional<std::string> Checker::checkLedger(int played) {
    TurnBook book(board_, window_.events(), played);
    std::optional<std::string> fault = book.explain();
    window_.clearEvents();
    if (fault) return fault;
    for (Integer i = 0; i < board_.getNumPlayer(); ++i) {
        if (board_.getPlayer(i)->getBalance() != window_.balances()[static_cast<std::size_t>(i)]) {
            return "the balance of " + nameOf(board_, i) + " changed with no update of the panel";
        }
    }
    const long long total = moneyOf(board_);
    const long long explained = book.bankNet() - book.lost();
    if (total - total_ != explained) {
        return "the players' money changed by " + std::to_string(total - total_) +
               " and the bank's payments explain " + std::to_string(explained);
    }
    total_ = total;
    lostAtBound_ += book.lost();
    return std::nullopt;
}

std::optional<std::string> Checker::checkPlayers(int played) const {
    int holders = 0;
    for (Integer i = 0; i < board_.getNumPlayer(); ++i) {
        const player& p = *board_.getPlayer(i);
        const std::string& who = p.getName();
        const Integer pos = p.getPosition();
        if (pos < 0 || pos >= kCellCount) return who + " stands on cell " + std::to_string(pos);
        if (p.hasGoJFC()) ++holders;
        // A bankrupt player is put on Go and keeps whatever jail state he had.
        if (p.isBankrupt2()) {
            if (pos != 0) return who + " is bankrupt on cell " + std::to_string(pos);
            continue;
        }
        if (p.IsInJail() && pos != kJailCell)
            return who + " is in jail on cell " + std::to_string(pos);
        if (p.getJailCount() < 0 || p.getJailCount() > 2) {
            return who + " has a jail count of " + std::to_string(p.getJailCount());
        }
        if (p.getBalance() < 0) {
            return who + " ends " +
                   (i == played ? std::string("its own turn")
                                : "the turn of " + nameOf(board_, played)) +
                   " with a balance of " + std::to_string(p.getBalance());
        }
    }
    // A bankrupt holder keeps the card: it is lost to the deck for good.
    if (holders > 1) return std::to_string(holders) + " players hold the jail card";
    if (board_.getJFLDeck().getInDeck() != (holders == 0)) {
        return std::string("the jail card is ") + (holders == 0 ? "held by nobody" : "held") +
               " while the deck says it is " + (board_.getJFLDeck().getInDeck() ? "in" : "out");
    }
    if (board_.getCurrPlayer().isBankrupt2()) return "the turn passed to a bankrupt player";
    if (board_.countSolvent() > 1 && window_.gameEnds() != 0) {
        return "the end of the game was shown with " + std::to_string(board_.countSolvent()) +
               " players left";
    }
    return std::nullopt;
}

std::optional<std::string> Checker::checkCells() const {
    for (Integer c = 0; c < kCellCount; ++c) {
        BoardCell& cell = *board_.getCell(c);
        const PropertyCell* prop = cell.asProperty();
        if (prop == nullptr) continue;
        const player* owner = prop->getProp().getOwners();
        const int ownerSlot = owner != nullptr ? owner->getId() : -1;
        // Named only for a message: naming every cell every turn would cost more than checking.
        const auto where = [&] { return cellText(board_, c); };
        if (owner != nullptr && owner->isBankrupt2()) {
            return owner->getName() + " is bankrupt and still owns " + where();
        }
        if (window_.shownOwner(c) != ownerSlot) {
            return "the owner of " + where() + " is " + nameOf(board_, ownerSlot) +
                   " but the board shows " + nameOf(board_, window_.shownOwner(c));
        }
        if (window_.shownMortgaged(c) != prop->getProp().isMortgaged2() ||
            window_.shownHotels(c) != prop->getHotelCount()) {
            return "the board does not show the mortgage or the hotels of " + where() +
                   " as they are";
        }
        const Street* street = cell.asStreet();
        if (street == nullptr) continue;
        const int row = street->getDistId() / 10 - 1;
        const int column = street->getDistId() % 10 - 1;
        for (Integer i = 0; i < board_.getNumPlayer(); ++i) {
            const bool entry = board_.getPlayer(i)->ownsStreetEntry(row, column);
            if (entry != (i == ownerSlot)) {
                return nameOf(board_, i) + "'s table " + (entry ? "holds " : "lacks ") + where() +
                       ", whose owner is " + nameOf(board_, ownerSlot);
            }
        }
        const Integer hotels = street->getHotelCount();
        if (hotels < 0 || hotels > kMaxHotels) {
            return where() + " has " + std::to_string(hotels) + " hotels";
        }
        if (hotels > 0 && (owner == nullptr || prop->getProp().isMortgaged2())) {
            return where() + " has " + std::to_string(hotels) + " hotels and is " +
                   (owner == nullptr ? "the bank's" : "mortgaged");
        }
    }
    return std::nullopt;
}

std::optional<std::string> Checker::checkDeck() const {
    const JFLDeck& deck = board_.getJFLDeck();
    std::array<int, kDeckSize> seen{};
    for (int slot = 0; slot < kDeckSize; ++slot) {
        const Integer type = deck.cardAt(slot).getType();
        if (type < 0 || type >= kDeckSize) {
            return "slot " + std::to_string(slot) + " of the deck holds a card of type " +
                   std::to_string(type);
        }
        ++seen[static_cast<std::size_t>(type)];
    }
    for (int type = 0; type < kDeckSize; ++type) {
        if (seen[static_cast<std::size_t>(type)] != 1) {
            return "the deck holds " + std::to_string(seen[static_cast<std::size_t>(type)]) +
                   " cards of type " + std::to_string(type);
        }
    }
    return std::nullopt;
}

}  // namespace gw::sim
