// SPDX-License-Identifier: GPL-3.0-or-later
// Property cards: the band with the name and price written on it, then the table of rents.
// Each printed caption ends where the program's number for that row begins.
#include <QPainter>

#include "art/CardParts.h"
#include "art/Cards.h"
#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

// A row of the rent table; its stripe runs from the card's margin to the value's right end.
void paintRow(TextBoxes& out, QPainter& p, qreal y, qreal valueX, const QString& text,
              bool stripe) {
    if (stripe) paintRowStripe(p, QRectF(14, y, 173, 17));
    drawText(out, p, QRectF(18, y, valueX - 22, 17), text, cardCaption());
}

}  // namespace

TextBoxes paintPropertyCard(QPainter& p, const QRectF& rect, PropertyCardKind kind,
                            const QColor& band) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kPropertyCardSize), false);
    paintFramedCard(p, QSizeF(kPropertyCardSize));
    // The band carries the name (y 24) and the price (y 43) written by the program.
    const QRectF bandRect(12, 14, 177, 48);
    p.setPen(pen(colour::ink, 1));
    p.setBrush(band);
    p.drawRoundedRect(bandRect, 4, 4);
    p.setPen(pen(colour::withAlpha(colour::ink, 90), 0.8));
    p.drawLine(QPointF(40, 41.5), QPointF(161, 41.5));
    // The owner's line.
    p.setPen(pen(colour::creamShade.darker(115), 0.8));
    p.drawLine(QPointF(24, 82), QPointF(177, 82));
    paintDiamond(p, QPointF(100.5, 82), 2.5, colour::gold);

    if (kind == PropertyCardKind::Street) {
        paintRow(out, p, 96, 72, QStringLiteral("Rent"), true);
        paintRow(out, p, 112, 112, QStringLiteral("With 1 Hotel"), false);
        paintRow(out, p, 130, 112, QStringLiteral("With 2 Hotels"), true);
        paintRow(out, p, 148, 112, QStringLiteral("With 3 Hotels"), false);
        paintRow(out, p, 164, 112, QStringLiteral("With 4 Hotels"), true);
        paintGoldRule(p, QPointF(30, 190), QPointF(171, 190));
        paintRow(out, p, 200, 128, QStringLiteral("Mortgage Value"), true);
        paintRow(out, p, 216, 120, QStringLiteral("Hotel Cost"), false);
    } else {
        paintRow(out, p, 130, 112, QStringLiteral("Rent"), true);
        paintRow(out, p, 164, 112, QStringLiteral("Mortgage Value"), true);
        const QRectF emblem(70, 184, 61, 54);
        p.setPen(Qt::NoPen);
        p.setBrush(colour::withAlpha(band, 120));
        p.drawEllipse(emblem.center(), 34, 28);
        if (kind == PropertyCardKind::Metro) paintEmblem(p, emblem, Emblem::TrainFront);
        if (kind == PropertyCardKind::UtilityBulb) paintEmblem(p, emblem, Emblem::Bulb);
        if (kind == PropertyCardKind::UtilityTower) paintEmblem(p, emblem, Emblem::Tower);
    }
    // The button strip stays plain card stock; a hairline marks its top.
    p.setPen(pen(colour::withAlpha(colour::gold, 160), 0.8));
    p.drawLine(QPointF(24, 241), QPointF(177, 241));
    return out;
}

TextBoxes paintPropertyCardFace(QPainter& p, const QRectF& rect, int face) {
    if (face >= 0 && face < 8)
        return paintPropertyCard(p, rect, PropertyCardKind::Street, colour::districtBand(face + 1));
    switch (face) {
        case 9:
            return paintPropertyCard(p, rect, PropertyCardKind::UtilityBulb, colour::utilityBand);
        case 10:
            return paintPropertyCard(p, rect, PropertyCardKind::UtilityTower, colour::utilityBand);
        case 11:
            return paintPropertyCard(p, rect, PropertyCardKind::Metro, colour::metroBand);
        default:
            return paintPropertyCard(p, rect, PropertyCardKind::Street, colour::districtBand(1));
    }
}

}  // namespace gw::art
