// SPDX-License-Identifier: GPL-3.0-or-later
// What the rules ask of the four cards. Cells, cards and players see only these narrow
// faces, as they see the main window through MainWindowPort; the cards' models, with their
// controls, labels and pictures, stay behind them, so an edit to a card rebuilds the card
// and its views, not the rules.
#pragma once

#include <span>
#include <string>

#include "base/Integer.h"

namespace gw {

class player;

class PropertyCardPort {
public:
    // opt: 0 information, 1 buy, 2 rent, 3 own cell, 4 another player's cell open to a trade.
    virtual void showInfoCard(Integer iId, Integer iGroup, std::span<const Integer> iValues,
                              Integer opt, player& p, const std::string& sName,
                              const std::string& sOwner) = 0;
    // Holds the card up for the standard wait, then takes it down.
    virtual bool computerThink() = 0;
    // A computer asks for another player's cell as a human does, by the card's Trade button.
    virtual void trade_Click() = 0;

protected:
    ~PropertyCardPort() = default;
};

class TradingCardPort {
public:
    virtual void seeTrade(Integer iId, player& owner, Integer iAmount) = 0;
    virtual bool computerThink() = 0;
    // A computer's offer is typed into the box and sent as a human's would be.
    virtual void setAmountText(std::string text) = 0;
    virtual void wantIt_Click() = 0;

protected:
    ~TradingCardPort() = default;
};

class JFLCardPort {
public:
    virtual void showJFLCard(const std::string& sDesc) = 0;
    virtual bool computerThink() = 0;

protected:
    ~JFLCardPort() = default;
};

class TaxCardPort {
public:
    virtual void showTaxCard(Integer iId, player& p, Integer amount, Integer opt) = 0;
    virtual bool computerThink() = 0;

protected:
    ~TaxCardPort() = default;
};

// The four faces of one game's cards, handed to the rules together.
struct CardPorts {
    PropertyCardPort& cellInfo;
    TradingCardPort& trading;
    JFLCardPort& jflCard;
    TaxCardPort& taxCard;
};

}  // namespace gw
