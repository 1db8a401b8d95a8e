// SPDX-License-Identifier: GPL-3.0-or-later
// The one way the game shuffles: the order of play and the deck of cards.
#pragma once

#include <span>

#include "base/Integer.h"

namespace gw {

// Scatters the values 1 to `count` into `slots` (all 0 at first). Each value takes the slot
// a draw in [0, 1) picks among all of them; a taken slot passes it on to the next free one
// upward, and the search goes back to slot 0 on reaching `wrapAt`.
template <class Draw>
void scatter(std::span<Integer> slots, int count, int wrapAt, Draw draw) {
    const int n = static_cast<int>(slots.size());
    for (int v = 1; v <= count; ++v) {
        int pos = static_cast<int>(draw() * n);
        while (slots[static_cast<std::size_t>(pos)] != 0) {
            ++pos;
            if (pos >= wrapAt) pos = 0;
        }
        slots[static_cast<std::size_t>(pos)] = static_cast<Integer>(v);
    }
}

}  // namespace gw
