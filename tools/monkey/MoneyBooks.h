// SPDX-License-Identifier: GPL-3.0-or-later
// The books of a game played through the windows: each movement of money that the rules
// tell the main window is explained as a payment that the rules allow, and the players'
// money changes only by what the bank paid out or took in.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "LedgerWindow.h"

namespace gw::monkey {

class MoneyBooks {
public:
    // What the rules tell the main window, to be heard beside it.
    MainWindowPort& window() { return ledger_; }
    // A game begins on this board, its players seated and no money moved.
    void begin(Board& board);

    // Runs a click made inside a wait: what it moves is read apart, so that the payments
    // of the turn it interrupted still come in one piece.
    void readApart(const std::function<void()>& click) {
        const std::size_t mark = ledger_.events().size();
        click();
        asides_.push_back(ledger_.takeEventsFrom(mark));
    }

    // Explains everything moved since the last check; the first fault found, or nothing.
    std::string check();

private:
    // Explains events throw by throw and adds what the bank paid out, net, to `bankNet`.
    std::string explain(const std::vector<sim::Event>& events, long long& bankNet);

    sim::LedgerWindow ledger_{true};
    Board* board_ = nullptr;
    std::vector<std::vector<sim::Event>> asides_;
    long long total_ = 0;  // the players' money at the last check
};

}  // namespace gw::monkey
