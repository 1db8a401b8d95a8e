// SPDX-License-Identifier: GPL-3.0-or-later
// The centre of the board: a stylised map of Kestrovia under the game's name.
#pragma once

#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

// Drawn for 442 x 439 and stretched to rect.
TextBoxes paintBoardCentre(QPainter& p, const QRectF& rect);

}  // namespace gw::art
