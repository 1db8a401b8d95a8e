// SPDX-License-Identifier: GPL-3.0-or-later
// The token silhouettes, each one QPainterPath in a 100 by 100 square, filled with its colour
// (lighter at the top left for a little depth) and outlined in ink; details are drawn on top.
#include "art/Tokens.h"

#include <QPainter>
#include <QPainterPath>
#include <QPainterPathStroker>
#include <algorithm>
#include <array>
#include <numbers>

#include "art/Design.h"
#include "art/Palette.h"
#include "art/Paths.h"

namespace gw::art {

namespace {

struct TokenInfo {
    const char* name;
    QColor colour;
};

// Hues spread round the wheel, with light and dark members where hues are close.
const std::array<TokenInfo, kTokenCount> kTokens = {{
    {"Key", QColor(0xE8, 0x7D, 0x1E)},       // orange
    {"Anchor", QColor(0x1F, 0x3A, 0x8A)},    // navy
    {"Crown", QColor(0xF5, 0xD0, 0x2A)},     // yellow
    {"Lantern", QColor(0xC8, 0x1E, 0x32)},   // crimson
    {"Feather", QColor(0x19, 0xB3, 0xAC)},   // turquoise
    {"Bell", QColor(0x86, 0x52, 0x24)},      // brown
    {"Star", QColor(0xE8, 0x5A, 0xA8)},      // pink
    {"Teapot", QColor(0x4C, 0xA6, 0xEE)},    // sky blue
    {"Sailboat", QColor(0xF8, 0xF8, 0xF4)},  // white
    {"Bicycle", QColor(0x96, 0xD0, 0x3C)},   // lime
    {"Top hat", QColor(0x4A, 0x52, 0x5C)},   // slate
    {"Cat", QColor(0x73, 0x3A, 0xB0)},       // purple
    {"Tree", QColor(0x1C, 0x6E, 0x34)},      // forest green
    {"Rocket", QColor(0xC2, 0xAE, 0xF0)},    // lavender
}};

QPainterPath stroked(const QPainterPath& line, qreal width) {
    QPainterPathStroker s;
    s.setWidth(width);
    s.setCapStyle(Qt::RoundCap);
    s.setJoinStyle(Qt::RoundJoin);
    return s.createStroke(line).simplified();
}

QPainterPath key() {
    QPainterPath shaft = roundedRect(QRectF(44, 44, 48, 12), 3);
    shaft.addRect(QRectF(70, 54, 8, 16));
    shaft.addRect(QRectF(82, 54, 8, 22));
    return circle({28, 50}, 20).united(shaft).subtracted(circle({24, 50}, 8));
}

QPainterPath anchor() {
    QPainterPath body = roundedRect(QRectF(45, 22, 10, 62), 3);
    body.addRoundedRect(QRectF(30, 30, 40, 9), 4, 4);
    const QPainterPath arc =
        curve({16, 58}, {{{18, 82}, {38, 90}, {50, 90}}, {{62, 90}, {82, 82}, {84, 58}}});
    QPainterPath shape = circle({50, 15}, 10).united(body).united(stroked(arc, 10));
    shape = shape.united(polygon({{8, 62}, {18, 48}, {26, 64}}));
    shape = shape.united(polygon({{92, 62}, {82, 48}, {74, 64}}));
    return shape.subtracted(circle({50, 15}, 4.5));
}

QPainterPath crown() {
    QPainterPath c = polygon(
        {{14, 82}, {86, 82}, {88, 66}, {94, 28}, {70, 50}, {50, 18}, {30, 50}, {6, 28}, {12, 66}});
    QPainterPath balls;
    balls.addEllipse(QPointF(6, 26), 6, 6);
    balls.addEllipse(QPointF(50, 16), 6, 6);
    balls.addEllipse(QPointF(94, 26), 6, 6);
    return c.united(balls);
}

QPainterPath lantern() {
    const QPainterPath ring = circle({50, 10}, 7).subtracted(circle({50, 10}, 3));
    QPainterPath body = polygon({{30, 30}, {70, 30}, {60, 18}, {40, 18}});
    body.addRoundedRect(QRectF(28, 30, 44, 48), 6, 6);
    body.addRoundedRect(QRectF(24, 76, 52, 12), 3, 3);
    return ring.united(body);
}

QPainterPath feather() {
    const QPainterPath vane =
        closedCurve({26, 84}, {{{10, 56}, {40, 16}, {88, 8}}, {{86, 46}, {62, 80}, {26, 84}}});
    const QPainterPath quill = curve({12, 94}, {{{34, 70}, {56, 40}, {84, 12}}});
    QPainterPath notches = polygon({{44, 76}, {54, 64}, {60, 74}});
    return vane.united(stroked(quill, 5)).subtracted(notches);
}

QPainterPath bell() {
    QPainterPath b;
    b.moveTo(20, 74);
    b.cubicTo(24, 40, 28, 22, 50, 22);
    b.cubicTo(72, 22, 76, 40, 80, 74);
    b.lineTo(90, 82);
    b.lineTo(10, 82);
    b.closeSubpath();
    return b.united(circle({50, 91}, 7)).united(roundedRect(QRectF(43, 8, 14, 16), 5));
}

QPainterPath fivePointStar() {
    return star({50, 54}, 5, 48, 20, -std::numbers::pi / 2);
}

QPainterPath teapot() {
    QPainterPath body;
    body.addEllipse(QRectF(24, 36, 52, 48));
    QPainterPath base;
    base.addRoundedRect(QRectF(32, 78, 36, 10), 3, 3);
    QPainterPath lid;
    lid.addEllipse(QRectF(34, 28, 32, 16));
    lid.addEllipse(QPointF(50, 26), 6, 6);
    const QPainterPath spout = curve({28, 66}, {{{16, 64}, {12, 50}, {4, 38}}});
    const QPainterPath handle = curve({72, 48}, {{{98, 44}, {98, 74}, {72, 72}}});
    return body.united(base).united(lid).united(stroked(spout, 10)).united(stroked(handle, 8));
}

QPainterPath sailboat() {
    QPainterPath hull = polygon({{6, 70}, {94, 70}, {80, 88}, {20, 88}});
    QPainterPath main = polygon({{53, 8}, {53, 64}, {90, 64}});
    QPainterPath jib = polygon({{47, 16}, {47, 64}, {14, 64}});
    QPainterPath mast;
    mast.addRect(QRectF(47, 6, 6, 66));
    return hull.united(main).united(jib).united(mast);
}

QPainterPath bicycle() {
    QPainterPath wheels;
    wheels.addEllipse(QPointF(24, 66), 19, 19);
    wheels.addEllipse(QPointF(76, 66), 19, 19);
    QPainterPath holes;
    holes.addEllipse(QPointF(24, 66), 12, 12);
    holes.addEllipse(QPointF(76, 66), 12, 12);
    QPainterPath frame;
    addPolyline(frame, {{24, 66}, {44, 38}, {70, 38}, {76, 66}});
    addPolyline(frame, {{24, 66}, {50, 66}, {70, 38}});
    addPolyline(frame, {{44, 38}, {50, 66}});
    addPolyline(frame, {{40, 28}, {44, 38}});
    addPolyline(frame, {{70, 38}, {66, 22}, {76, 20}});
    const QPainterPath seat = roundedRect(QRectF(32, 24, 16, 7), 3);
    QPainterPath hubs;
    hubs.addEllipse(QPointF(24, 66), 4, 4);
    hubs.addEllipse(QPointF(76, 66), 4, 4);
    return wheels.subtracted(holes).united(stroked(frame, 6)).united(seat).united(hubs);
}

QPainterPath topHat() {
    QPainterPath brim;
    brim.addEllipse(QRectF(6, 72, 88, 18));
    return brim.united(hatCrown({26, 80}, {22, 16}, {{30, 8}, {70, 8}, {78, 16}}, {74, 80}));
}

QPainterPath cat() {
    QPainterPath head;
    head.addEllipse(QPointF(38, 32), 18, 16);
    QPainterPath ears = polygon({{22, 26}, {22, 6}, {36, 18}});
    ears = ears.united(polygon({{54, 26}, {54, 6}, {40, 18}}));
    const QPainterPath body =
        closedCurve({22, 92}, {{{16, 66}, {22, 46}, {40, 42}}, {{62, 44}, {70, 70}, {66, 92}}});
    const QPainterPath tail = curve({62, 88}, {{{86, 90}, {94, 70}, {86, 52}}});
    return head.united(ears).united(body).united(stroked(tail, 9));
}

QPainterPath tree() {
    QPainterPath t = polygon({{50, 4}, {74, 34}, {26, 34}});
    t = t.united(polygon({{50, 20}, {82, 58}, {18, 58}}));
    t = t.united(polygon({{50, 38}, {90, 82}, {10, 82}}));
    QPainterPath trunk;
    trunk.addRect(QRectF(43, 80, 14, 14));
    return t.united(trunk);
}

QPainterPath rocket() {
    QPainterPath body;
    body.moveTo(50, 4);
    body.cubicTo(72, 18, 72, 50, 64, 74);
    body.lineTo(36, 74);
    body.cubicTo(28, 50, 28, 18, 50, 4);
    body.closeSubpath();
    QPainterPath fins = polygon({{34, 50}, {16, 76}, {18, 88}, {38, 74}});
    fins = fins.united(polygon({{66, 50}, {84, 76}, {82, 88}, {62, 74}}));
    QPainterPath nozzle = polygon({{40, 74}, {60, 74}, {56, 84}, {44, 84}});
    return body.united(fins).united(nozzle).subtracted(circle({50, 38}, 8));
}

QPainterPath silhouette(int index) {
    switch (index) {
        case 0:
            return key();
        case 1:
            return anchor();
        case 2:
            return crown();
        case 3:
            return lantern();
        case 4:
            return feather();
        case 5:
            return bell();
        case 6:
            return fivePointStar();
        case 7:
            return teapot();
        case 8:
            return sailboat();
        case 9:
            return bicycle();
        case 10:
            return topHat();
        case 11:
            return cat();
        case 12:
            return tree();
        default:
            return rocket();
    }
}

// Ink details over the fill: what turns a blob into a lantern or a cat.
void paintDetails(QPainter& p, int index, qreal w) {
    p.setBrush(Qt::NoBrush);
    p.setPen(inkPen(w));
    switch (index) {
        case 2:  // crown jewels and band
            p.drawLine(QPointF(13, 70), QPointF(87, 70));
            p.setBrush(colour::moneyMinus);
            p.drawEllipse(QPointF(50, 76), 3.5, 3.5);
            p.setBrush(colour::teal);
            p.drawEllipse(QPointF(30, 76), 3, 3);
            p.drawEllipse(QPointF(70, 76), 3, 3);
            break;
        case 3:  // lantern glass and flame
            p.setBrush(colour::withAlpha(QColor(0xFF, 0xE8, 0x9A), 230));
            p.drawRoundedRect(QRectF(36, 38, 28, 32), 4, 4);
            p.setBrush(QColor(0xF0, 0x8A, 0x24));
            p.drawPath(
                curve({50, 44}, {{{58, 54}, {56, 64}, {50, 64}}, {{44, 64}, {42, 54}, {50, 44}}}));
            break;
        case 5:  // bell rim line
            p.drawLine(QPointF(18, 74), QPointF(82, 74));
            break;
        case 7:  // teapot lid line
            p.drawLine(QPointF(30, 46), QPointF(70, 46));
            break;
        case 8:  // hull stripe
            p.setPen(pen(colour::moneyMinus, w * 1.6));
            p.drawLine(QPointF(14, 76), QPointF(86, 76));
            break;
        case 10:  // hat band
            p.setBrush(colour::moneyMinus);
            p.drawRect(QRectF(25, 58, 50, 10));
            break;
        case 11:  // cat face
            p.setBrush(colour::goldLight);
            p.drawEllipse(QPointF(31, 31), 3, 3.5);
            p.drawEllipse(QPointF(45, 31), 3, 3.5);
            p.drawLine(QPointF(38, 38), QPointF(38, 41));
            break;
        case 12:  // tree baubles
            p.setBrush(colour::gold);
            p.drawEllipse(QPointF(40, 50), 3, 3);
            p.drawEllipse(QPointF(60, 70), 3, 3);
            p.drawEllipse(QPointF(54, 28), 2.5, 2.5);
            break;
        case 13:  // rocket window and flame
            p.setBrush(QColor(0xCF, 0xE6, 0xEA));
            p.drawEllipse(QPointF(50, 38), 8, 8);
            p.setBrush(QColor(0xF0, 0x8A, 0x24));
            p.drawPath(polygon({{44, 86}, {56, 86}, {50, 98}}));
            break;
        default:
            break;
    }
}

}  // namespace

QColor tokenColour(int index) {
    return kTokens[static_cast<std::size_t>(((index % kTokenCount) + kTokenCount) % kTokenCount)]
        .colour;
}

QString tokenName(int index) {
    return QString::fromLatin1(
        kTokens[static_cast<std::size_t>(((index % kTokenCount) + kTokenCount) % kTokenCount)]
            .name);
}

void paintToken(QPainter& p, const QRectF& rect, int index) {
    const QColor c = tokenColour(index);
    if (std::min(rect.width(), rect.height()) < 16) {
        p.save();
        const QRectF r = rect.adjusted(0.5, 0.5, -0.5, -0.5);
        p.setPen(pen(colour::ink, 1));
        p.setBrush(c);
        p.drawRoundedRect(r, 1.5, 1.5);
        p.restore();
        return;
    }
    DesignSpace ds(p, rect, QSizeF(100, 100));
    const QPainterPath shape = silhouette(index);
    const qreal w = ds.px(std::clamp(ds.scale() * 100 / 30, 1.0, 3.0));
    // A soft shadow lifts the token off the board.
    p.save();
    p.translate(ds.px(1.2), ds.px(1.6));
    p.fillPath(shape, colour::withAlpha(colour::ink, 60));
    p.restore();
    const QRectF b = shape.boundingRect();
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(c, b, 140, 108));
    p.drawPath(shape);
    paintDetails(p, index, w * 0.8);
}

}  // namespace gw::art
