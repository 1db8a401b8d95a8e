// SPDX-License-Identifier: GPL-3.0-or-later
// Design space and the few shapes most pictures share (card stock, panels, gold rules).
#include "art/Design.h"

#include <QLinearGradient>
#include <QPainterPath>
#include <algorithm>

#include "art/Palette.h"
#include "art/Paths.h"

namespace gw::art {

DesignSpace::DesignSpace(QPainter& p, const QRectF& rect, QSizeF design, bool keepAspect) : p_(p) {
    p_.save();
    const qreal sx = rect.width() / design.width();
    const qreal sy = rect.height() / design.height();
    if (keepAspect) {
        scale_ = std::min(sx, sy);
        p_.translate(rect.center().x() - design.width() * scale_ / 2,
                     rect.center().y() - design.height() * scale_ / 2);
        p_.scale(scale_, scale_);
    } else {
        scale_ = std::min(sx, sy);
        p_.translate(rect.topLeft());
        p_.scale(sx, sy);
    }
}

DesignSpace::~DesignSpace() {
    p_.restore();
}

QPen pen(const QColor& colour, qreal width) {
    QPen p(colour, width);
    p.setJoinStyle(Qt::RoundJoin);
    p.setCapStyle(Qt::RoundCap);
    return p;
}

QPen inkPen(qreal width) {
    return pen(colour::ink, width);
}

QBrush shadedBrush(const QColor& colour, const QRectF& over, int lighter, int darker) {
    QLinearGradient g(over.topLeft(), over.bottomRight());
    g.setColorAt(0, colour.lighter(lighter));
    g.setColorAt(1, colour.darker(darker));
    return QBrush(g);
}

QBrush creamWash(const QRectF& over, int lighter) {
    QLinearGradient g(over.topLeft(), over.bottomLeft());
    g.setColorAt(0, colour::cream.lighter(lighter));
    g.setColorAt(1, colour::cream);
    return QBrush(g);
}

void paintFramedPlate(QPainter& p, const QRectF& rect, qreal radius, const QPen& edge,
                      const QBrush& fill, const QColor& hairline) {
    p.setPen(edge);
    p.setBrush(fill);
    p.drawRoundedRect(rect, radius, radius);
    p.setPen(pen(hairline, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(rect.adjusted(3, 3, -3, -3), radius - 2, radius - 2);
}

void paintCardStock(QPainter& p, const QRectF& rect, qreal radius) {
    p.save();
    const QRectF r = rect.adjusted(0.5, 0.5, -0.5, -0.5);
    p.setBrush(creamWash(r));
    p.setPen(pen(colour::ink, 1));
    p.drawRoundedRect(r, radius, radius);
    p.restore();
}

void paintPanel(QPainter& p, const QRectF& rect) {
    p.save();
    const QRectF outer = rect.adjusted(1, 1, -1, -1);
    p.setPen(pen(colour::tealDeep, 1));
    p.setBrush(colour::teal);
    p.drawRoundedRect(outer, 7, 7);
    const QRectF inner = outer.adjusted(4, 4, -4, -4);
    p.setBrush(creamWash(inner));
    p.setPen(pen(colour::gold, 1.2));
    p.drawRoundedRect(inner, 4, 4);
    p.restore();
}

void paintWindowPaper(QPainter& p, QSizeF size) {
    const QRectF whole(QPointF(0, 0), size);
    p.fillRect(whole, colour::teal);
    p.setPen(pen(colour::gold, 1.5));
    p.setBrush(creamWash(whole, 104));
    p.drawRoundedRect(whole.adjusted(4, 4, -4, -4), 8, 8);
}

void paintDiamond(QPainter& p, QPointF c, qreal size, const QColor& colour) {
    p.fillPath(polygon({{c.x(), c.y() - size},
                        {c.x() + size, c.y()},
                        {c.x(), c.y() + size},
                        {c.x() - size, c.y()}}),
               colour);
}

void paintGoldRule(QPainter& p, QPointF from, QPointF to) {
    p.save();
    p.setPen(pen(colour::gold, 1));
    p.drawLine(from, to);
    paintDiamond(p, from, 2.5, colour::gold);
    paintDiamond(p, to, 2.5, colour::gold);
    p.restore();
}

}  // namespace gw::art
