// The trade card's two faces, the JFL card and the tax cards.
#include <QPainter>

#include "art/Cards.h"
#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

TextStyle caption(Qt::Alignment align = Qt::AlignLeft | Qt::AlignVCenter) {
    return {Face::Caption, 11, colour::ink, align, 1, 8};
}

void paintWell(QPainter& p, const QRectF& r) {
    p.setPen(pen(colour::creamShade.darker(118), 1));
    p.setBrush(colour::paper);
    p.drawRoundedRect(r, 3, 3);
}

// A teal title band across the top of a card.
void paintTitleBand(TextBoxes& out, QPainter& p, const QRectF& band, const QString& title) {
    p.setPen(pen(colour::tealDeep, 1));
    p.setBrush(shadedBrush(colour::teal, band, 125, 110));
    p.drawRoundedRect(band, 4, 4);
    p.setPen(pen(colour::gold, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(band.adjusted(3, 3, -3, -3), 2, 2);
    drawText(out, p, band.adjusted(8, 4, -8, -4), title,
             TextStyle{Face::Title, 17, colour::goldLight, Qt::AlignCenter, 1, 10});
}

// Gold corner brackets on a card's inner frame.
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

TextBoxes paintTradeCard(QPainter& p, const QRectF& rect, TradeSide side) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kTradeCardSize), false);
    paintCardStock(p, QRectF(0, 0, 201, 299), 10);
    p.setPen(pen(colour::teal, 1.5));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(5, 5, 191, 289), 7, 7);
    const bool owner = side == TradeSide::Owner;
    paintTitleBand(out, p, QRectF(12, 14, 177, 38),
                   owner ? QStringLiteral("Trade Offer") : QStringLiteral("Make an Offer"));
    drawText(out, p, QRectF(16, 60, 169, 16),
             owner ? QStringLiteral("Set your asking price") : QStringLiteral("Name your price"),
             TextStyle{Face::Caption, 10, colour::inkSoft, Qt::AlignCenter, 1, 8});
    paintGoldRule(p, QPointF(40, 88), QPointF(161, 88));
    const char* rows[] = {"Street", "Owner", "Trader", "Asking"};
    const int count = owner ? 4 : 3;
    for (int i = 0; i < count; ++i) {
        const qreal y = 104 + 16 * i;
        if (i % 2 == 0) {
            p.setPen(Qt::NoPen);
            p.setBrush(colour::withAlpha(colour::creamShade, 140));
            p.drawRoundedRect(QRectF(12, y, 177, 16), 2, 2);
        }
        drawText(out, p, QRectF(16, y, 60, 16), QString::fromLatin1(rows[i]), caption());
    }
    if (!owner) {
        drawText(out, p, QRectF(16, 208, 92, 25), QStringLiteral("Your offer $"),
                 caption(Qt::AlignRight | Qt::AlignVCenter));
        paintWell(p, QRectF(110, 206, 77, 29));
    }
    return out;
}

TextBoxes paintJflCard(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kNoticeCardSize), false);
    paintCardStock(p, QRectF(0, 0, 223, 295), 12);
    p.setPen(pen(colour::teal, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(8, 8, 207, 279), 8, 8);
    paintCorners(p, QRectF(14, 14, 195, 267));
    out.push_back(paintJflSeal(p, QRectF(66, 18, 91, 91)));
    paintWell(p, QRectF(25, 118, 169, 113));
    paintGoldRule(p, QPointF(40, 112), QPointF(183, 112));
    return out;
}

TextBoxes paintTaxCard(QPainter& p, const QRectF& rect, TaxKind kind) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kNoticeCardSize), false);
    paintCardStock(p, QRectF(0, 0, 223, 295), 12);
    p.setPen(pen(colour::teal, 2));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(QRectF(8, 8, 207, 279), 8, 8);
    paintCorners(p, QRectF(14, 14, 195, 267));
    paintTitleBand(
        out, p, QRectF(20, 20, 183, 34),
        kind == TaxKind::Income ? QStringLiteral("Income Tax") : QStringLiteral("Luxury Tax"));
    paintCoinStack(p, QRectF(76, 56, 71, 60));
    paintWell(p, QRectF(28, 118, 161, 69));
    drawText(out, p, QRectF(28, 192, 161, 16), QStringLiteral("Paid to the city of Kestrovia"),
             TextStyle{Face::Caption, 10, colour::inkSoft, Qt::AlignCenter, 1, 8});
    return out;
}

}  // namespace gw::art
