// SPDX-License-Identifier: GPL-3.0-or-later
// The kinds of face a board cell prints: what the window model tells and what the pictures
// paint, one list for both.
#pragma once

namespace gw {

enum class CellFaceKind {
    Street,
    Metro,
    UtilityBulb,
    UtilityTower,
    Jfl,
    Tax,
    Go,
    Jail,
    FreeStop,
    Police
};

}  // namespace gw
