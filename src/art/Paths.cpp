// SPDX-License-Identifier: GPL-3.0-or-later
// Each helper makes the same path calls a drawing would spell out by hand, so a picture looks
// the same whichever way its outline is written.
#include "art/Paths.h"

#include <cmath>
#include <numbers>

namespace gw::art {

void addPolyline(QPainterPath& path, std::initializer_list<QPointF> points) {
    bool first = true;
    for (const QPointF& pt : points) {
        if (first)
            path.moveTo(pt);
        else
            path.lineTo(pt);
        first = false;
    }
}

QPainterPath polygon(std::initializer_list<QPointF> corners) {
    QPainterPath path;
    addPolyline(path, corners);
    path.closeSubpath();
    return path;
}

QPainterPath circle(QPointF centre, qreal radius) {
    QPainterPath path;
    path.addEllipse(centre, radius, radius);
    return path;
}

QPainterPath roundedRect(const QRectF& rect, qreal radius) {
    QPainterPath path;
    path.addRoundedRect(rect, radius, radius);
    return path;
}

QPainterPath star(QPointF centre, int tips, qreal outer, qreal inner, qreal firstTip) {
    QPainterPath path;
    for (int i = 0; i < tips * 2; ++i) {
        const qreal a = firstTip + std::numbers::pi * i / tips;
        const qreal r = (i % 2 == 0) ? outer : inner;
        const QPointF pt(centre.x() + std::cos(a) * r, centre.y() + std::sin(a) * r);
        if (i == 0)
            path.moveTo(pt);
        else
            path.lineTo(pt);
    }
    path.closeSubpath();
    return path;
}

QPainterPath curve(QPointF start, std::initializer_list<CurveTo> segments) {
    QPainterPath path;
    path.moveTo(start);
    for (const CurveTo& s : segments) path.cubicTo(s.c1, s.c2, s.end);
    return path;
}

QPainterPath closedCurve(QPointF start, std::initializer_list<CurveTo> segments) {
    QPainterPath path = curve(start, segments);
    path.closeSubpath();
    return path;
}

QPainterPath hatCrown(QPointF bottomLeft, QPointF topLeft, CurveTo dome, QPointF bottomRight) {
    QPainterPath path;
    path.moveTo(bottomLeft);
    path.lineTo(topLeft);
    path.cubicTo(dome.c1, dome.c2, dome.end);
    path.lineTo(bottomRight);
    path.closeSubpath();
    return path;
}

}  // namespace gw::art
