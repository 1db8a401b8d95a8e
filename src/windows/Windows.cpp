// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Windows.h"

#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw {

struct CardModels::Cards {
    explicit Cards(Windows& windows)
        : cellInfo(windows), trading(windows), jflCard(windows), taxCard(windows) {}
    CellInfoWindow cellInfo;
    TradingCardWindow trading;
    JFLCardWindow jflCard;
    taxCellWindow taxCard;
};

CardModels::CardModels(Windows& windows) : cards_(std::make_unique<Cards>(windows)) {}

CardModels::~CardModels() = default;

Windows::Windows(MainWindowPort& mainWindow, Sound& soundPlayer, Delay& delayTime)
    : CardModels(*this),
      Ports{mainWindow,
            soundPlayer,
            delayTime,
            {cards_->cellInfo, cards_->trading, cards_->jflCard, cards_->taxCard}},
      cellInfo(cards_->cellInfo),
      trading(cards_->trading),
      jflCard(cards_->jflCard),
      taxCard(cards_->taxCard) {}

Windows::~Windows() = default;

void Windows::forgetPlayers() {
    cellInfo.forgetPlayers();
    trading.forgetPlayers();
    jflCard.close();
    taxCard.forgetPlayers();
}

void Windows::setOnChanged(const std::function<void()>& hook) {
    cellInfo.setOnChanged(hook);
    trading.setOnChanged(hook);
    jflCard.setOnChanged(hook);
    taxCard.setOnChanged(hook);
}

}  // namespace gw
