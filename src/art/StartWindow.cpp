// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window. Its controls lie over the background at fixed places, so the
// background prints the labels and frames around them and leaves their own space plain.
#include "art/StartWindow.h"

#include <QPainter>
#include <QPainterPath>

#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

constexpr QSizeF kBackgroundSize(600, 400);

void paintWell(QPainter& p, const QRectF& r, qreal radius = 4) {
    p.setPen(pen(colour::creamShade.darker(118), 1));
    p.setBrush(colour::withAlpha(colour::paper, 230));
    p.drawRoundedRect(r, radius, radius);
}

void paintComputerIcon(QPainter& p, const QRectF& r) {
    DesignSpace ds(p, r, QSizeF(100, 100));
    p.setPen(inkPen(ds.px(1.2)));
    p.setBrush(shadedBrush(colour::teal, QRectF(8, 12, 84, 60), 140, 110));
    p.drawRoundedRect(QRectF(8, 12, 84, 58), 6, 6);
    p.setBrush(QColor(0xCF, 0xE6, 0xEA));
    p.drawRoundedRect(QRectF(16, 20, 68, 42), 3, 3);
    p.setBrush(colour::creamShade);
    p.drawRect(QRectF(42, 70, 16, 12));
    p.drawRoundedRect(QRectF(24, 82, 52, 8), 3, 3);
    // A die on the screen: this player throws for itself.
    p.setBrush(colour::ivory);
    p.drawRoundedRect(QRectF(38, 28, 24, 24), 4, 4);
    p.setBrush(colour::ink);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(44, 34), 2.6, 2.6);
    p.drawEllipse(QPointF(50, 40), 2.6, 2.6);
    p.drawEllipse(QPointF(56, 46), 2.6, 2.6);
}

void paintHumanIcon(QPainter& p, const QRectF& r) {
    DesignSpace ds(p, r, QSizeF(100, 100));
    p.setPen(inkPen(ds.px(1.2)));
    p.setBrush(shadedBrush(colour::gold, QRectF(14, 50, 72, 44), 130, 110));
    QPainterPath shoulders;
    shoulders.moveTo(14, 94);
    shoulders.cubicTo(14, 62, 30, 54, 50, 54);
    shoulders.cubicTo(70, 54, 86, 62, 86, 94);
    shoulders.closeSubpath();
    p.drawPath(shoulders);
    p.setBrush(shadedBrush(QColor(0xF1, 0xC2, 0x9A), QRectF(30, 8, 40, 42), 115, 108));
    p.drawEllipse(QPointF(50, 30), 19, 21);
    p.setBrush(colour::ink);
    p.setPen(Qt::NoPen);
    p.drawEllipse(QPointF(43, 28), 2.4, 2.4);
    p.drawEllipse(QPointF(57, 28), 2.4, 2.4);
    p.setPen(inkPen(ds.px(1.1)));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(42, 30, 16, 12), 200 * 16, 140 * 16);
}

void paintPlayerIcon(QPainter& p, const QRectF& r, PlayerType type) {
    if (type == PlayerType::Computer)
        paintComputerIcon(p, r);
    else
        paintHumanIcon(p, r);
}

}  // namespace

TextBoxes paintStartBackground(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, kBackgroundSize, false);
    paintWindowPaper(p, kBackgroundSize);
    // The title over the city.
    paintSkyline(p, QRectF(6, 58, 588, 72), colour::withAlpha(colour::teal, 40));
    drawText(out, p, QRectF(120, 14, 360, 56), QStringLiteral("Gildenway"),
             TextStyle{Face::Title, 48, colour::teal, Qt::AlignCenter, 1, 20});
    paintGoldRule(p, QPointF(170, 78), QPointF(430, 78));
    drawText(out, p, QRectF(150, 84, 300, 20), QStringLiteral("A CITY GAME OF KESTROVIA"),
             TextStyle{Face::Caption, 13, colour::goldDeep, Qt::AlignCenter, 1, 9, 2});
    // One line of help at the top: the foot of the window is where Add Player comes up.
    drawText(out, p, QRectF(40, 126, 364, 20),
             QStringLiteral("Add two to six players, each with a token"),
             TextStyle{Face::Caption, 13, colour::inkSoft, Qt::AlignLeft | Qt::AlignVCenter, 1, 9});
    // Name entry, with its label.
    drawText(out, p, QRectF(40, 158, 98, 25), QStringLiteral("Name"),
             TextStyle{Face::Caption, 13, colour::ink, Qt::AlignRight | Qt::AlignVCenter, 1, 9});
    paintWell(p, QRectF(142, 156, 173, 29));
    // Player type wells.
    paintWell(p, QRectF(46, 198, 158, 54), 6);
    paintWell(p, QRectF(206, 198, 158, 54), 6);
    // The token shelf: two rows of seven.
    p.setPen(pen(colour::creamShade.darker(112), 1));
    p.setBrush(colour::withAlpha(colour::creamShade, 150));
    p.drawRoundedRect(QRectF(5, 251, 398, 116), 6, 6);
    p.setPen(Qt::NoPen);
    for (int row = 0; row < 2; ++row) {
        for (int i = 0; i < 7; ++i) {
            p.setBrush(colour::withAlpha(colour::paper, 200));
            p.drawEllipse(QPointF(8 + 56 * i + 28, 253 + 56 * row + 28), 25, 25);
        }
    }
    // The list of players.
    p.setPen(pen(colour::teal, 2));
    p.setBrush(colour::paper);
    p.drawRoundedRect(QRectF(410, 152, 156, 190), 6, 6);
    p.setPen(Qt::NoPen);
    p.setBrush(colour::teal);
    p.drawRoundedRect(QRectF(410, 152, 156, 26), 6, 6);
    p.drawRect(QRectF(410, 166, 156, 12));
    drawText(out, p, QRectF(416, 154, 144, 22), QStringLiteral("PLAYERS"),
             TextStyle{Face::Caption, 12, colour::goldLight, Qt::AlignCenter, 1, 9, 2});
    // In the free corner at the foot: Add Player and Let's Start come up in the middle and
    // on the right of it.
    paintEmblem(p, QRectF(16, 369, 26, 26), Emblem::CompassRose);
    p.setPen(pen(colour::creamShade, 1));
    for (int i = 1; i < 6; ++i)
        p.drawLine(QPointF(418, 184 + 25.3 * i), QPointF(558, 184 + 25.3 * i));
    return out;
}

TextBoxes paintPlayerType(QPainter& p, const QRectF& rect, PlayerType type, bool large) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(154, 50), false);
    const QRectF r(1, 1, 152, 48);
    const QString label =
        type == PlayerType::Computer ? QStringLiteral("Computer") : QStringLiteral("Human");
    if (large) {
        // The switch to the other kind: a light, raised key with an empty ring where the chosen
        // one has its tick, so it reads as "not this one yet, click to take it".
        p.setPen(Qt::NoPen);
        p.setBrush(colour::withAlpha(colour::ink, 40));
        p.drawRoundedRect(r.adjusted(1, 2, -1, 0).translated(0, 1), 8, 8);
        p.setPen(pen(colour::creamShade.darker(135), 1));
        p.setBrush(shadedBrush(colour::paper, r, 104, 108));
        p.drawRoundedRect(r.adjusted(1, 1, -1, -2), 8, 8);
        p.setOpacity(0.7);
        paintPlayerIcon(p, QRectF(10, 10, 28, 28), type);
        p.setOpacity(1);
        drawText(out, p, QRectF(42, 6, 82, 36), label,
                 TextStyle{Face::Caption, 15, colour::inkSoft, Qt::AlignCenter, 1, 9});
        p.setPen(pen(colour::inkSoft, 1.6));
        p.setBrush(colour::cream);
        p.drawEllipse(QPointF(136, 24), 9, 9);
    } else {
        // The kind in force: a pressed-in teal key with a gold rim and a tick in a gold seal.
        p.setPen(pen(colour::gold, 2.5));
        p.setBrush(shadedBrush(colour::teal, r, 112, 130));
        p.drawRoundedRect(r.adjusted(1.5, 1.5, -1.5, -1.5), 8, 8);
        // The shadow inside the top edge is what makes it look pressed.
        p.setPen(pen(colour::withAlpha(colour::ink, 90), 2));
        p.setBrush(Qt::NoBrush);
        p.drawLine(QPointF(10, 5), QPointF(144, 5));
        p.setPen(Qt::NoPen);
        p.setBrush(colour::cream);
        p.drawEllipse(QPointF(25, 25), 16, 16);
        paintPlayerIcon(p, QRectF(12, 12, 26, 26), type);
        drawText(out, p, QRectF(42, 6, 82, 36), label,
                 TextStyle{Face::Title, 18, colour::cream, Qt::AlignCenter, 1, 10});
        p.setPen(pen(colour::goldDeep, 1));
        p.setBrush(colour::gold);
        p.drawEllipse(QPointF(136, 24), 11, 11);
        p.setPen(pen(colour::ink, 2.6));
        p.setBrush(Qt::NoBrush);
        QPainterPath tick;
        tick.moveTo(130.5, 24.5);
        tick.lineTo(134.5, 29);
        tick.lineTo(142, 19);
        p.drawPath(tick);
    }
    return out;
}

}  // namespace gw::art
