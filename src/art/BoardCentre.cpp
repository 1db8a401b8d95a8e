// SPDX-License-Identifier: GPL-3.0-or-later
// The board centre: a teal frame with a gold line, a map of the city (river, mountain park,
// street grid, metro line), a skyline along the bottom and a cartouche with the titles.
#include "art/BoardCentre.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

constexpr QSizeF kSize(442, 439);

void paintMap(QPainter& p, const QRectF& map) {
    p.save();
    p.setClipRect(map);
    p.fillRect(map, colour::cream);
    // The street grid, turned a little as the city's streets are.
    p.save();
    p.translate(map.center());
    p.rotate(-12);
    p.setPen(pen(colour::withAlpha(colour::creamShade.darker(108), 200), 3));
    for (int i = -12; i <= 12; ++i) {
        p.drawLine(QPointF(i * 26, -320), QPointF(i * 26, 320));
        p.drawLine(QPointF(-320, i * 26), QPointF(320, i * 26));
    }
    p.setPen(pen(colour::withAlpha(colour::gold, 110), 5));
    p.drawLine(QPointF(-320, -52), QPointF(320, -52));
    p.drawLine(QPointF(78, -320), QPointF(78, 320));
    p.restore();
    // The mountain park and a smaller park.
    QRadialGradient hill(QPointF(map.left() + 96, map.top() + 96), 80);
    hill.setColorAt(0, colour::park.darker(105));
    hill.setColorAt(1, colour::park.lighter(112));
    p.setPen(pen(colour::withAlpha(colour::moneyPlus, 120), 1));
    p.setBrush(hill);
    p.drawEllipse(QPointF(map.left() + 92, map.top() + 98), 66, 54);
    p.setPen(pen(colour::withAlpha(colour::moneyPlus, 90), 1));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(map.left() + 92, map.top() + 98), 44, 34);
    p.drawEllipse(QPointF(map.left() + 92, map.top() + 98), 22, 16);
    p.setBrush(colour::withAlpha(colour::park, 220));
    p.setPen(pen(colour::withAlpha(colour::moneyPlus, 120), 1));
    p.drawRoundedRect(QRectF(map.right() - 112, map.top() + 40, 64, 40), 14, 14);
    // The river sweeps along the south-east with an island.
    QPainterPath river;
    river.moveTo(map.left() - 10, map.bottom() - 40);
    river.cubicTo(map.left() + 120, map.bottom() - 110, map.left() + 250, map.bottom() - 20,
                  map.right() + 10, map.bottom() - 150);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(colour::water.darker(112), 40));
    p.drawPath(river);
    p.setPen(pen(colour::water, 36));
    p.drawPath(river);
    p.setPen(pen(colour::withAlpha(Qt::white, 90), 1.5));
    p.drawPath(river.translated(0, -6));
    p.setPen(pen(colour::moneyPlus.lighter(150), 1));
    p.setBrush(colour::park);
    p.drawEllipse(QPointF(map.left() + 300, map.bottom() - 86), 22, 8);
    // The metro line with its stations.
    QPainterPath metro;
    metro.moveTo(map.left() + 30, map.top() + 200);
    metro.cubicTo(map.left() + 150, map.top() + 150, map.left() + 250, map.top() + 240,
                  map.right() - 30, map.top() + 150);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(colour::withAlpha(colour::metroBand.darker(150), 170), 3));
    p.drawPath(metro);
    p.setBrush(colour::paper);
    p.setPen(pen(colour::metroBand.darker(170), 1.5));
    for (qreal t : {0.08, 0.36, 0.64, 0.92}) p.drawEllipse(metro.pointAtPercent(t), 4, 4);
    p.restore();
}

}  // namespace

TextBoxes paintBoardCentre(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kSize, false);
    const QRectF whole(0, 0, kSize.width(), kSize.height());
    p.fillRect(whole, colour::teal);
    const QRectF goldLine = whole.adjusted(6, 6, -6, -6);
    p.setPen(pen(colour::gold, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(goldLine);
    const QRectF map = whole.adjusted(11, 11, -11, -11);
    paintMap(p, map);
    // The skyline stands on the river's far bank at the bottom.
    QLinearGradient ground(0, map.bottom() - 70, 0, map.bottom());
    ground.setColorAt(0, colour::withAlpha(colour::cream, 0));
    ground.setColorAt(1, colour::withAlpha(colour::creamShade, 255));
    p.fillRect(QRectF(map.left(), map.bottom() - 70, map.width(), 70), ground);
    paintSkyline(p, QRectF(map.left(), map.bottom() - 62, map.width(), 62),
                 colour::withAlpha(colour::teal, 215));
    paintEmblem(p, QRectF(map.right() - 62, map.bottom() - 136, 52, 52), Emblem::CompassRose);

    // The cartouche with the titles.
    const QRectF card(56, 150, 330, 118);
    p.setPen(Qt::NoPen);
    p.setBrush(colour::withAlpha(colour::ink, 45));
    p.drawRoundedRect(card.translated(3, 4), 10, 10);
    p.setBrush(colour::cream.lighter(104));
    p.setPen(pen(colour::teal, 3));
    p.drawRoundedRect(card, 10, 10);
    p.setPen(pen(colour::gold, 1.2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(card.adjusted(6, 6, -6, -6), 6, 6);
    drawText(out, p, QRectF(card.left() + 14, card.top() + 12, card.width() - 28, 62),
             QStringLiteral("Gildenway"),
             TextStyle{Face::Title, 56, colour::teal, Qt::AlignCenter, 1, 20});
    paintGoldRule(p, QPointF(card.left() + 40, card.top() + 80),
                  QPointF(card.right() - 40, card.top() + 80));
    drawText(out, p, QRectF(card.left() + 20, card.top() + 84, card.width() - 40, 24),
             QStringLiteral("KESTROVIA"),
             TextStyle{Face::Caption, 17, colour::goldDeep, Qt::AlignCenter, 1, 10, 6});
    return out;
}

}  // namespace gw::art
