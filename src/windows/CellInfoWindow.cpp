#include "windows/CellInfoWindow.h"

#include "cells/PropertyCell.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/Windows.h"

namespace gw {
namespace {

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
    picture_ = CardPicture::None;
    cardOpt_ = opt;
    cardPlayer_ = &p;
    const PropertyCell* shownCell = p.getBoard().propertyAt(iId);
    ownerWhenShown_ = shownCell == nullptr ? nullptr : shownCell->getProp().getOwners();
    cardId_ = iId;
    cardName_ = sName;
    cardOwner_ = sOwner;
    labels_[1] = sName;
    labels_[3] = sOwner;
    labels_[2].clear();
    for (int i = 4; i <= 10; ++i) labels_[static_cast<std::size_t>(i)].clear();

    for (Control* c : {&trade_, &buy_, &forget_, &payRent_, &buyHotel_, &sellHotel_, &mortgage_[0],
                       &mortgage_[1], &ok_[0], &ok_[1], &unmortgage_, &payTo_}) {
        c->hide();
    }
    buyHotel_.enable(false);
    sellHotel_.enable(false);
    buy_.enable(false);
    const bool human = !p.isComputer2();
    forget_.enable(human);

    switch (cardOpt_) {
        case 1:
            buy_.show();
            forget_.show();
            if (p.canBuy(cardId_) && human) buy_.enable();
            break;
        case 2: {
            payRent_.show();
            payTo_.show();
            // The card of a landing carries no owner's name: the payee is said here.
            if (ownerWhenShown_ != nullptr) {
                payTo_.caption = "Rent goes to " + ownerWhenShown_->getName();
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
            break;
        }
        case 4:
            trade_.show();
            ok_[0].show();
            break;
        default:
            break;
    }

    if (iGroup >= 1 && iGroup <= 8) {
        picture_ = static_cast<CardPicture>(iGroup - 1);
        static constexpr int kStreetLabels[] = {2, 4, 5, 6, 7, 8, 9, 10};
        for (std::size_t i = 0; i < iValues.size() && i < 8; ++i) {
            labels_[static_cast<std::size_t>(kStreetLabels[i])] = dollars(iValues[i]);
        }
        if (cardOpt_ == 3) showOwnCellButtons(p.canBuild(cardId_) || p.canSellHotel(cardId_));
    } else if (iGroup == 9 || iGroup == 10) {
        if (iGroup == 9) picture_ = CardPicture::Metro;
        if (iGroup == 10 && cardId_ == 12) picture_ = CardPicture::Utility1;
        if (iGroup == 10 && cardId_ == 28) picture_ = CardPicture::HQ;
        static constexpr int kOtherLabels[] = {2, 6, 8};
        for (std::size_t i = 0; i < iValues.size() && i < 3; ++i) {
            labels_[static_cast<std::size_t>(kOtherLabels[i])] = dollars(iValues[i]);
        }
        if (cardOpt_ == 3) showOwnCellButtons(false);
    }
    setVisible(true);
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
        fn("Label" + std::to_string(n), Control{true, true, labels_[static_cast<std::size_t>(n)]});
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
