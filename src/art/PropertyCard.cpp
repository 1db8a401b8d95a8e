// Property cards: the band with the name and price written on it, then the table of rents.
// Each printed caption ends where the program's number for that row begins.
#include <QPainter>

#include "art/Cards.h"
#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

TextStyle caption() {
    return {Face::Caption, 11, colour::ink, Qt::AlignLeft | Qt::AlignVCenter, 1, 8};
}

// A faint stripe under a table row, from the card's margin to the value's right end.
void paintRowStripe(QPainter& p, qreal y, qreal height) {
    p.setPen(Qt::NoPen);
    p.setBrush(colour::withAlpha(colour::creamShade, 140));
    p.drawRoundedRect(QRectF(14, y, 173, height), 2, 2);
}

void paintRow(TextBoxes& out, QPainter& p, qreal y, qreal valueX, const QString& text,
              bool stripe) {
    if (stripe) paintRowStripe(p, y, 17);
    drawText(out, p, QRectF(18, y, valueX - 22, 17), text, caption());
}

}  // namespace

TextBoxes paintPropertyCard(QPainter& p, const QRectF& rect, PropertyCardKind kind,
                            const QColor& band) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kPropertyCardSize), false);
    paintCardStock(p, QRectF(0, 0, 201, 299), 10);
    p.setPen(pen(colour::teal, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(5, 5, 191, 289), 7, 7);
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
        if (kind == PropertyCardKind::Metro) paintTrainFront(p, emblem);
        if (kind == PropertyCardKind::UtilityBulb) paintBulb(p, emblem);
        if (kind == PropertyCardKind::UtilityTower) paintTower(p, emblem);
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
