// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/CellInfoWindow.h"

#include "cells/PropertyCell.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/TradingCardWindow.h"
#include "windows/Windows.h"

namespace gw {
namespace {

// A property cell's group: 1 to 8 its district, then the two other kinds.
constexpr Integer kLastDistrictGroup = 8;
constexpr Integer kMetroGroup = 9;
constexpr Integer kUtilityGroup = 10;
// The two utilities, whose cards differ in their picture.
constexpr Integer kFirstUtilityCell = 12;
constexpr Integer kSecondUtilityCell = 28;

std::string dollars(Integer value) {
    std::string text = "$";
    text += std::to_string(value);
    return text;
}

}  // namespace

void CellInfoWindow::showInfoCard(Integer iId, Integer iGroup, std::span<const Integer> iValues,
                                  Integer opt, player& p, const std::string& sName,
                                  const std::string& sOwner) {
    // A card called over an open one takes the main window until one of its buttons is used.
    if (isVisible()) windows_.main.setEnabled(false);
    takeCard(iId, opt, p, sName, sOwner);
    hideAllButtons();
    const bool human = !p.isComputer2();
    forget_.enable(human);

    switch (cardOpt_) {
        case kOptBuy:
            offerPurchase(human);
            break;
        case kOptRent:
            demandRent(human);
            break;
        case kOptTrade:
            offerTrade();
            break;
        default:
            break;
    }

    if (iGroup >= 1 && iGroup <= kLastDistrictGroup) {
        showStreet(iGroup, iValues);
    } else if (iGroup == kMetroGroup || iGroup == kUtilityGroup) {
        showMetroOrUtility(iGroup, iValues);
    }
    setVisible(true);
}

void CellInfoWindow::takeCard(Integer iId, Integer opt, player& p, const std::string& sName,
                              const std::string& sOwner) {
    picture_ = CardPicture::None;
    cardOpt_ = opt;
    cardPlayer_ = &p;
    const PropertyCell* shownCell = p.getBoard().propertyAt(iId);
    ownerWhenShown_ = shownCell == nullptr ? nullptr : shownCell->getProp().getOwners();
    cardId_ = iId;
    cardName_ = sName;
    cardOwner_ = sOwner;
    filled_ = true;
    labelHasValue_.fill(false);
}

void CellInfoWindow::hideAllButtons() {
    for (Control* c : {&trade_, &buy_, &forget_, &payRent_, &buyHotel_, &sellHotel_, &mortgage_[0],
                       &mortgage_[1], &ok_[0], &ok_[1], &unmortgage_, &payTo_}) {
        c->hide();
    }
    buyHotel_.enable(false);
    sellHotel_.enable(false);
    buy_.enable(false);
}

void CellInfoWindow::offerPurchase(bool human) {
    buy_.show();
    forget_.show();
    if (cardPlayer_->canBuy(cardId_) && human) buy_.enable();
}

void CellInfoWindow::demandRent(bool human) {
    player& p = *cardPlayer_;
    payRent_.show();
    payTo_.show();
    // The card of a landing carries no owner's name: the payee is said here, written into
    // the caption's own room, which a computer's rents reuse thousands of times a second.
    if (ownerWhenShown_ != nullptr) {
        payTo_.caption.assign("Rent goes to ").append(ownerWhenShown_->getName());
    }
    const Integer shortfall = p.canPayRent(cardId_);
    if (shortfall != 0) {
        windows_.main.showInfo("You cannot pay the rent, you must get $" +
                               std::to_string(shortfall));
        windows_.main.showNegBalance(true);
        payRent_.enable(false);
    } else if (human) {
        payRent_.enable();
        payRent_.caption = "Pay  " + std::to_string(p.getRent());
        windows_.main.showInfo(p.getName() + " you owe $" + std::to_string(p.getRent()));
    } else {
        payRent_.enable(false);
    }
}

void CellInfoWindow::offerTrade() {
    trade_.show();
    ok_[0].show();
}

void CellInfoWindow::showStreet(Integer district, std::span<const Integer> iValues) {
    picture_ = static_cast<CardPicture>(district - 1);
    putValues(kStreetValueLabels, iValues);
    if (cardOpt_ == kOptOwn) {
        showOwnCellButtons(cardPlayer_->canBuild(cardId_) || cardPlayer_->canSellHotel(cardId_));
    }
}

void CellInfoWindow::showMetroOrUtility(Integer iGroup, std::span<const Integer> iValues) {
    if (iGroup == kMetroGroup) picture_ = CardPicture::Metro;
    if (iGroup == kUtilityGroup && cardId_ == kFirstUtilityCell) picture_ = CardPicture::Utility1;
    if (iGroup == kUtilityGroup && cardId_ == kSecondUtilityCell) picture_ = CardPicture::HQ;
    putValues(kOtherValueLabels, iValues);
    if (cardOpt_ == kOptOwn) showOwnCellButtons(false);
}

void CellInfoWindow::putValues(std::span<const int> labelNumbers,
                               std::span<const Integer> iValues) {
    for (std::size_t i = 0; i < iValues.size() && i < labelNumbers.size(); ++i) {
        const auto n = static_cast<std::size_t>(labelNumbers[i]);
        labelValues_[n] = iValues[i];
        labelHasValue_[n] = true;
    }
}

std::string CellInfoWindow::label(int number) const {
    if (!filled_) {
        static constexpr std::array<const char*, 4> kDesignTexts{"", "Street Name", "$ Value",
                                                                 "Status"};
        return number >= 0 && number < 4 ? kDesignTexts[static_cast<std::size_t>(number)] : "";
    }
    if (number == 1) return cardName_;
    if (number == 3) return cardOwner_;
    const auto n = static_cast<std::size_t>(number);
    return n < kLabelCount && labelHasValue_[n] ? dollars(labelValues_[n]) : std::string{};
}

// The narrow layout sits beside the hotel buttons; the wide one has the row to itself.
void CellInfoWindow::showOwnCellButtons(bool narrow) {
    player& p = *cardPlayer_;
    const bool human = !p.isComputer2();
    if (narrow) {
        buyHotel_.show();
        sellHotel_.show();
        ok_[1].show();
        if (human) {
            buyHotel_.enable(p.canBuild(cardId_));
            sellHotel_.enable(p.canSellHotel(cardId_));
        }
    } else {
        ok_[0].show();
    }
    if (!human) return;
    Control& mortgage = mortgage_[narrow ? 1 : 0];
    if (p.canMort(cardId_)) {
        mortgage.show();
        mortgage.enable();
    }
    if (p.canUnmort(cardId_)) {
        unmortgage_.show();
        unmortgage_.enable();
    }
}

bool CellInfoWindow::computerThink() {
    windows_.delay.wait(kComputerThinkTicks);
    hideAndEnableMain();
    return true;
}

void CellInfoWindow::hideAndEnableMain() {
    windows_.main.setEnabled(true);
    setVisible(false);
}

void CellInfoWindow::finishCard() {
    cardPlayer_->setDidAction(true);
    hideAndEnableMain();
}

bool CellInfoWindow::stillHolds(bool onTheCell) const {
    if (cardPlayer_ == nullptr || cardPlayer_->isBankrupt2()) return false;
    const PropertyCell* prop = cardPlayer_->getBoard().propertyAt(cardId_);
    if (prop == nullptr || prop->getProp().getOwners() != ownerWhenShown_) return false;
    return !onTheCell || (!cardPlayer_->isWalking() && cardPlayer_->getPosition() == cardId_);
}

template <class Action>
void CellInfoWindow::act(bool onTheCell, Action action) {
    if (!isVisible()) return;
    if (!stillHolds(onTheCell)) {
        hideAndEnableMain();
        return;
    }
    action();
}

void CellInfoWindow::buy_Click() {
    act(true, [this] {
        cardPlayer_->buyProperty();
        finishCard();
        windows_.main.showInfo(cardPlayer_->getName() + " has bought " + cardName_);
    });
}

void CellInfoWindow::forget_Click() {
    act(true, [this] { finishCard(); });
}

void CellInfoWindow::payRent_Click() {
    act(true, [this] {
        cardPlayer_->payRent();
        finishCard();
    });
}

void CellInfoWindow::Ok_Click(int) {
    hideAndEnableMain();
}

void CellInfoWindow::close() {
    hideAndEnableMain();
}

void CellInfoWindow::forgetPlayers() {
    cardPlayer_ = nullptr;
    ownerWhenShown_ = nullptr;
    setVisible(false);
}

void CellInfoWindow::buyHotel_Click() {
    act(false, [this] {
        cardPlayer_->buildHotel(cardId_);
        hideAndEnableMain();
        windows_.sound.play(MediaPlayer::Main1, SoundEffect::Building);
    });
}

void CellInfoWindow::sellHotel_Click() {
    act(false, [this] {
        cardPlayer_->sellHotel(cardId_);
        hideAndEnableMain();
    });
}

void CellInfoWindow::Mortgage_Click(int) {
    act(false, [this] {
        cardPlayer_->mortgageProp(cardId_);
        hideAndEnableMain();
        windows_.sound.play(MediaPlayer::Main1, SoundEffect::Mortgaged);
    });
}

void CellInfoWindow::Unmortgage_Click() {
    act(false, [this] {
        cardPlayer_->unmortgageProp(cardId_);
        hideAndEnableMain();
    });
}

// Called by the button and by a computer looking for a district it lacks.
void CellInfoWindow::trade_Click() {
    if (!stillHolds(false)) {
        hideAndEnableMain();
        return;
    }
    hideAndEnableMain();
    windows_.trading.proposeTrade(cardId_, *cardPlayer_, cardName_, cardOwner_);
}

void CellInfoWindow::forEachControl(const ControlVisitor& fn) const {
    for (int n = 1; n <= 10; ++n) {
        fn("Label" + std::to_string(n), Control{true, true, label(n)});
    }
    fn("buy", buy_);
    fn("forget", forget_);
    fn("payRent", payRent_);
    fn("trade", trade_);
    fn("Ok(0)", ok_[0]);
    fn("Ok(1)", ok_[1]);
    fn("Mortgage(0)", mortgage_[0]);
    fn("Mortgage(1)", mortgage_[1]);
    fn("Unmortgage", unmortgage_);
    fn("buyHotel", buyHotel_);
    fn("sellHotel", sellHotel_);
    fn("payTo", payTo_);
}

}  // namespace gw
