// The small emblems printed on cells and cards: each is drawn in a 100 by 100 design square
// centred in the rectangle it is given, so one drawing serves a 20 px cell and a 90 px card.
#pragma once

#include <QColor>
#include <QRectF>

#include "art/Text.h"

class QPainter;

namespace gw::art {

void paintTrainFront(QPainter& p, const QRectF& rect);
void paintBulb(QPainter& p, const QRectF& rect);
void paintTower(QPainter& p, const QRectF& rect);
void paintCoinStack(QPainter& p, const QRectF& rect);
TextBox paintJflSeal(QPainter& p, const QRectF& rect);
void paintGoArrow(QPainter& p, const QRectF& rect);
void paintJailBars(QPainter& p, const QRectF& rect);
void paintStadiumArch(QPainter& p, const QRectF& rect);
void paintPoliceCap(QPainter& p, const QRectF& rect);
void paintCompassRose(QPainter& p, const QRectF& rect);

// A silhouette of Kestrovia's skyline filling rect from its bottom edge up.
void paintSkyline(QPainter& p, const QRectF& rect, const QColor& colour);

// Scattered paper confetti over rect, the same pattern every time.
void paintConfetti(QPainter& p, const QRectF& rect, int count);

}  // namespace gw::art
