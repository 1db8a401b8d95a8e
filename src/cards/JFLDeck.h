// SPDX-License-Identifier: GPL-3.0-or-later
// The one deck: twenty cards in a fixed cycle, shuffled once when built. The jail card
// leaves the cycle while a player holds it and comes back just behind the cursor.
#pragma once

#include <array>
#include <memory>

#include "cards/JFLCard.h"

namespace gw {

class Board;

class JFLDeck {
public:
    explicit JFLDeck(Board& bBoard1) : board_(bBoard1) {}

    // Builds the twenty cards and shuffles them; the cursor goes back to slot 0.
    void init();
    Board& getBoard() const { return board_; }
    void setInDeck(bool bInDeck) { inDeck_ = bInDeck; }
    bool getInDeck() const { return inDeck_; }
    // The scatter into target slots; its search wraps at 19, so slot 19 is filled only
    // by a direct hit.
    void shuffle();
    // Draws the next card, passing over the jail card while it is held.
    JFLCard& getCard();
    // Gives the jail card back, into the slot that the cursor reaches last.
    void insertJail();

    Integer getCursor() const { return cursor_; }
    const JFLCard& cardAt(int slot) const { return *cards_[static_cast<std::size_t>(slot)]; }

private:
    Board& board_;
    std::array<std::unique_ptr<JFLCard>, kDeckSize> cards_;
    bool inDeck_ = true;
    Integer cursor_ = 0;
};

}  // namespace gw
