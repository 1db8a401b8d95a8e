// SPDX-License-Identifier: GPL-3.0-or-later
// One card of the deck: a text and a type, and the single place where the twenty
// effects are carried out.
#pragma once

#include <string>

#include "base/Integer.h"

namespace gw {

class JFLDeck;
class player;

enum JFLType : Integer {
    kGoToJailCard = 0,
    kJailFreeCard = 1,
    kPassGo = 2,
    kGreen = 13,
    kStLaurent = 14,
    kForward7 = 15,
    kForward11 = 16,
    kForward5 = 17,
    kBack3 = 18,
    kDoNothing = 19,
};

constexpr int kDeckSize = 20;

class JFLCard {
public:
    JFLCard(std::string sDescription, Integer iId, JFLDeck& jDeck1)
        : type_(iId), description_(std::move(sDescription)), deck_(jDeck1) {}

    // Carries out the card on this player; a card that moves the token lands it.
    void doAction(player& pPlayer);
    void display() {}
    const std::string& getDescription() const { return description_; }
    Integer getType() const { return type_; }

    // The text printed on the card of each type.
    static const char* textOf(Integer type);

private:
    void landOnCurrentCell(player& p);

    Integer type_;
    std::string description_;
    JFLDeck& deck_;
};

}  // namespace gw
