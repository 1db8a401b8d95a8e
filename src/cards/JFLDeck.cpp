// SPDX-License-Identifier: GPL-3.0-or-later
#include "cards/JFLDeck.h"

#include <algorithm>

#include "game/Board.h"  // the board holding the deck, which holds it in turn
#include "game/Scatter.h"

namespace gw {
namespace {

Integer nextSlot(Integer slot) {
    return slot == kDeckSize - 1 ? Integer{0} : ++slot;
}

}  // namespace

void JFLDeck::init() {
    cursor_ = 0;
    for (Integer i = 0; i < kDeckSize; ++i) {
        cards_[static_cast<std::size_t>(i)] =
            std::make_unique<JFLCard>(JFLCard::textOf(i), i, *this);
    }
    shuffle();
    setInDeck(true);
}

void JFLDeck::shuffle() {
    // Card 0 keeps the slot left free; the search wraps one slot early, so the last slot
    // is only ever taken by a draw that hits it.
    std::array<Integer, kDeckSize> order{};
    scatter(order, kDeckSize - 1, kDeckSize - 1, [this] { return board_.draw(); });
    std::array<std::unique_ptr<JFLCard>, kDeckSize> shuffled;
    for (std::size_t i = 0; i < kDeckSize; ++i) {
        shuffled[static_cast<std::size_t>(order[i])] = std::move(cards_[i]);
    }
    cards_ = std::move(shuffled);
}

JFLCard& JFLDeck::getCard() {
    auto at = [this](Integer slot) -> JFLCard& { return *cards_[static_cast<std::size_t>(slot)]; };
    JFLCard* card = &at(cursor_);
    if (inDeck_) {
        if (card->getType() == kJailFreeCard) setInDeck(false);
    } else if (card->getType() == kJailFreeCard) {
        cursor_ = nextSlot(cursor_);
        card = &at(cursor_);
    }
    cursor_ = nextSlot(cursor_);
    return *card;
}

void JFLDeck::insertJail() {
    const auto held = std::find_if(cards_.begin(), cards_.end(),
                                   [](const auto& c) { return c->getType() == kJailFreeCard; });
    const auto target = cards_.begin() + (cursor_ == 0 ? kDeckSize - 1 : cursor_ - 1);
    // Moving the card from its slot to the target shifts the cards between by one.
    if (held < target) {
        std::rotate(held, held + 1, target + 1);
    } else {
        std::rotate(target, held, held + 1);
    }
    setInDeck(true);
}

}  // namespace gw
