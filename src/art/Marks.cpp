// SPDX-License-Identifier: GPL-3.0-or-later
// Hotel and mortgage stamp. The hotel is drawn once upright and turned for the side rows.
#include "art/Marks.h"

#include <QFontMetricsF>
#include <QPainter>
#include <QtMath>
#include <algorithm>
#include <cmath>

#include "art/Design.h"
#include "art/Palette.h"
#include "art/Paths.h"
#include "art/Tokens.h"

namespace gw::art {

namespace {
const QColor kHotelWall{0xB8, 0x3B, 0x2E};
// Stamp lettering is set tight so the word fits the small cells at 7 px.
constexpr qreal kTracking = -0.45;
}  // namespace

void paintHotel(QPainter& p, const QRectF& rect) {
    p.save();
    QRectF r = rect;
    if (rect.width() > rect.height()) {
        p.translate(rect.center());
        p.rotate(90);
        r = QRectF(-rect.height() / 2, -rect.width() / 2, rect.height(), rect.width());
    }
    DesignSpace ds(p, r, QSizeF(12, 21), false);
    const qreal w = ds.px(0.8);
    p.setPen(inkPen(w));
    p.setBrush(shadedBrush(kHotelWall, QRectF(1, 6, 10, 14), 125, 110));
    p.drawRect(QRectF(1.4, 6.5, 9.2, 14));
    p.setBrush(shadedBrush(colour::gold, QRectF(0, 0, 12, 7), 130, 105));
    p.drawPath(polygon({{0.5, 7}, {6, 0.6}, {11.5, 7}}));
    p.setPen(Qt::NoPen);
    p.setBrush(colour::goldLight);
    for (int row = 0; row < 3; ++row) {
        p.drawRect(QRectF(3, 9 + row * 3.3, 2, 1.8));
        p.drawRect(QRectF(7, 9 + row * 3.3, 2, 1.8));
    }
    p.setBrush(colour::ink);
    p.drawRect(QRectF(5, 18, 2, 2.6));
    p.restore();
}

void paintOwnerTab(QPainter& p, const QRectF& rect, int token) {
    p.save();
    const qreal side = std::min(rect.width(), rect.height());
    const QRectF disc(rect.center().x() - side / 2, rect.center().y() - side / 2, side, side);
    p.setPen(pen(colour::ink, 0.8));
    p.setBrush(tokenColour(token));
    p.drawEllipse(disc.adjusted(0.5, 0.5, -0.5, -0.5));
    p.setBrush(colour::paper);
    p.drawEllipse(disc.adjusted(3.5, 3.5, -3.5, -3.5));
    p.restore();
    // The silhouette wants 16 px; a smaller disc shows the colour alone.
    paintToken(p, disc.adjusted(-1, -1, 1, 1), token);
}

TextBoxes paintMortgageStamp(QPainter& p, const QRectF& rect) {
    TextBoxes out;
    const QString word = QStringLiteral("MORTGAGED");
    // The largest size and the turn at which the word's box, turned, still fits the rectangle
    // with the most room to spare.
    int px = 12;
    qreal angle = 45;
    QSizeF textSize;
    for (; px >= 7; --px) {
        QFont f = font(Face::Caption, px);
        f.setLetterSpacing(QFont::AbsoluteSpacing, kTracking);
        const QFontMetricsF fm(f, p.device());
        textSize = QSizeF(fm.horizontalAdvance(word), fm.height());
        qreal bestSlack = -1e9;
        for (int deg = 0; deg <= 90; ++deg) {
            const qreal a = qDegreesToRadians(static_cast<qreal>(deg));
            const qreal bw = textSize.width() * std::cos(a) + textSize.height() * std::sin(a);
            const qreal bh = textSize.width() * std::sin(a) + textSize.height() * std::cos(a);
            const qreal slack = std::min(rect.width() - bw, rect.height() - bh);
            if (slack > bestSlack) {
                bestSlack = slack;
                angle = deg;
            }
        }
        if (bestSlack >= 3) break;
    }
    px = std::max(px, 7);
    p.save();
    p.setClipRect(rect);
    p.setOpacity(0.8);
    p.translate(rect.center());
    p.rotate(-angle);
    const QRectF textBox(-textSize.width() / 2, -textSize.height() / 2, textSize.width(),
                         textSize.height());
    const QRectF stamp = textBox.adjusted(-3, -2, 3, 2);
    const QColor red = colour::moneyMinus;
    p.setBrush(colour::withAlpha(colour::paper, 110));
    p.setPen(pen(red, 1.2));
    p.drawRoundedRect(stamp, 2, 2);
    p.setPen(pen(red, 0.6));
    p.setBrush(Qt::NoBrush);
    p.drawRoundedRect(stamp.adjusted(1.5, 1.5, -1.5, -1.5), 1.5, 1.5);
    drawText(out, p, textBox, word,
             TextStyle{Face::Caption, px, red, Qt::AlignCenter, 1, px, kTracking});
    p.restore();
    return out;
}

}  // namespace gw::art
