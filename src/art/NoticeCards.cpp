// SPDX-License-Identifier: GPL-3.0-or-later
// The trade card's two faces, the JFL card and the tax cards.
#include <QPainter>

#include <array>

#include "art/CardParts.h"
#include "art/Cards.h"
#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

void paintWell(QPainter& p, const QRectF& r) {
    p.setPen(pen(colour::creamShade.darker(118), 1));
    p.setBrush(colour::paper);
    p.drawRoundedRect(r, 3, 3);
}

// A teal title band across the top of a card.
void paintTitleBand(TextBoxes& out, QPainter& p, const QRectF& band, const QString& title) {
    paintFramedPlate(p, band, 4, pen(colour::tealDeep, 1),
                     shadedBrush(colour::teal, band, 125, 110), colour::gold);
    drawText(out, p, band.adjusted(8, 4, -8, -4), title,
             TextStyle{Face::Title, 17, colour::goldLight, Qt::AlignCenter, 1, 10});
}

}  // namespace

TextBoxes paintTradeCard(QPainter& p, const QRectF& rect, TradeSide side) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kTradeCardSize), false);
    paintFramedCard(p, QSizeF(kTradeCardSize));
    const bool owner = side == TradeSide::Owner;
    paintTitleBand(out, p, QRectF(12, 14, 177, 38),
                   owner ? QStringLiteral("Trade Offer") : QStringLiteral("Make an Offer"));
    drawText(out, p, QRectF(16, 60, 169, 16),
             owner ? QStringLiteral("Set your asking price") : QStringLiteral("Name your price"),
             TextStyle{Face::Caption, 10, colour::inkSoft, Qt::AlignCenter, 1, 8});
    paintGoldRule(p, QPointF(40, 80), QPointF(161, 80));
    // The owner's and the trader's rows are two lines high: a long name wraps there.
    struct Row {
        const char* caption;
        qreal top, height;
    };
    constexpr std::array<Row, 4> rows = {
        {{"Street", 84, 16}, {"Owner", 100, 26}, {"Trader", 126, 26}, {"Asking", 152, 16}}};
    const int count = owner ? 4 : 3;
    for (int i = 0; i < count; ++i) {
        const Row& row = rows[static_cast<std::size_t>(i)];
        if (i % 2 == 0) paintRowStripe(p, QRectF(12, row.top, 177, row.height));
        drawText(out, p, QRectF(16, row.top, 60, row.height), QString::fromLatin1(row.caption),
                 cardCaption());
    }
    if (!owner) {
        drawText(out, p, QRectF(16, 208, 92, 25), QStringLiteral("Your offer $"),
                 cardCaption(Qt::AlignRight | Qt::AlignVCenter));
        paintWell(p, QRectF(110, 206, 77, 29));
    }
    return out;
}

TextBoxes paintJflCard(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kNoticeCardSize), false);
    paintNoticeCard(p, QSizeF(kNoticeCardSize));
    out.push_back(paintJflSeal(p, QRectF(66, 18, 91, 91)));
    paintWell(p, QRectF(25, 118, 169, 113));
    paintGoldRule(p, QPointF(40, 112), QPointF(183, 112));
    return out;
}

TextBoxes paintTaxCard(QPainter& p, const QRectF& rect, TaxKind kind) {
    TextBoxes out;
    DesignSpace ds(p, rect, QSizeF(kNoticeCardSize), false);
    paintNoticeCard(p, QSizeF(kNoticeCardSize));
    paintTitleBand(
        out, p, QRectF(20, 20, 183, 34),
        kind == TaxKind::Income ? QStringLiteral("Income Tax") : QStringLiteral("Luxury Tax"));
    paintEmblem(p, QRectF(76, 56, 71, 60), Emblem::CoinStack);
    paintWell(p, QRectF(28, 118, 161, 69));
    drawText(out, p, QRectF(28, 192, 161, 16), QStringLiteral("Paid to the city of Kestrovia"),
             TextStyle{Face::Caption, 10, colour::inkSoft, Qt::AlignCenter, 1, 8});
    return out;
}

}  // namespace gw::art
