// The windows that the rules talk to, gathered for one game: the main window (behind
// its port), the sound, the delays, and the four card windows, which are plain models.
#pragma once

#include "windows/CellInfoWindow.h"
#include "windows/Delay.h"
#include "windows/JFLCardWindow.h"
#include "windows/MainWindowPort.h"
#include "windows/Sound.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw {

class Windows {
public:
    Windows(MainWindowPort& mainWindow, Sound& soundPlayer, Delay& delayTime)
        : main(mainWindow),
          sound(soundPlayer),
          delay(delayTime),
          cellInfo(*this),
          trading(*this),
          jflCard(*this),
          taxCard(*this) {}
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    // A new game: the cards go and forget the players of the last one.
    void forgetPlayers() {
        cellInfo.forgetPlayers();
        trading.forgetPlayers();
        jflCard.close();
        taxCard.forgetPlayers();
    }
    // One hook for the four cards; see GameRun::setOnChanged.
    void setOnChanged(const std::function<void()>& hook) {
        cellInfo.setOnChanged(hook);
        trading.setOnChanged(hook);
        jflCard.setOnChanged(hook);
        taxCard.setOnChanged(hook);
    }

    MainWindowPort& main;
    Sound& sound;
    Delay& delay;
    CellInfoWindow cellInfo;
    TradingCardWindow trading;
    JFLCardWindow jflCard;
    taxCellWindow taxCard;
};

}  // namespace gw
