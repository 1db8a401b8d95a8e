#include "windows/TradingCardWindow.h"

#include <charconv>

#include "players/player.h"
#include "windows/Windows.h"

namespace gw {

void TradingCardWindow::proposeTrade(Integer iId, player& buyer, const std::string& sStreetName,
                                     const std::string& sOwner) {
    tradeBuyer_ = &buyer;
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
    face_ = 1;
    labels_[1] = sStreetName;
    labels_[2] = sOwner;
    labels_[3] = buyer.getName();
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
    face_ = 0;
    label4_.caption = std::to_string(iAmount);
    setVisible(true);
}

bool TradingCardWindow::computerThink() {
    windows_.delay.wait(kComputerThinkTicks);
    hide();
    return true;
}

void TradingCardWindow::doneDeal_Click() {
    if (tradeBuyer_ != nullptr) tradeBuyer_->doTrade(tradeId_, tradeAmount_);
    hide();
}

void TradingCardWindow::forgetIt_Click() {
    hide();
}

void TradingCardWindow::wantIt_Click() {
    const std::optional<Integer> sum = readAmount();
    if (sum && *sum >= 0 && tradeBuyer_ != nullptr) tradeBuyer_->offerTrade(tradeId_, *sum);
}

void TradingCardWindow::wantMore_Click() {
    const std::optional<Integer> sum = readAmount();
    if (!sum || *sum < 0 || *sum <= tradeAmount_ || tradeBuyer_ == nullptr) {
        hide();
        return;
    }
    tradeBuyer_->offerTrade(tradeId_, *sum);
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
