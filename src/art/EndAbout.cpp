// SPDX-License-Identifier: GPL-3.0-or-later
// The end and About windows. The team emblems are built from a few parts (face shape, hair,
// background colour, accessory) so each member gets a different one.
#include "art/EndAbout.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <QRadialGradient>
#include <array>
#include <cmath>
#include <numbers>

#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"
#include "art/Paths.h"

namespace gw::art {

namespace {

constexpr QSizeF kEndSize(600, 491);

void paintSunburst(QPainter& p, QPointF centre, qreal radius, const QColor& colour, int rays) {
    p.save();
    p.setPen(Qt::NoPen);
    p.setBrush(colour);
    for (int i = 0; i < rays; ++i) {
        const qreal a0 = 2 * std::numbers::pi * i / rays;
        const qreal a1 = a0 + std::numbers::pi / rays;
        p.drawPath(polygon({centre, centre + QPointF(std::cos(a0), std::sin(a0)) * radius,
                            centre + QPointF(std::cos(a1), std::sin(a1)) * radius}));
    }
    p.restore();
}

// A laurel branch curving up one side of centre: a stem with leaves laid along it.
void paintLaurel(QPainter& p, QPointF centre, qreal radius, bool left) {
    p.save();
    const qreal side = left ? -1 : 1;
    const qreal from = std::numbers::pi / 2 + side * 0.3;
    const qreal to = std::numbers::pi / 2 + side * 2.6;
    auto at = [&](qreal a, qreal r) { return centre + QPointF(std::cos(a), std::sin(a)) * r; };
    QPainterPath stem;
    constexpr int kSteps = 24;
    for (int i = 0; i <= kSteps; ++i) {
        const QPointF pt = at(from + (to - from) * i / kSteps, radius);
        if (i == 0)
            stem.moveTo(pt);
        else
            stem.lineTo(pt);
    }
    p.setBrush(Qt::NoBrush);
    p.setPen(pen(colour::goldDeep, 1.6));
    p.drawPath(stem);
    p.setPen(pen(colour::goldDeep, 0.8));
    constexpr int kLeaves = 9;
    for (int i = 0; i < kLeaves; ++i) {
        const qreal a = from + (to - from) * (i + 0.5) / kLeaves;
        const qreal tangent = a * 180 / std::numbers::pi + (left ? -90 : 90);
        for (int outer = 0; outer < 2; ++outer) {
            p.save();
            p.translate(at(a, radius + (outer ? 5 : -5)));
            p.rotate(tangent + (outer ? -25 : 25) * side);
            p.setBrush(shadedBrush(outer ? colour::gold : colour::goldLight, QRectF(-8, -3, 16, 6),
                                   115, 110));
            p.drawPath(curve({-8, 0}, {{{-3, -5}, {4, -4}, {8, 0}}, {{4, 4}, {-3, 5}, {-8, 0}}}));
            p.restore();
        }
    }
    p.restore();
}

}  // namespace

TextBoxes paintEndBackground(QPainter& p, const QRectF& rect, const QString& closingLine) {
    TextBoxes out;
    DesignSpace ds(p, rect, kEndSize, false);
    paintWindowPaper(p, kEndSize);
    paintSunburst(p, QPointF(312, 210), 330, colour::withAlpha(colour::goldLight, 45), 28);
    paintConfetti(p, QRectF(10, 10, 580, 150), 70);
    paintConfetti(p, QRectF(10, 250, 390, 160), 30);
    paintSkyline(p, QRectF(6, 420, 588, 64), colour::withAlpha(colour::teal, 70));
    drawText(out, p, QRectF(100, 22, 400, 64), QStringLiteral("Game Over"),
             TextStyle{Face::Title, 54, colour::teal, Qt::AlignCenter, 1, 20});
    // The ribbon behind the winner's line, across the window's middle.
    p.setPen(pen(colour::goldDeep, 1));
    p.setBrush(shadedBrush(colour::gold, QRectF(30, 92, 540, 44), 130, 105));
    p.drawPath(polygon({{30, 92}, {570, 92}, {556, 114}, {570, 136}, {30, 136}, {44, 114}}));
    p.setPen(Qt::NoPen);
    p.setBrush(colour::paper);
    p.drawRoundedRect(QRectF(58, 96, 484, 36), 3, 3);
    // The winner's podium and laurels.
    const QPointF podium(312, 208);
    p.setBrush(colour::withAlpha(colour::gold, 60));
    p.drawEllipse(podium, 64, 56);
    paintLaurel(p, podium, 58, true);
    paintLaurel(p, podium, 58, false);
    p.setPen(pen(colour::tealDeep, 1));
    p.setBrush(shadedBrush(colour::teal, QRectF(250, 248, 124, 40), 130, 110));
    p.drawRoundedRect(QRectF(250, 250, 124, 30), 4, 4);
    p.setBrush(colour::gold);
    p.drawRect(QRectF(250, 250, 124, 4));
    drawText(out, p, QRectF(256, 256, 112, 22), QStringLiteral("WINNER"),
             TextStyle{Face::Caption, 14, colour::goldLight, Qt::AlignCenter, 1, 9, 3});
    drawText(out, p, QRectF(40, 378, 520, 26), closingLine,
             TextStyle{Face::Title, 16, colour::inkSoft, Qt::AlignCenter, 1, 10});
    return out;
}

TextBoxes paintAboutBanner(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(708, 185), false);
    const QRectF r(0, 0, 708, 185);
    QLinearGradient sky(0, 0, 0, 185);
    sky.setColorAt(0, colour::teal.darker(115));
    sky.setColorAt(1, colour::teal.lighter(120));
    p.fillRect(r, sky);
    p.setPen(Qt::NoPen);
    p.setBrush(colour::withAlpha(colour::goldLight, 70));
    p.drawEllipse(QPointF(560, 62), 44, 44);
    p.setBrush(colour::withAlpha(colour::goldLight, 110));
    p.drawEllipse(QPointF(560, 62), 30, 30);
    paintSkyline(p, QRectF(330, 66, 372, 113), colour::tealDeep.darker(115));
    p.setPen(pen(colour::gold, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRect(r.adjusted(5, 5, -5, -5));
    drawText(out, p, QRectF(40, 24, 460, 80), QStringLiteral("Gildenway"),
             TextStyle{Face::Title, 70, colour::cream, Qt::AlignLeft | Qt::AlignVCenter, 1, 30});
    paintGoldRule(p, QPointF(46, 110), QPointF(380, 110));
    drawText(out, p, QRectF(46, 116, 420, 26), QStringLiteral("KESTROVIA"),
             TextStyle{Face::Caption, 20, colour::goldLight, Qt::AlignLeft | Qt::AlignVCenter, 1,
                       12, 8});
    return out;
}

void paintAboutPage(QPainter& p, const QRectF& rect) {
    paintPanel(p, rect);
    DesignSpace ds(p, rect, QSizeF(715, 830), false);
    paintSkyline(p, QRectF(8, 722, 699, 100), colour::withAlpha(colour::teal, 55));
    paintGoldRule(p, QPointF(120, 724), QPointF(595, 724));
}

void paintPortrait(QPainter& p, const QRectF& rect, int index) {
    static const std::array<QColor, kPortraitCount> kBacks = {
        colour::districtBand(1), colour::districtBand(2), colour::districtBand(4),
        colour::districtBand(8), colour::districtBand(6), colour::districtBand(7),
        colour::districtBand(5), colour::districtBand(3), colour::metroBand,
        colour::utilityBand};
    static const std::array<QColor, kPortraitCount> kSkins = {
        QColor(0xF2, 0xC9, 0xA5), QColor(0xC6, 0x8E, 0x62), QColor(0xE8, 0xB8, 0x8A),
        QColor(0x8D, 0x5A, 0x3B), QColor(0xF5, 0xD5, 0xB8), QColor(0xB0, 0x7A, 0x50),
        QColor(0xDE, 0xA8, 0x7E), QColor(0xA8, 0x6E, 0x48), QColor(0xF0, 0xC4, 0x9C),
        QColor(0x7A, 0x4E, 0x32)};
    static const std::array<QColor, kPortraitCount> kHair = {
        QColor(0x3B, 0x2A, 0x20), QColor(0x1E, 0x1E, 0x22), QColor(0xB5, 0x6A, 0x2C),
        QColor(0x2A, 0x2A, 0x2E), QColor(0xE0, 0xC0, 0x6A), QColor(0x6B, 0x3E, 0x26),
        QColor(0x9A, 0x9A, 0xA0), QColor(0x8B, 0x2E, 0x1E), QColor(0x4A, 0x32, 0x24),
        QColor(0x15, 0x15, 0x18)};
    const int i = ((index % kPortraitCount) + kPortraitCount) % kPortraitCount;
    const auto k = static_cast<std::size_t>(i);
    DesignSpace ds(p, rect, QSizeF(97, 89), false);
    const QRectF frame(1, 1, 95, 87);
    paintFramedPlate(p, frame, 8, pen(colour::teal, 2), shadedBrush(kBacks[k], frame, 110, 105),
                     colour::gold);
    p.save();
    QPainterPath clip;
    clip.addRoundedRect(frame.adjusted(3, 3, -3, -3), 6, 6);
    p.setClipPath(clip);
    const qreal w = 1.3;
    // Shoulders in a token colour, so the team belongs to the game.
    const QColor shirt = QColor::fromHsv((i * 37 + 190) % 360, 120, 150);
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(shirt, QRectF(18, 60, 62, 30), 125, 110));
    p.drawEllipse(QRectF(16, 64, 66, 50));
    // Hair behind the head for the longer styles.
    if (i % 3 == 1) {
        p.setBrush(kHair[k]);
        p.drawRoundedRect(QRectF(26, 20, 46, 50), 18, 18);
    }
    p.setBrush(shadedBrush(kSkins[k], QRectF(30, 18, 38, 46), 112, 105));
    p.drawEllipse(QRectF(31, 20, 36, 42));
    // Hair on top.
    p.setBrush(kHair[k]);
    QPainterPath hair;
    switch (i % 4) {
        case 0:
            hair.moveTo(30, 38);
            hair.cubicTo(28, 14, 70, 12, 68, 38);
            hair.cubicTo(60, 28, 44, 26, 30, 38);
            break;
        case 1:
            hair.moveTo(30, 40);
            hair.cubicTo(26, 10, 74, 10, 68, 40);
            hair.lineTo(62, 28);
            hair.cubicTo(52, 32, 40, 30, 30, 40);
            break;
        case 2:
            hair.addEllipse(QRectF(36, 10, 26, 16));
            hair.addEllipse(QRectF(30, 18, 38, 14));
            break;
        default:
            hair.moveTo(31, 34);
            hair.cubicTo(34, 18, 64, 18, 67, 34);
            hair.lineTo(31, 34);
            break;
    }
    hair.closeSubpath();
    p.drawPath(hair.simplified());
    // A friendly face: eyes, cheeks, a smile.
    p.setPen(Qt::NoPen);
    p.setBrush(colour::ink);
    p.drawEllipse(QPointF(42, 42), 2.2, 2.4);
    p.drawEllipse(QPointF(56, 42), 2.2, 2.4);
    p.setBrush(colour::withAlpha(colour::moneyMinus, 50));
    p.drawEllipse(QPointF(38, 50), 4, 2.5);
    p.drawEllipse(QPointF(60, 50), 4, 2.5);
    p.setPen(inkPen(w));
    p.setBrush(Qt::NoBrush);
    p.drawArc(QRectF(42, 44, 14, 10), 200 * 16, 140 * 16);
    // An accessory for some: glasses or a gold pin.
    if (i % 2 == 0) {
        p.setPen(inkPen(1.1));
        p.drawEllipse(QPointF(42, 42), 5.5, 5);
        p.drawEllipse(QPointF(56, 42), 5.5, 5);
        p.drawLine(QPointF(47.5, 42), QPointF(50.5, 42));
    } else {
        p.setPen(pen(colour::goldDeep, 0.8));
        p.setBrush(colour::gold);
        paintDiamond(p, QPointF(38, 76), 4, colour::gold);
    }
    p.restore();
}

void paintAppIcon(QPainter& p, const QRectF& rect) {
    DesignSpace ds(p, rect, QSizeF(100, 100));
    // Painted for its size: under 48 px the skyline is a smudge and is left out, under 32 px
    // the frame too, and under 24 px the coin fills the tile with a bolder G.
    const qreal pixels = ds.scale() * 100;
    const bool tiny = pixels < 24;
    const bool withSkyline = pixels >= 48;
    p.setPen(pen(colour::tealDeep, ds.px(1)));
    p.setBrush(shadedBrush(colour::teal, QRectF(0, 0, 100, 100), 130, 110));
    p.drawRoundedRect(QRectF(3, 3, 94, 94), 20, 20);
    if (pixels >= 32) {
        p.setPen(pen(colour::gold, ds.px(1)));
        p.setBrush(Qt::NoBrush);
        p.drawRoundedRect(QRectF(9, 9, 82, 82), 15, 15);
    }
    if (withSkyline) {
        paintSkyline(p, QRectF(12, 62, 76, 26), colour::withAlpha(colour::tealDeep, 200));
    }
    // A gold coin with a G cut out of it.
    QRadialGradient g(QPointF(42, 38), 40);
    g.setColorAt(0, colour::goldLight.lighter(112));
    g.setColorAt(1, colour::gold);
    p.setPen(pen(colour::goldDeep, ds.px(tiny ? 0.8 : 1.2)));
    p.setBrush(g);
    const QPointF c(50, withSkyline ? 44 : 50);
    const qreal r = tiny ? 38 : withSkyline ? 30 : 34;
    p.drawEllipse(c, r, r);
    // The G: an open ring with its bar turned in at the middle right.
    const qreal lr = r * 0.5;
    QPainterPath glyph;
    glyph.arcMoveTo(QRectF(c.x() - lr, c.y() - lr, 2 * lr, 2 * lr), 40);
    glyph.arcTo(QRectF(c.x() - lr, c.y() - lr, 2 * lr, 2 * lr), 40, 320);
    glyph.lineTo(c.x() + lr * 0.1, c.y());
    QPainterPathStroker stroker;
    stroker.setWidth(r * (tiny ? 0.28 : 0.22));
    stroker.setCapStyle(Qt::FlatCap);
    stroker.setJoinStyle(Qt::MiterJoin);
    const QPainterPath letter = stroker.createStroke(glyph);
    p.setPen(Qt::NoPen);
    p.setBrush(colour::tealDeep);
    p.drawPath(letter.simplified());
}

}  // namespace gw::art
