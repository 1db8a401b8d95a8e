// SPDX-License-Identifier: GPL-3.0-or-later
// A computer player's whole turn, in phases that Board.playTurn runs in order. Nothing
// here is random and nothing here waits: the pacing lies in the cards' computerThink.
#include <array>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "players/player.h"
#include "ports/Ports.h"

namespace gw {
namespace {

constexpr Integer kReleaseFrom = 500;
constexpr Integer kTradeAbove = 200;
constexpr Integer kBuildAbove = 200;
constexpr Integer kKeepAtLeast = 100;
constexpr int kBuildPasses = 4;
constexpr int kHotelsForAnotherPass = 3;

// The owner's table as ownDist reads it: a two-street district is whole with its two.
bool holdsAWholeDistrict(const std::array<std::array<bool, 3>, 8>& owned) {
    for (std::size_t r = 0; r < owned.size(); ++r) {
        const bool twoStreets = r == 0 || r == owned.size() - 1;
        if (owned[r][0] && owned[r][1] && (twoStreets || owned[r][2])) return true;
    }
    return false;
}

}  // namespace

void player::autoPlay(Integer opt) {
    switch (opt) {
        case 0:
            autoLeaveJailAndRoll();
            break;
        case 1:
            autoReleaseAndAct();
            break;
        case 2:
            autoSettleTradeRaiseBuild();
            break;
        default:
            break;
    }
}

// Uses the card at the first chance, else pays at the first chance, and throws for
// doubles only when short of the fee.
void player::autoLeaveJailAndRoll() {
    if (!IsInJail()) {
        playSound(SoundEffect::DiceRoll);
        board_.rollDice();
    } else if (hasGoJFC()) {
        useGOJFC();
        board_.rollDice();
        playSound(SoundEffect::DiceRoll);
    } else if (balance_ < kJailFee) {
        playSound(SoundEffect::DiceRoll);
        board_.rollDice();
    } else {
        pay50GOJ();
        playSound(SoundEffect::DiceRoll);
        board_.rollDice();
    }
}

void player::autoReleaseAndAct() {
    if (balance_ >= kReleaseFrom) {
        for (Integer i = 0; i < kCellCount; ++i) {
            if (!holds(i) || !board_.propertyAt(i)->getProp().isMortgaged2()) continue;
            if (canUnmort(i)) unmortgageProp(i);
        }
    }
    cellUnder()->doAction(*this);
}

void player::autoSettleTradeRaiseBuild() {
    BoardCell* c = cellUnder();  // afresh: a card or the police may have moved the token
    if (PropertyCell* prop = c->asProperty()) {
        windows().cards.cellInfo.computerThink();
        const player* owner = prop->getProp().getOwners();
        if (owner == nullptr) {
            if (canBuy(position_)) {
                playSound(SoundEffect::Buy);
                buyProperty();
            }
        } else if (owner != this) {
            playSound(SoundEffect::Pay);
            payRent();
        }
    } else if (c->isTax()) {
        windows().cards.taxCard.computerThink();
        playSound(SoundEffect::Pay);
        payRent();
    }
    if (balance_ > kTradeAbove) autoTrade();
    if (balance_ < kKeepAtLeast) {
        if (balance_ < 0) {
            autoMakeMoney(0);
            if (isBankrupt_) return;
        }
        autoMakeMoney(kKeepAtLeast);
        if (isBankrupt_) return;
    }
    setDidAction(true);
    if (balance_ > kBuildAbove) autoBuild();
}

// Up to four passes from the end of the board down, one hotel a street a pass; a pass
// that builds fewer than three ends the building.
void player::autoBuild() {
    if (!holdsAWholeDistrict(ownedStreets_)) {
        // No street can take a hotel. canBuild on a street of one's own would still
        // have ownDist mark the two-street districts' missing column, so it is asked
        // once, from the end of the board down, until the marks stand.
        if (ownedStreets_[0][2] && ownedStreets_[7][2]) return;
        for (Integer i = kCellCount - 1; i >= 0; --i) {
            if (board_.streetAt(i) != nullptr && holds(i)) {
                canBuild(i);
                return;
            }
        }
        return;
    }
    // Only one's own streets can take a hotel, and building changes no owner: they are
    // looked up once, from the end of the board down.
    std::array<Integer, kCellCount> own{};
    std::size_t ownCount = 0;
    for (Integer i = kCellCount - 1; i >= 0; --i) {
        if (board_.streetAt(i) != nullptr && holds(i)) own[ownCount++] = i;
    }
    for (int pass = 0; pass < kBuildPasses; ++pass) {
        int built = 0;
        for (std::size_t k = 0; k < ownCount; ++k) {
            const Integer i = own[k];
            if (!canBuild(i)) continue;
            playSound(SoundEffect::Building);
            buildHotel(i);
            ++built;
        }
        if (built < kHotelsForAnotherPass) return;
    }
}

}  // namespace gw
