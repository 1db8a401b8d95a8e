// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window: its background and the player-type pictures.
#pragma once

#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

enum class PlayerType { Computer, Human };

// Drawn for 600 x 400: the title, a label for the name entry at 144,158, wells for the two
// type pictures, the shelf of fourteen tokens and the list of players on the right.
TextBoxes paintStartBackground(QPainter& p, const QRectF& rect);

// A 154 x 50 picture: large is the switch to that kind (light, raised, an empty ring), otherwise
// the kind in force (teal, pressed in, gold rim and a tick).
TextBoxes paintPlayerType(QPainter& p, const QRectF& rect, PlayerType type, bool large);

}  // namespace gw::art
