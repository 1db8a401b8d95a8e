// SPDX-License-Identifier: GPL-3.0-or-later
// A die face: ivory, rounded, softly shadowed, with ink pips.
#pragma once

#include <QRectF>

class QPainter;

namespace gw::art {

// Paints face value (1 to 6) filling rect; the die stays square and centred.
void paintDieFace(QPainter& p, const QRectF& rect, int value);

}  // namespace gw::art
