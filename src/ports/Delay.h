// SPDX-License-Identifier: GPL-3.0-or-later
// Waits counted in ticks of 80 ms. A real wait keeps serving window events, so a click
// can run to its end inside it; a headless run returns at once.
#pragma once

#include "base/Integer.h"

namespace gw {

constexpr int kTickMs = 80;
// How long a computer player's card stays up.
constexpr Integer kComputerThinkTicks = 20;

class Delay {
public:
    virtual ~Delay() = default;
    virtual void wait(Integer ticks) = 0;
};

class InstantDelay final : public Delay {
public:
    void wait(Integer) override {}
};

}  // namespace gw
