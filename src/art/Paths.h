// SPDX-License-Identifier: GPL-3.0-or-later
// The outlines the pictures keep building: straight-sided shapes through their corners, stars
// and bursts, and smooth shapes of cubic curves.
#pragma once

#include <QPainterPath>
#include <QPointF>
#include <QRectF>
#include <initializer_list>

namespace gw::art {

// Starts a new stroke of path through points, joined by straight lines and left open.
void addPolyline(QPainterPath& path, std::initializer_list<QPointF> points);

// A closed outline through corners, in order.
QPainterPath polygon(std::initializer_list<QPointF> corners);

QPainterPath circle(QPointF centre, qreal radius);
QPainterPath roundedRect(const QRectF& rect, qreal radius);

// A closed star of `tips` points at radius outer with the valleys between them at radius
// inner; the first tip lies at angle firstTip (radians, turning clockwise on the screen).
QPainterPath star(QPointF centre, int tips, qreal outer, qreal inner, qreal firstTip = 0);

// One cubic segment: its two control points and where it ends.
struct CurveTo {
    QPointF c1;
    QPointF c2;
    QPointF end;
};

// Cubic segments from start, left open (for stems, tails, strokes) or closed back to start.
QPainterPath curve(QPointF start, std::initializer_list<CurveTo> segments);
QPainterPath closedCurve(QPointF start, std::initializer_list<CurveTo> segments);

// The crown of a hat: a straight side up from the band, a domed top, a straight side down.
QPainterPath hatCrown(QPointF bottomLeft, QPointF topLeft, CurveTo dome, QPointF bottomRight);

}  // namespace gw::art
