// SPDX-License-Identifier: GPL-3.0-or-later
// Frames, row stripes and captions of the property, trade, JFL and tax cards.
#include "art/CardParts.h"

#include <QPainter>

#include "art/Design.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

void paintFramedStock(QPainter& p, QSizeF card, qreal radius, qreal frameInset, qreal frameWidth,
                      qreal frameRadius) {
    const QRectF whole(QPointF(0, 0), card);
    paintCardStock(p, whole, radius);
    p.setPen(pen(colour::teal, frameWidth));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(whole.adjusted(frameInset, frameInset, -frameInset, -frameInset), frameRadius,
                      frameRadius);
}

void paintCorners(QPainter& p, const QRectF& r) {
    p.setPen(pen(colour::gold, 1.4));
    const qreal l = 12;
    p.drawLine(r.topLeft(), r.topLeft() + QPointF(l, 0));
    p.drawLine(r.topLeft(), r.topLeft() + QPointF(0, l));
    p.drawLine(r.topRight(), r.topRight() + QPointF(-l, 0));
    p.drawLine(r.topRight(), r.topRight() + QPointF(0, l));
    p.drawLine(r.bottomLeft(), r.bottomLeft() + QPointF(l, 0));
    p.drawLine(r.bottomLeft(), r.bottomLeft() + QPointF(0, -l));
    p.drawLine(r.bottomRight(), r.bottomRight() + QPointF(-l, 0));
    p.drawLine(r.bottomRight(), r.bottomRight() + QPointF(0, -l));
}

}  // namespace

void paintFramedCard(QPainter& p, QSizeF card) {
    paintFramedStock(p, card, 10, 5, 1.5, 7);
}

void paintNoticeCard(QPainter& p, QSizeF card) {
    paintFramedStock(p, card, 12, 8, 2, 8);
    paintCorners(p, QRectF(QPointF(0, 0), card).adjusted(14, 14, -14, -14));
}

void paintRowStripe(QPainter& p, const QRectF& row) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour::withAlpha(colour::creamShade, 140));
    p.drawRoundedRect(row, 2, 2);
}

TextStyle cardCaption(Qt::Alignment align) {
    return {Face::Caption, 11, colour::ink, align, 1, 8};
}

}  // namespace gw::art
