// SPDX-License-Identifier: GPL-3.0-or-later
// The windows of one game: the ports the rules talk to (the main window, the sound, the
// delays and the four cards), and behind them the cards' models. Those are only declared
// here: a view or a test that clicks one includes that card's header, so that an edit to
// one card rebuilds only the files that use it.
#pragma once

#include <functional>
#include <memory>

#include "ports/Ports.h"

namespace gw {

class CellInfoWindow;
class TradingCardWindow;
class JFLCardWindow;
class taxCellWindow;
class Windows;

// Holds the four cards' models; a base of Windows ahead of its ports, so that the cards
// exist before the ports are bound to them.
class CardModels {
protected:
    explicit CardModels(Windows& windows);
    ~CardModels();
    struct Cards;
    std::unique_ptr<Cards> cards_;
};

// The ports the rules see, and behind them the cards' models for views, tests and clicks.
class Windows : private CardModels, public Ports {
public:
    Windows(MainWindowPort& mainWindow, Sound& soundPlayer, Delay& delayTime);
    ~Windows();
    Windows(const Windows&) = delete;
    Windows& operator=(const Windows&) = delete;

    // A new game: the cards go and forget the players of the last one.
    void forgetPlayers();
    // One hook for the four cards; see GameRun::setOnChanged.
    void setOnChanged(const std::function<void()>& hook);

    CellInfoWindow& cellInfo;
    TradingCardWindow& trading;
    JFLCardWindow& jflCard;
    taxCellWindow& taxCard;
};

}  // namespace gw
