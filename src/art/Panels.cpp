// SPDX-License-Identifier: GPL-3.0-or-later
// Main window panels. They are drawn at their design sizes and stretched to the rectangle
// given, since the program shows some of them at a slightly different size.
#include "art/Panels.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>

#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

// The panels' design sizes.
constexpr QSizeF kTurnPanel(182, 120);
constexpr QSizeF kMessagePanel(189, 196);
constexpr QSizeF kPlayersPanel(182, 191);
constexpr QSizeF kEmblemPanel(182, 120);

TextStyle heading() {
    return {Face::Caption, 10, colour::teal, Qt::AlignCenter, 1, 8, 1.2};
}

void paintHeading(TextBoxes& out, QPainter& p, const QRectF& box, const QString& text) {
    const TextBox t = drawText(p, box, text, heading());
    // Gold rules run out from the heading on both sides.
    const qreal y = box.center().y();
    const QTransform inv = p.worldTransform().inverted();
    const QRectF b = inv.mapRect(t.bounds);
    if (b.left() - 6 > box.left() + 4) paintGoldRule(p, {box.left() + 4, y}, {b.left() - 6, y});
    if (b.right() + 6 < box.right() - 4) paintGoldRule(p, {b.right() + 6, y}, {box.right() - 4, y});
    out.push_back(t);
}

// A panel filling its design size, with a heading across the top.
void paintHeadedPanel(TextBoxes& out, QPainter& p, QSizeF size, qreal headingTop,
                      const QString& title) {
    paintPanel(p, QRectF(QPointF(0, 0), size));
    paintHeading(out, p, QRectF(10, headingTop, size.width() - 20, 14), title);
}

void paintWell(QPainter& p, const QRectF& r) {
    p.save();
    p.setPen(pen(colour::creamShade.darker(112), 1));
    p.setBrush(colour::paper);
    p.drawRoundedRect(r, 3, 3);
    p.restore();
}

}  // namespace

TextBoxes paintTurnPanel(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kTurnPanel, false);
    paintHeadedPanel(out, p, kTurnPanel, 9, QStringLiteral("NOW PLAYING"));
    p.setPen(Qt::NoPen);
    p.setBrush(colour::withAlpha(colour::gold, 45));
    p.drawEllipse(QPointF(91, 66), 34, 30);
    return out;
}

TextBoxes paintMessagePanel(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kMessagePanel, false);
    paintHeadedPanel(out, p, kMessagePanel, 9, QStringLiteral("NEWS"));
    // The well holds the message line, which may run to several lines.
    paintWell(p, QRectF(12, 24, 165, 124));
    paintSkyline(p, QRectF(12, 150, 165, 36), colour::withAlpha(colour::teal, 38));
    return out;
}

TextBoxes paintPlayersPanel(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kPlayersPanel, false);
    paintHeadedPanel(out, p, kPlayersPanel, 10, QStringLiteral("PLAYERS"));
    for (int i = 0; i < 6; ++i) {
        const QRectF row(9, 32 + 25 * i, 164, 24);
        p.setPen(Qt::NoPen);
        p.setBrush(i % 2 == 0 ? colour::withAlpha(colour::creamShade, 150)
                              : colour::withAlpha(colour::paper, 160));
        p.drawRoundedRect(row, 3, 3);
        p.setBrush(colour::withAlpha(colour::gold, 60));
        p.drawEllipse(QPointF(38, row.center().y()), 11, 11);
    }
    return out;
}

TextBoxes paintEmblemPanel(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kEmblemPanel, false);
    paintPanel(p, QRectF(QPointF(0, 0), kEmblemPanel));
    QLinearGradient sky(0, 8, 0, 112);
    sky.setColorAt(0, colour::cream.lighter(104));
    sky.setColorAt(1, colour::withAlpha(colour::goldLight, 90));
    p.setPen(Qt::NoPen);
    p.setBrush(sky);
    p.drawRoundedRect(QRectF(8, 8, 166, 104), 3, 3);
    p.setBrush(colour::withAlpha(colour::gold, 90));
    p.drawEllipse(QPointF(128, 52), 14, 14);
    paintSkyline(p, QRectF(10, 44, 162, 46), colour::withAlpha(colour::teal, 200));
    p.setBrush(colour::tealDeep);
    p.drawRect(QRectF(10, 88, 162, 22));
    drawText(out, p, QRectF(12, 90, 158, 18), QStringLiteral("KESTROVIA"),
             TextStyle{Face::Caption, 11, colour::goldLight, Qt::AlignCenter, 1, 8, 3});
    return out;
}

void paintTurnBar(QPainter& p, const QRectF& rect) {
    p.save();
    const QRectF r = rect.adjusted(0.5, 0.5, -0.5, -0.5);
    const qreal radius = r.height() / 2;
    QLinearGradient g(r.topLeft(), r.bottomLeft());
    g.setColorAt(0, colour::goldLight.lighter(108));
    g.setColorAt(0.5, colour::goldLight);
    g.setColorAt(1, colour::gold);
    p.setBrush(g);
    p.setPen(pen(colour::goldDeep, 1));
    p.drawRoundedRect(r, radius, radius);
    p.setPen(pen(colour::withAlpha(Qt::white, 120), 1));
    p.drawLine(QPointF(r.left() + radius, r.top() + 2), QPointF(r.right() - radius, r.top() + 2));
    p.restore();
}

}  // namespace gw::art
