// SPDX-License-Identifier: GPL-3.0-or-later
// The windows that the rules talk to, gathered for one game: the main window (behind
// its port), the sound, the delays, and the four cards behind theirs. The cards' models
// are only declared here: a view or a test that clicks one includes that card's header,
// so that an edit to one card rebuilds only the files that use it.
#pragma once

#include <functional>
#include <memory>

#include "windows/CardPorts.h"
#include "windows/Delay.h"
#include "windows/MainWindowPort.h"
#include "windows/Sound.h"

namespace gw {

class CellInfoWindow;
class TradingCardWindow;
class JFLCardWindow;
class taxCellWindow;

class Windows {
    struct Cards;
    // First, so that the cards exist before the references to them are bound.
    std::unique_ptr<Cards> cards_;

public:
    Windows(MainWindowPort& mainWindow, Sound& soundPlayer, Delay& delayTime);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    // A new game: the cards go and forget the players of the last one.
    void forgetPlayers();
    // One hook for the four cards; see GameRun::setOnChanged.
    void setOnChanged(const std::function<void()>& hook);

    MainWindowPort& main;
    Sound& sound;
    Delay& delay;
    // What the rules may ask of the cards.
    CardPorts cards;
    // The cards' models, for their views and for clicks.
    CellInfoWindow& cellInfo;
    TradingCardWindow& trading;
    JFLCardWindow& jflCard;
    taxCellWindow& taxCard;
};

}  // namespace gw
