// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/JFLCard.h"

#include <array>

#include "cards/JFLDeck.h"
#include "cells/BoardCell.h"
#include "game/Board.h"      // the board holding the deck, which holds it in turn
#include "players/player.h"  // a card acts on players, who may keep one in turn

namespace gw {
namespace {

constexpr std::array<const char*, kDeckSize> kTexts = {
    "Go to jail",
    "Get Out of Jail Free Card",
    "Pass Go, collect 200$",
    "Collect $250 from bank",
    "Collect $200 from bank",
    "Collect $150 from bank",
    "Collect $100 from bank",
    "Collect $50 from bank",
    "Pay $250 to bank",
    "Pay $200 to bank",
    "Pay $150 to bank",
    "Pay $100 to bank",
    "Pay $50 to bank",
    "Advance to Green street",
    "Advance to St-Laurent street",
    "Move forward 7 cells",
    "Move forward 11 cells",
    "Move forward 5 cells",
    "Move back 3 cells",
    "Do Nothing",
};

// The sums of the money cards, types 3 to 12.
constexpr std::array<Integer, 5> kSums = {250, 200, 150, 100, 50};

// The cells that the three forward cards advance.
constexpr Integer forwardSteps(Integer type) {
    return type == kForward7 ? 7 : type == kForward11 ? 11 : 5;
}

}  // namespace

const char* JFLCard::textOf(Integer type) {
    return type >= 0 && type < kDeckSize ? kTexts[static_cast<std::size_t>(type)] : "";
}

void JFLCard::landOnCurrentCell(player& p) {
    deck_.getBoard().getCell(p.getPosition())->doAction(p);
}

void JFLCard::doAction(player& p) {
    const Integer pos = p.getPosition();
    switch (type_) {
        case kGoToJailCard:
            p.goToJail();
            break;
        case kJailFreeCard:
            p.setHasGoJFC(true);
            break;
        case kPassGo:
            p.move(static_cast<Integer>(40 - pos), false);
            break;
        case 3:
        case 4:
        case 5:
        case 6:
        case 7:
            p.credit(kSums[static_cast<std::size_t>(type_ - 3)]);
            break;
        case 8:
        case 9:
        case 10:
        case 11:
        case 12:
            p.debit(kSums[static_cast<std::size_t>(type_ - 8)]);
            break;
        case kGreen:
            p.move(static_cast<Integer>(37 - pos), false);
            landOnCurrentCell(p);
            break;
        case kStLaurent:
            if (pos <= 16) {
                p.move(static_cast<Integer>(16 - pos), false);
            } else {
                p.move(static_cast<Integer>(40 - pos), false);
                p.move(16, false);
            }
            landOnCurrentCell(p);
            break;
        case kForward7:
        case kForward11:
        case kForward5:
            p.move(forwardSteps(type_), false);
            landOnCurrentCell(p);
            break;
        case kBack3:
            // Round the ring the long way, without Go money.
            p.move(37, true);
            landOnCurrentCell(p);
            break;
        default:
            break;
    }
}

}  // namespace gw
