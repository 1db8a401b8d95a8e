// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/GameStory.h"

#include <cstdlib>

#include "cells/PropertyCell.h"
#include "game/Board.h"
#include "players/player.h"

namespace gw {

void GameStory::begin(Board& board) {
    board_ = &board;
    players_.clear();
    balances_.clear();
    owners_.fill(-1);
    hotels_.fill(0);
    last_ = {};
    pendingDebitOf_ = -1;
    lastTurnIndex_ = 0;
    rounds_ = 0;
    purchases_ = trades_ = hotelsBuilt_ = 0;
    largestRent_ = {};
    over_ = false;
    seated_ = false;
}

void GameStory::seatPlayers() {
    for (Integer id = 0; id < board_->getNumPlayer(); ++id) {
        player& p = *board_->getPlayer(id);
        StoryPlayer s;
        s.name = p.getName();
        s.token = std::atoi(p.getTokenName().c_str());
        s.worth.push_back(p.calcAssets());
        players_.push_back(std::move(s));
        balances_.push_back(p.getBalance());
    }
    lastTurnIndex_ = board_->getCurrPlayerIndex();
    seated_ = true;
}

bool GameStory::listening() {
    if (board_ == nullptr || over_) return false;
    if (!seated_) seatPlayers();
    return true;
}

// The order of play coming back to its start closes a round.
void GameStory::UpdateTurnPlaying(TurnButtons) {
    if (!listening()) return;
    const int index = board_->getCurrPlayerIndex();
    if (index < lastTurnIndex_) closeRound();
    lastTurnIndex_ = index;
}

void GameStory::closeRound() {
    ++rounds_;
    for (std::size_t id = 0; id < players_.size(); ++id) {
        player& p = *board_->getPlayer(static_cast<Integer>(id));
        players_[id].worth.push_back(p.isBankrupt2() ? 0 : p.calcAssets());
    }
}

int GameStory::ownerUnderCurrent() const {
    const player& current = board_->getCurrPlayer();
    const PropertyCell* prop = board_->propertyAt(current.getPosition());
    if (prop == nullptr || prop->getProp().isMortgaged2()) return -1;
    const player* owner = prop->getProp().getOwners();
    if (owner == nullptr || owner == &current) return -1;
    return owner->getId();
}

// A rent is the current player's debit followed at once by the same credit to the owner
// of the cell under his token; a sale between players credits the seller first.
void GameStory::UpdatePlayers() {
    if (!listening()) return;
    for (std::size_t id = 0; id < players_.size(); ++id) {
        const long long balance = board_->getPlayer(static_cast<Integer>(id))->getBalance();
        const long long delta = balance - balances_[id];
        if (delta == 0) continue;
        balances_[id] = balance;
        const Payment now{static_cast<int>(id), delta, board_->getCurrPlayerIndex(),
                          ownerUnderCurrent()};
        if (delta > 0 && last_.delta == -delta && last_.who == last_.current &&
            last_.rentOwner == now.who) {
            players_[static_cast<std::size_t>(last_.who)].rentPaid += delta;
            players_[id].rentReceived += delta;
            if (delta > largestRent_.amount) largestRent_ = {delta, last_.who, now.who};
        }
        pendingDebitOf_ = delta < 0 ? now.who : -1;
        last_ = now;
    }
}

void GameStory::showOwner(Integer cellId) {
    if (!listening()) return;
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    const player* owner = prop->getProp().getOwners();
    const int now = owner == nullptr ? -1 : owner->getId();
    int& before = owners_[static_cast<std::size_t>(cellId)];
    // Only a cell paid for just now is bought or sold; a bankrupt's cells pass unpaid.
    if (now >= 0 && now != before && pendingDebitOf_ == now) {
        if (before < 0) {
            ++purchases_;
        } else {
            ++trades_;
        }
        pendingDebitOf_ = -1;
    }
    before = now;
}

void GameStory::showHotel(Integer cellId) {
    if (!listening()) return;
    const PropertyCell* prop = board_->propertyAt(cellId);
    if (prop == nullptr) return;
    const int count = prop->getHotelCount();
    int& before = hotels_[static_cast<std::size_t>(cellId)];
    if (count > before) hotelsBuilt_ += count - before;
    before = count;
}

void GameStory::showBankRupt() {
    if (!listening()) return;
    StoryPlayer& s = players_[static_cast<std::size_t>(board_->getCurrPlayerIndex())];
    if (s.bankruptAfterRound < 0) s.bankruptAfterRound = rounds_ + 1;
}

// Built by appending: g++ 12 warns falsely on "literal" + std::string (its bug 105329).
std::vector<std::string> GameStory::figureLines() const {
    const auto line = [](std::initializer_list<std::string_view> parts) {
        std::string text;
        for (const std::string_view part : parts) text.append(part);
        return text;
    };
    const auto dollars = [](long long amount) { return std::to_string(amount).insert(0, 1, '$'); };
    std::vector<std::string> lines;
    lines.push_back(line({"Rounds played: ", std::to_string(rounds_)}));
    lines.push_back(
        line({"Purchases: ", std::to_string(purchases_), ", trades: ", std::to_string(trades_),
              ", hotels built: ", std::to_string(hotelsBuilt_)}));
    if (largestRent_.payer >= 0) {
        lines.push_back(line({"Largest rent: ", dollars(largestRent_.amount), ", ",
                              players_[static_cast<std::size_t>(largestRent_.payer)].name, " to ",
                              players_[static_cast<std::size_t>(largestRent_.owner)].name}));
    } else {
        lines.push_back("Largest rent: none paid");
    }
    for (const StoryPlayer& p : players_) {
        std::string text = line(
            {p.name, ": rent paid ", dollars(p.rentPaid), ", received ", dollars(p.rentReceived)});
        if (p.bankruptAfterRound > 0) {
            text.append(line({", bankrupt in round ", std::to_string(p.bankruptAfterRound)}));
        }
        lines.push_back(std::move(text));
    }
    return lines;
}

// The round the game ended in counts, with the worth at the end.
void GameStory::showGameEnd() {
    if (!listening()) return;
    closeRound();
    over_ = true;
}

}  // namespace gw
