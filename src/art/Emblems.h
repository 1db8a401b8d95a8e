// SPDX-License-Identifier: GPL-3.0-or-later
// The small emblems printed on cells and cards: each is drawn in a 100 by 100 design square
// centred in the rectangle it is given, so one drawing serves a 20 px cell and a 90 px card.
#pragma once

#include <QColor>
#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

enum class Emblem {
    TrainFront,  // metro stations
    Bulb,        // Utility 1
    Tower,       // HQ
    CoinStack,   // the tax cells and cards
    // The four corners.
    GoArrow,
    JailBars,
    StadiumArch,
    PoliceCap,
    CompassRose,  // the map on the board and the set-up window
};

void paintEmblem(QPainter& p, const QRectF& rect, Emblem emblem);

// The JFL seal; its lettering is reported like any other text on a picture.
TextBox paintJflSeal(QPainter& p, const QRectF& rect);

// A silhouette of Kestrovia's skyline filling rect from its bottom edge up.
void paintSkyline(QPainter& p, const QRectF& rect, const QColor& colour);

// Scattered paper confetti over rect, the same pattern every time.
void paintConfetti(QPainter& p, const QRectF& rect, int count);

}  // namespace gw::art
