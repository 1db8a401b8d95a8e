// SPDX-License-Identifier: GPL-3.0-or-later
#include "game/Dice.h"

#include "game/Random.h"

namespace gw {

Integer Dice::faceOf(double r) {
    const int v = static_cast<int>(r * 10000) + 1;
    return static_cast<Integer>(v % 6 + 1);
}

void Dice::roll() {
    value_ = faceOf(random_.draw());
}

}  // namespace gw
