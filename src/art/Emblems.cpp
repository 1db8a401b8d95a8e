// SPDX-License-Identifier: GPL-3.0-or-later
// The emblems. Outlines are about one logical pixel thick at small sizes and grow slowly with
// the emblem so that large ones on cards do not look spidery.
#include "art/Emblems.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>
#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

#include "art/Design.h"
#include "art/Palette.h"
#include "art/Paths.h"

namespace gw::art {

namespace {

constexpr QSizeF kSquare(100, 100);

qreal outline(const DesignSpace& ds) {
    return ds.px(std::clamp(ds.scale() * 100 / 45, 0.9, 2.4));
}

const QColor kMetroBody{0x3E, 0x55, 0x9C};
const QColor kSteel{0xB8, 0xBE, 0xC2};
const QColor kArrowRed{0xC8, 0x4B, 0x31};
const QColor kPoliceBlue{0x23, 0x33, 0x5C};
const QColor kGlass{0xCF, 0xE6, 0xEA};

// Each emblem below draws in the design square; w is the ink outline's width there.

void paintTrainFront(QPainter& p, qreal w) {
    p.setPen(inkPen(w));
    // Rails under the car.
    p.drawLine(QPointF(14, 94), QPointF(86, 94));
    p.drawLine(QPointF(30, 84), QPointF(24, 94));
    p.drawLine(QPointF(70, 84), QPointF(76, 94));
    const QRectF body(20, 8, 60, 78);
    p.setBrush(shadedBrush(kMetroBody, body, 150, 110));
    p.drawRoundedRect(body, 14, 14);
    p.setBrush(kGlass);
    p.drawRoundedRect(QRectF(28, 24, 44, 26), 5, 5);
    p.setBrush(colour::goldLight);
    p.drawRoundedRect(QRectF(38, 12, 24, 8), 2, 2);
    p.setBrush(colour::goldLight);
    p.drawEllipse(QPointF(33, 66), 6, 6);
    p.drawEllipse(QPointF(67, 66), 6, 6);
    p.setBrush(colour::ink);
    p.drawRect(QRectF(42, 62, 16, 8));
}

void paintBulb(QPainter& p, qreal w) {
    p.setPen(pen(colour::gold, w));
    for (int i = 0; i < 5; ++i) {
        const qreal a = std::numbers::pi * (1.0 + 0.25 * i);
        const QPointF c(50, 38);
        p.drawLine(c + QPointF(std::cos(a) * 36, std::sin(a) * 36),
                   c + QPointF(std::cos(a) * 45, std::sin(a) * 45));
    }
    const QPainterPath glass = closedCurve({40, 66}, {{{38, 56}, {24, 52}, {24, 38}},
                                                      {{24, 22}, {36, 12}, {50, 12}},
                                                      {{64, 12}, {76, 22}, {76, 38}},
                                                      {{76, 52}, {62, 56}, {60, 66}}});
    QRadialGradient g(QPointF(44, 32), 34);
    g.setColorAt(0, QColor(0xFF, 0xF8, 0xD8));
    g.setColorAt(1, colour::goldLight);
    p.setPen(inkPen(w));
    p.setBrush(g);
    p.drawPath(glass);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(colour::goldDeep, w));
    QPainterPath filament;
    addPolyline(filament, {{43, 64}, {44, 44}, {48, 38}, {52, 44}, {56, 38}, {57, 64}});
    p.drawPath(filament);
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(kSteel, QRectF(40, 66, 20, 20)));
    p.drawRoundedRect(QRectF(39, 66, 22, 18), 3, 3);
    p.drawLine(QPointF(39, 72), QPointF(61, 72));
    p.drawLine(QPointF(39, 78), QPointF(61, 78));
    p.setBrush(colour::ink);
    p.drawRoundedRect(QRectF(45, 84, 10, 7), 3, 3);
}

void paintTower(QPainter& p, const DesignSpace& ds, qreal w) {
    p.setPen(inkPen(w));
    // Two low neighbours make it read as a tower in a city, not a pencil.
    p.setBrush(shadedBrush(colour::tealLight, QRectF(14, 56, 22, 36)));
    p.drawRect(QRectF(14, 58, 20, 34));
    p.drawRect(QRectF(66, 50, 20, 42));
    p.setBrush(shadedBrush(colour::teal, QRectF(36, 14, 28, 78), 150, 110));
    p.drawPath(polygon({{36, 92}, {40, 24}, {50, 14}, {60, 24}, {64, 92}}));
    p.drawLine(QPointF(50, 14), QPointF(50, 3));
    p.setBrush(colour::gold);
    p.drawEllipse(QPointF(50, 4), 2.5, 2.5);
    p.setPen(pen(colour::goldLight, ds.px(std::max(0.8, ds.scale() * 1.5))));
    for (int row = 0; row < 6; ++row) {
        const qreal y = 32 + row * 10;
        const qreal inset = (92 - y) / 68 * 4 + 1;
        p.drawLine(QPointF(36 + (92 - y) * 4 / 68 + inset + 2, y),
                   QPointF(64 - inset - 2 - (92 - y) * 4 / 68, y));
    }
    p.setPen(inkPen(w));
    p.setBrush(colour::creamShade);
    p.drawRect(QRectF(8, 90, 84, 5));
}

void paintCoinStack(QPainter& p, qreal w) {
    auto coin = [&](qreal cx, qreal top, qreal rx) {
        const qreal ry = rx * 0.32;
        const qreal thick = rx * 0.26;
        QPainterPath side;
        side.moveTo(cx - rx, top);
        side.lineTo(cx - rx, top + thick);
        side.arcTo(QRectF(cx - rx, top + thick - ry, 2 * rx, 2 * ry), 180, 180);
        side.lineTo(cx + rx, top);
        side.closeSubpath();
        p.setPen(inkPen(w));
        p.setBrush(colour::goldDeep.lighter(115));
        p.drawPath(side);
        QLinearGradient g(cx - rx, top - ry, cx + rx, top + ry);
        g.setColorAt(0, colour::goldLight.lighter(110));
        g.setColorAt(1, colour::gold);
        p.setBrush(g);
        p.drawEllipse(QPointF(cx, top), rx, ry);
        p.setBrush(Qt::NoBrush);
        p.setPen(pen(colour::goldDeep, w * 0.8));
        p.drawEllipse(QPointF(cx, top), rx * 0.72, ry * 0.72);
    };
    for (int i = 0; i < 5; ++i) coin(38, 82 - i * 9, 26);
    for (int i = 0; i < 3; ++i) coin(72, 86 - i * 9, 20);
}

void paintGoArrow(QPainter& p, qreal w) {
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(kArrowRed, QRectF(6, 18, 88, 64)));
    p.drawPath(polygon({{6, 50}, {40, 18}, {40, 36}, {94, 36}, {94, 64}, {40, 64}, {40, 82}}));
}

void paintJailBars(QPainter& p, qreal w) {
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(colour::creamShade, QRectF(8, 8, 84, 84), 105, 120));
    p.drawRoundedRect(QRectF(8, 8, 84, 84), 6, 6);
    p.setBrush(QColor(0x3B, 0x47, 0x4B));
    p.drawRect(QRectF(18, 18, 64, 64));
    p.setBrush(shadedBrush(kSteel, QRectF(18, 18, 64, 64), 120, 130));
    for (int i = 0; i < 5; ++i) p.drawRect(QRectF(22 + i * 12.5, 18, 5, 64));
    p.drawRect(QRectF(18, 44, 64, 6));
}

void paintStadiumArch(QPainter& p, qreal w) {
    // The city's stadium: an oval bowl with a leaning tower holding its roof by cables.
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(colour::teal, QRectF(10, 56, 84, 36), 140, 110));
    p.drawEllipse(QRectF(14, 58, 80, 34));
    p.setBrush(colour::creamShade);
    p.drawEllipse(QRectF(24, 63, 60, 22));
    p.setBrush(colour::park);
    p.drawEllipse(QRectF(34, 67, 40, 14));
    p.setBrush(shadedBrush(colour::cream, QRectF(10, 8, 36, 72), 105, 118));
    p.drawPath(polygon({{10, 80}, {24, 80}, {46, 14}, {38, 8}}));
    p.setPen(pen(colour::ink, w * 0.6));
    for (int i = 0; i < 5; ++i) {
        const qreal t = 0.18 + i * 0.09;
        const QPointF top(38 + (10 - 38) * (1 - t) + 4, 8 + 72 * (1 - t) - 2);
        p.drawLine(top, QPointF(46 + i * 9, 62 + (i == 2 ? -2 : 0)));
    }
    p.setPen(inkPen(w));
    p.setBrush(colour::gold);
    p.drawRect(QRectF(33, 20, 8, 4));
}

void paintPoliceCap(QPainter& p, qreal w) {
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(kPoliceBlue, QRectF(10, 20, 80, 42), 170, 110));
    p.drawPath(hatCrown({24, 62}, {10, 34}, {{10, 20}, {90, 20}, {90, 34}}, {76, 62}));
    p.setBrush(colour::ink);
    p.drawRect(QRectF(24, 56, 52, 10));
    QPainterPath visor;
    visor.moveTo(24, 66);
    visor.lineTo(76, 66);
    visor.cubicTo(72, 80, 28, 80, 24, 66);
    p.setBrush(QColor(0x1A, 0x1A, 0x1E));
    p.drawPath(visor);
    // The badge: a gold shield.
    QPainterPath shield;
    shield.moveTo(50, 28);
    shield.lineTo(61, 32);
    shield.cubicTo(61, 44, 56, 50, 50, 54);
    shield.cubicTo(44, 50, 39, 44, 39, 32);
    shield.closeSubpath();
    p.setBrush(shadedBrush(colour::gold, QRectF(39, 28, 22, 26)));
    p.drawPath(shield);
}

void paintCompassRose(QPainter& p, qreal w) {
    p.setPen(pen(colour::goldDeep, w * 0.7));
    p.setBrush(Qt::NoBrush);
    p.drawEllipse(QPointF(50, 50), 30, 30);
    for (int i = 0; i < 8; ++i) {
        const qreal a = std::numbers::pi / 4 * i - std::numbers::pi / 2;
        const qreal r = (i % 2 == 0) ? 48 : 30;
        const QPointF tip(50 + std::cos(a) * r, 50 + std::sin(a) * r);
        const QPointF l(50 + std::cos(a - 0.5) * 9, 50 + std::sin(a - 0.5) * 9);
        const QPointF rt(50 + std::cos(a + 0.5) * 9, 50 + std::sin(a + 0.5) * 9);
        p.setBrush(i == 0 ? colour::moneyMinus : colour::gold);
        p.drawPath(polygon({{50, 50}, l, tip}));
        p.setBrush(i == 0 ? colour::moneyMinus.darker(130) : colour::goldDeep);
        p.drawPath(polygon({{50, 50}, rt, tip}));
    }
}

}  // namespace

void paintEmblem(QPainter& p, const QRectF& rect, Emblem emblem) {
    const DesignSpace ds(p, rect, kSquare);
    const qreal w = outline(ds);
    switch (emblem) {
        case Emblem::TrainFront:
            paintTrainFront(p, w);
            break;
        case Emblem::Bulb:
            paintBulb(p, w);
            break;
        case Emblem::Tower:
            paintTower(p, ds, w);
            break;
        case Emblem::CoinStack:
            paintCoinStack(p, w);
            break;
        case Emblem::GoArrow:
            paintGoArrow(p, w);
            break;
        case Emblem::JailBars:
            paintJailBars(p, w);
            break;
        case Emblem::StadiumArch:
            paintStadiumArch(p, w);
            break;
        case Emblem::PoliceCap:
            paintPoliceCap(p, w);
            break;
        case Emblem::CompassRose:
            paintCompassRose(p, w);
            break;
    }
}

TextBox paintJflSeal(QPainter& p, const QRectF& rect) {
    const DesignSpace ds(p, rect, kSquare);
    const qreal w = outline(ds);
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(colour::gold, QRectF(2, 2, 96, 96), 125, 110));
    p.drawPath(star({50, 50}, 28, 48, 43));
    p.setBrush(shadedBrush(colour::teal, QRectF(12, 12, 76, 76), 130, 115));
    p.drawEllipse(QPointF(50, 50), 38, 38);
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(colour::goldLight, w));
    p.drawEllipse(QPointF(50, 50), 33, 33);
    TextStyle st{Face::Title, 30, colour::goldLight, Qt::AlignCenter, 1, 7};
    return drawText(p, QRectF(20, 30, 60, 40), QStringLiteral("JFL"), st);
}

void paintSkyline(QPainter& p, const QRectF& rect, const QColor& colour) {
    // Widths and heights as shares of the rectangle; a few roofs get a shape of their own.
    struct Building {
        qreal width;
        qreal height;
        int roof;  // 0 flat, 1 spire, 2 dome, 3 stepped, 4 leaning mast
    };
    static constexpr std::array<Building, 17> kCity = {{{0.05, 0.30, 0},
                                                        {0.04, 0.45, 3},
                                                        {0.06, 0.38, 0},
                                                        {0.05, 0.70, 1},
                                                        {0.07, 0.42, 2},
                                                        {0.04, 0.55, 0},
                                                        {0.06, 0.85, 1},
                                                        {0.05, 0.60, 3},
                                                        {0.08, 0.35, 4},
                                                        {0.05, 0.50, 0},
                                                        {0.06, 0.75, 3},
                                                        {0.04, 0.40, 0},
                                                        {0.07, 0.52, 2},
                                                        {0.05, 0.66, 1},
                                                        {0.06, 0.44, 0},
                                                        {0.07, 0.32, 3},
                                                        {0.10, 0.24, 0}}};
    qreal total = 0;
    for (const auto& b : kCity) total += b.width;
    QPainterPath city;
    qreal x = rect.left();
    const qreal base = rect.bottom();
    for (const auto& b : kCity) {
        const qreal bw = b.width / total * rect.width();
        const qreal top = base - b.height * rect.height();
        QPainterPath one;
        one.addRect(QRectF(x, top, bw + 0.5, base - top));
        switch (b.roof) {
            case 1:
                one = one.united(polygon({{x + bw * 0.3, top},
                                          {x + bw * 0.5, top - rect.height() * 0.12},
                                          {x + bw * 0.7, top}}));
                break;
            case 2: {
                QPainterPath dome;
                dome.addEllipse(QRectF(x + bw * 0.1, top - bw * 0.4, bw * 0.8, bw * 0.8));
                one = one.united(dome);
                break;
            }
            case 3: {
                QPainterPath step;
                step.addRect(QRectF(x + bw * 0.2, top - rect.height() * 0.08, bw * 0.6,
                                    rect.height() * 0.08 + 1));
                one = one.united(step);
                break;
            }
            case 4:
                one = one.united(polygon({{x + bw * 0.6, top},
                                          {x + bw * 0.15, top - rect.height() * 0.4},
                                          {x + bw * 0.3, top - rect.height() * 0.42},
                                          {x + bw * 0.85, top}}));
                break;
            default:
                break;
        }
        city = city.united(one);
        x += bw;
    }
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    p.drawPath(city);
    p.restore();
}

void paintConfetti(QPainter& p, const QRectF& rect, int count) {
    static const std::array<QColor, 6> kColours = {colour::gold,      colour::moneyMinus,
                                                   colour::teal,      colour::districtBand(8),
                                                   colour::moneyPlus, colour::districtBand(4)};
    p.save();
    p.setPen(Qt::NoPen);
    // A small fixed generator: the same scatter on every run and at every ratio.
    unsigned state = 12345;
    auto next = [&state] {
        state = state * 1103515245u + 12345u;
        return static_cast<qreal>((state >> 16) & 0x7FFF) / 32767.0;
    };
    for (int i = 0; i < count; ++i) {
        const QPointF c(rect.left() + next() * rect.width(), rect.top() + next() * rect.height());
        const qreal angle = next() * 180;
        const QColor col = kColours[static_cast<std::size_t>(i) % kColours.size()];
        const qreal size = 3 + next() * 4;
        p.save();
        p.translate(c);
        p.rotate(angle);
        p.setBrush(colour::withAlpha(col, 200));
        if (i % 3 == 0)
            p.drawEllipse(QPointF(0, 0), size * 0.45, size * 0.45);
        else
            p.drawRect(QRectF(-size / 2, -size / 4, size, size / 2));
        p.restore();
    }
    p.restore();
}

}  // namespace gw::art
