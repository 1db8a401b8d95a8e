// SPDX-License-Identifier: GPL-3.0-or-later
// Marks laid over board cells: a hotel and the mortgage stamp.
#pragma once

#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

// A small gold-roofed building; in a rect wider than tall it is turned on its side with the
// roof towards the right.
void paintHotel(QPainter& p, const QRectF& rect);

// The owner's tab: a cream disc ringed in the token's own colour, the token upon it.
void paintOwnerTab(QPainter& p, const QRectF& rect, int token);

// A red, half-transparent "MORTGAGED" stamp laid along the rectangle's diagonal.
TextBoxes paintMortgageStamp(QPainter& p, const QRectF& rect);

}  // namespace gw::art
