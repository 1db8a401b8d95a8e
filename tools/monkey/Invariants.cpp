// SPDX-License-Identifier: GPL-3.0-or-later
#include "Invariants.h"

#include "cells/Street.h"
#include "windows/CellInfoWindow.h"
#include "windows/GameRun.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/Windows.h"
#include "windows/taxCellWindow.h"

namespace gw::monkey {
namespace {

constexpr int kMaxThrowsPerTurn = 3;

std::string brokenByPlayers(const Board& b) {
    for (Integer i = 0; i < b.getNumPlayer(); ++i) {
        const player& p = *b.getPlayer(i);
        if (p.getPosition() < 0 || p.getPosition() >= kCellCount) return "a position off the ring";
        // A long game may fill a purse to the top, where it saturates; no rule lets a debt
        // run to the bottom.
        if (p.getBalance() == kIntegerMin) return "a balance at its lowest 16-bit bound";
    }
    return brokenWithinATurn(b);
}

// Whether one player holds every street of the district of s.
bool districtHeldBy(const Board& b, const Street& s, const player* owner) {
    for (Integer c = 0; c < kCellCount; ++c) {
        const Street* other = b.streetAt(c);
        if (other != nullptr && other->district() == s.district() &&
            other->getProp().getOwners() != owner) {
            return false;
        }
    }
    return true;
}

std::string brokenByCells(const Board& b) {
    for (Integer c = 0; c < kCellCount; ++c) {
        const PropertyCell* prop = b.propertyAt(c);
        if (prop == nullptr) continue;
        const player* owner = prop->getProp().getOwners();
        if (owner != nullptr && owner->isBankrupt2()) return "a bankrupt player owns a cell";
        const Street* s = b.streetAt(c);
        if (s == nullptr) continue;
        for (Integer i = 0; i < b.getNumPlayer(); ++i) {
            const player& p = *b.getPlayer(i);
            if (p.ownsStreetEntry(s->district() - 1, s->streetNumber() - 1) != (&p == owner)) {
                return "an owner's table disagrees with cell " + std::to_string(c);
            }
        }
        if (s->getHotelCount() == 0) continue;
        if (owner == nullptr || prop->getProp().isMortgaged2()) {
            return "hotels on a cell that is not an owned, free street";
        }
    }
    return {};
}

std::string brokenByWindows(const GameRun& r) {
    const player& current = r.board().getCurrPlayer();
    const MainWindow& main = r.mainWindow();
    const Windows& w = r.windows();
    const bool cardUp = w.cellInfo.isVisible() || w.taxCard.isVisible() || w.jflCard.isVisible() ||
                        w.trading.isVisible();
    if (!current.isComputer2() && !current.isBankrupt2() && current.getBalance() < 0 && !cardUp &&
        main.isEnabled() && !main.declareBank().isOpen()) {
        return "a human in debt is not offered Declare Bankruptcy";
    }
    if (!cardUp && !main.isEnabled()) return "the main window is dead with no card up";
    return {};
}

}  // namespace

std::string brokenInvariant(const GameRun& run) {
    if (run.hasExited() || !run.mainWindow().isVisible()) return {};
    const Board& b = run.board();
    std::string broken = brokenByPlayers(b);
    if (broken.empty()) broken = brokenByCells(b);
    if (broken.empty()) broken = brokenByWindows(run);
    return broken;
}

std::string brokenWithinATurn(const Board& b) {
    return b.throwsThisTurn() > kMaxThrowsPerTurn ? "a fourth throw in one turn" : "";
}

std::string HotelWatch::check(const Board& b) {
    std::string broken;
    for (Integer c = 0; c < kCellCount; ++c) {
        const Street* s = b.streetAt(c);
        const Integer hotels = s == nullptr ? Integer{0} : s->getHotelCount();
        Integer& seen = seen_[static_cast<std::size_t>(c)];
        if (hotels > seen && !districtHeldBy(b, *s, s->getProp().getOwners()) && broken.empty()) {
            broken = "a hotel built on cell " + std::to_string(c) +
                     " of a district its owner does not hold";
        }
        seen = hotels;
    }
    return broken;
}

}  // namespace gw::monkey
