// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/Windows.h"

#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw {

struct Windows::Cards {
    explicit Cards(Windows& windows)
        : cellInfo(windows), trading(windows), jflCard(windows), taxCard(windows) {}
    CellInfoWindow cellInfo;
    TradingCardWindow trading;
    JFLCardWindow jflCard;
    taxCellWindow taxCard;
};

Windows::Windows(MainWindowPort& mainWindow, Sound& soundPlayer, Delay& delayTime)
    : cards_(std::make_unique<Cards>(*this)),
      main(mainWindow),
      sound(soundPlayer),
      delay(delayTime),
      cards{cards_->cellInfo, cards_->trading, cards_->jflCard, cards_->taxCard},
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
