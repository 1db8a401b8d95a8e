// SPDX-License-Identifier: GPL-3.0-or-later
// The sizes of the game that every table is cut to.
#pragma once

#include "base/Integer.h"

namespace gw {

constexpr Integer kCellCount = 40;
// Set-up takes two to six players; the board refuses a seventh.
constexpr Integer kMaxPlayers = 6;

}  // namespace gw
