// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/TradingCardWindow.h"

#include <charconv>

#include "cells/PropertyCell.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/Windows.h"

namespace gw {

void TradingCardWindow::proposeTrade(Integer iId, player& buyer, const std::string& sStreetName,
                                     const std::string& sOwner) {
    tradeBuyer_ = &buyer;
    const PropertyCell* prop = buyer.getBoard().propertyAt(iId);
    ownerWhenProposed_ = prop == nullptr ? nullptr : prop->getProp().getOwners();
    tradeOwner_ = nullptr;
    tradeId_ = iId;
    tradeStreet_ = sStreetName;
    tradeOwnerName_ = sOwner;
    wantMore_.hide();
    doneDeal_.hide();
    label4_.hide();
    wantIt_.show();
    forgetIt_.show();
    const bool open = !buyer.isComputer2();
    for (Control* c : {&wantMore_, &wantIt_, &forgetIt_, &doneDeal_}) c->enable(open);
    face_ = TradeFace::Buyer;
    labels_[1] = sStreetName;
    labels_[2] = sOwner;
    labels_[3] = buyer.getName();
    amountSelected_ = true;
    setVisible(true);
}

void TradingCardWindow::seeTrade(Integer iId, player& owner, Integer iAmount) {
    tradeId_ = iId;
    tradeAmount_ = iAmount;
    tradeOwner_ = &owner;
    doneDeal_.show();
    wantMore_.show();
    label4_.show();
    wantIt_.hide();
    const bool buyerHuman = tradeBuyer_ != nullptr && !tradeBuyer_->isComputer2();
    const bool ownerHuman = !owner.isComputer2();
    doneDeal_.enable(ownerHuman);
    wantMore_.enable(ownerHuman && buyerHuman);
    forgetIt_.enable(ownerHuman);
    face_ = TradeFace::Owner;
    label4_.caption = std::to_string(iAmount);
    amountSelected_ = true;
    setVisible(true);
}

bool TradingCardWindow::computerThink() {
    windows_.delay.wait(kComputerThinkTicks);
    hide();
    return true;
}

bool TradingCardWindow::stillHolds() const {
    if (tradeBuyer_ == nullptr || tradeBuyer_->isBankrupt2()) return false;
    const player* owner = face_ == TradeFace::Owner ? tradeOwner_ : ownerWhenProposed_;
    if (owner == nullptr || owner->isBankrupt2()) return false;
    const PropertyCell* prop = tradeBuyer_->getBoard().propertyAt(tradeId_);
    return prop != nullptr && prop->getProp().getOwners() == owner;
}

bool TradingCardWindow::sumOutOfBounds(Integer sum) const {
    const player* owner = face_ == TradeFace::Owner ? tradeOwner_ : ownerWhenProposed_;
    return owner->getBalance() > kIntegerMax - sum || tradeBuyer_->getBalance() < kIntegerMin + sum;
}

std::optional<Integer> TradingCardWindow::offeredSum() {
    const std::optional<Integer> sum = readAmount();
    if (sum && sumOutOfBounds(*sum)) {
        windows_.main.showInfo(
            "No trade: that sum would take a balance past what the bank can count");
        return std::nullopt;
    }
    return sum;
}

void TradingCardWindow::doneDeal_Click() {
    if (stillHolds() && !sumOutOfBounds(tradeAmount_)) {
        tradeBuyer_->doTrade(tradeId_, tradeAmount_);
    }
    hide();
}

void TradingCardWindow::forgetIt_Click() {
    hide();
}

void TradingCardWindow::close() {
    hide();
}

void TradingCardWindow::forgetPlayers() {
    tradeBuyer_ = nullptr;
    tradeOwner_ = nullptr;
    ownerWhenProposed_ = nullptr;
    hide();
}

// Called by the button and by a computer's offer.
void TradingCardWindow::wantIt_Click() {
    if (!stillHolds()) {
        hide();
        return;
    }
    const std::optional<Integer> sum = offeredSum();
    if (sum && *sum >= 0) tradeBuyer_->offerTrade(tradeId_, *sum);
}

void TradingCardWindow::wantMore_Click() {
    if (!isVisible() || !stillHolds()) {
        hide();
        return;
    }
    const std::optional<Integer> sum = readAmount();
    if (!sum || *sum < 0 || *sum <= tradeAmount_) {
        hide();
        return;
    }
    if (sumOutOfBounds(*sum)) {
        offeredSum();  // says why on the message line; the card stays up
        return;
    }
    tradeBuyer_->offerTrade(tradeId_, *sum);
}

void TradingCardWindow::forEachControl(const ControlVisitor& fn) const {
    for (int n = 1; n <= 3; ++n) {
        fn("Label" + std::to_string(n), Control{true, true, labels_[static_cast<std::size_t>(n)]});
    }
    fn("Label4", label4_);
    fn("amount", Control{true, true, amount_});
    fn("doneDeal", doneDeal_);
    fn("wantIt", wantIt_);
    fn("wantMore", wantMore_);
    fn("forgetIt", forgetIt_);
}

void TradingCardWindow::typeKey(char key) {
    if (!amount_KeyPress(key)) return;
    if (amountSelected_) {
        amount_.clear();
        amountSelected_ = false;
    }
    if (amount_.size() < kAmountMaxLength) amount_.push_back(key);
    changed();
}

void TradingCardWindow::setAmountText(std::string text) {
    amount_ = std::move(text);
    amountSelected_ = false;
    changed();
}

std::optional<Integer> TradingCardWindow::readAmount() const {
    int value = 0;
    const char* first = amount_.data();
    const char* last = first + amount_.size();
    const auto [end, error] = std::from_chars(first, last, value);
    if (amount_.empty() || error != std::errc{} || end != last || value > kIntegerMax) {
        return std::nullopt;
    }
    return static_cast<Integer>(value);
}

}  // namespace gw
