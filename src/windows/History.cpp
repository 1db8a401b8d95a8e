// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/History.h"

#include <cstdlib>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/JFLCardWindow.h"

namespace gw {
namespace {

// Words put together by appending: GCC 12 misreads a literal put in front of a string.
std::string words(std::string_view first, std::string_view second) {
    std::string text(first);
    text += second;
    return text;
}

std::string dollars(int amount) {
    return words("$", std::to_string(amount));
}

}  // namespace

void History::begin(const Board& board) {
    board_ = &board;
    entries_.clear();
    lastMessage_.clear();
    round_ = 1;
    lastTurn_ = board.getCurrPlayerIndex();
    for (Integer i = 0; i < board.getNumPlayer() && i < kMaxPlayers; ++i) {
        const player* p = board.getPlayer(i);
        balances_[static_cast<std::size_t>(i)] = p->getBalance();
        inJail_[static_cast<std::size_t>(i)] = p->IsInJail();
    }
    owners_.fill(nullptr);
    mortgaged_.fill(false);
    hotels_.fill(0);
    changed();
}

const player& History::current() const {
    return board_->getCurrPlayer();
}

const std::string& History::cellName(Integer cellId) const {
    return board_->getCell(cellId)->Cell_getName();
}

void History::add(HistoryEntry::Kind kind, const player& p, std::string text) {
    entries_.push_back(
        {kind, round_, std::atoi(p.getTokenName().c_str()), p.getName(), std::move(text)});
    changed();
}

// A round is over when the turn comes back round to a player earlier in the order.
void History::noteRound() {
    const Integer now = board_->getCurrPlayerIndex();
    if (now < lastTurn_) ++round_;
    lastTurn_ = now;
}

void History::noteJail() {
    if (board_ == nullptr) return;
    for (Integer i = 0; i < board_->getNumPlayer() && i < kMaxPlayers; ++i) {
        const player& p = *board_->getPlayer(i);
        bool& was = inJail_[static_cast<std::size_t>(i)];
        if (p.IsInJail() == was) continue;
        was = p.IsInJail();
        add(HistoryEntry::Kind::Jail, p, was ? "goes to jail" : "is out of jail");
    }
}

void History::noteMessage(const std::string& msg) {
    if (board_ == nullptr || board_->getNumPlayer() == 0 || msg == lastMessage_) return;
    lastMessage_ = msg;
    noteRound();
    // A card's text reaches the message line just before the card comes up.
    if (!jflCard_.isVisible() && jflCard_.Label2() == msg) {
        add(HistoryEntry::Kind::Card, current(), words("draws a JFL card: ", msg));
    } else {
        add(HistoryEntry::Kind::Message, current(), msg);
    }
}

void History::UpdateTurnPlaying(TurnButtons) {
    if (board_ == nullptr) return;
    noteRound();
    noteJail();
}

void History::UpdatePlayers() {
    if (board_ == nullptr) return;
    for (Integer i = 0; i < board_->getNumPlayer() && i < kMaxPlayers; ++i) {
        const player& p = *board_->getPlayer(i);
        Integer& was = balances_[static_cast<std::size_t>(i)];
        const int change = p.getBalance() - was;
        was = p.getBalance();
        if (change < 0) add(HistoryEntry::Kind::Payment, p, words("pays ", dollars(-change)));
        if (change > 0) add(HistoryEntry::Kind::Payment, p, words("receives ", dollars(change)));
    }
}

void History::showOwner(Integer cellId) {
    if (board_ == nullptr) return;
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    const player* owner = prop->getProp().getOwners();
    const player*& was = owners_[static_cast<std::size_t>(cellId)];
    if (owner == was) return;
    if (owner == nullptr) {
        add(HistoryEntry::Kind::Bankruptcy, *was,
            words(cellName(cellId), " goes back to the bank"));
    } else if (was == nullptr) {
        add(HistoryEntry::Kind::Purchase, *owner, words("buys ", cellName(cellId)));
    } else {
        add(HistoryEntry::Kind::Trade, *owner,
            words(words("takes ", cellName(cellId)), words(" from ", was->getName())));
    }
    was = owner;
}

void History::showHotel(Integer cellId) {
    if (board_ == nullptr) return;
    const Street* s = board_->streetAt(cellId);
    if (s == nullptr) return;
    Integer& was = hotels_[static_cast<std::size_t>(cellId)];
    const Integer now = s->getHotelCount();
    const player* owner = s->getProp().getOwners();
    if (owner != nullptr && now > was) {
        add(HistoryEntry::Kind::Hotel, *owner, words("builds a hotel on ", cellName(cellId)));
    } else if (owner != nullptr && now < was) {
        add(HistoryEntry::Kind::Hotel, *owner, words("sells a hotel on ", cellName(cellId)));
    }
    was = now;
}

void History::showMort(Integer cellId) {
    if (board_ == nullptr) return;
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    bool& was = mortgaged_[static_cast<std::size_t>(cellId)];
    const bool now = prop->getProp().isMortgaged2();
    const player* owner = prop->getProp().getOwners();
    // A cell released by a player in debt is the bank taking back a bankrupt's cell.
    const bool takenBack = !now && owner != nullptr && owner->getBalance() < 0;
    if (owner != nullptr && now != was && !takenBack) {
        add(now ? HistoryEntry::Kind::Mortgage : HistoryEntry::Kind::Release, *owner,
            words(now ? "mortgages " : "releases ", cellName(cellId)));
    }
    was = now;
}

void History::showBankRupt() {
    if (board_ == nullptr) return;
    add(HistoryEntry::Kind::Bankruptcy, current(), "goes bankrupt");
}

}  // namespace gw
