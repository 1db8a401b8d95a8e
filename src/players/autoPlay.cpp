// SPDX-License-Identifier: GPL-3.0-or-later
// A computer player's whole turn, in phases that Board.playTurn runs in order. Nothing
// here is random and nothing here waits: the pacing lies in the cards' computerThink.
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
        for (const Integer i : held_.inBoardOrder()) {
            if (!board_.propertyAt(i)->getProp().isMortgaged2()) continue;
            if (canUnmort(i)) unmortgageProp(i);
        }
    }
    cellUnder()->doAction(*this);
}

void player::autoSettleTradeRaiseBuild() {
    // Afresh: a card or the police may have moved the token.
    if (PropertyCell* prop = propertyUnder()) {
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
    } else if (cellUnder()->isTax()) {
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
    if (wholeDistricts_ == 0) {
        // No street can take a hotel. canBuild on a street of one's own would still
        // have ownDist mark the two-street districts' missing column, so it is asked
        // once, from the end of the board down, until the marks stand.
        if (ownedStreets_[0][2] && ownedStreets_[7][2]) return;
        for (const Integer i : held_.fromTheEnd()) {
            if (board_.streetAt(i) != nullptr) {
                canBuild(i);
                return;
            }
        }
        return;
    }
    // What canBuild on the first street of one's own would mark before anything else.
    markTwoStreetDistricts();
    // A hotel goes only on a street of a whole district, unmortgaged and with fewer than
    // four; building changes none of that for the streets it passes over, so they are
    // picked once, from the end of the board down, and canBuild asks the rest each time.
    CellList streets;
    for (const Integer i : held_.fromTheEnd()) {
        const Street* s = board_.streetAt(i);
        if (s != nullptr && wholeDistrict(static_cast<std::size_t>(s->district() - 1)) &&
            s->getHotelCount() < kMaxHotels && !s->getProp().isMortgaged2()) {
            streets.add(i);
        }
    }
    for (int pass = 0; pass < kBuildPasses; ++pass) {
        int built = 0;
        for (const Integer i : streets) {
            if (!canBuild(i)) continue;
            playSound(SoundEffect::Building);
            buildHotel(i);
            ++built;
        }
        if (built < kHotelsForAnotherPass) return;
    }
}

}  // namespace gw
