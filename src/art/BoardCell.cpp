// SPDX-License-Identifier: GPL-3.0-or-later
// Board cells. The layout runs from the centre of the board outwards: band, name, emblem,
// price. On the left and right sides the band is a column and the text sits beside it.
#include "art/BoardCell.h"

#include <QFontMetricsF>
#include <QLinearGradient>
#include <QPainter>
#include <algorithm>

#include "art/Design.h"
#include "art/Emblems.h"
#include "art/Palette.h"

namespace gw::art {

namespace {

constexpr qreal kBandShare = 0.2;
constexpr int kNamePx = 9;
constexpr int kPricePx = 9;

TextStyle nameStyle() {
    return {Face::Caption, kNamePx, colour::ink, Qt::AlignCenter, 3, 7};
}
TextStyle priceStyle() {
    return {Face::Number, kPricePx, colour::ink, Qt::AlignCenter, 1, 7};
}

bool hasEmblem(CellKind k) {
    return k == CellKind::Metro || k == CellKind::UtilityBulb || k == CellKind::UtilityTower ||
           k == CellKind::Tax || k == CellKind::Jfl;
}

void paintCellEmblem(TextBoxes& out, QPainter& p, const QRectF& r, CellKind k) {
    switch (k) {
        case CellKind::Metro:
            paintEmblem(p, r, Emblem::TrainFront);
            break;
        case CellKind::UtilityBulb:
            paintEmblem(p, r, Emblem::Bulb);
            break;
        case CellKind::UtilityTower:
            paintEmblem(p, r, Emblem::Tower);
            break;
        case CellKind::Tax:
            paintEmblem(p, r, Emblem::CoinStack);
            break;
        case CellKind::Jfl:
            out.push_back(paintJflSeal(p, r));
            break;
        default:
            break;
    }
}

QString priceText(const CellFace& f) {
    if (f.price <= 0) return {};
    return f.kind == CellKind::Tax ? QStringLiteral("Pay ") + money(f.price) : money(f.price);
}

void paintBackground(QPainter& p, const QRectF& rect) {
    QLinearGradient g(rect.topLeft(), rect.bottomRight());
    g.setColorAt(0, colour::cream.lighter(103));
    g.setColorAt(1, colour::cream);
    p.fillRect(rect, g);
}

// Cells on the top and bottom rows: a vertical stack, mirrored on the top row so the price
// stays at the outer edge. The name takes the room it needs and the emblem the rest.
void paintColumnLayout(TextBoxes& out, QPainter& p, const QRectF& content, const CellFace& f,
                       bool outerAtBottom) {
    const bool emblem = hasEmblem(f.kind);
    const QString price = priceText(f);
    const qreal priceH = price.isEmpty() ? 0 : 12;
    const QRectF priceBox =
        outerAtBottom ? QRectF(content.left(), content.bottom() - priceH, content.width(), priceH)
                      : QRectF(content.left(), content.top(), content.width(), priceH);
    const QRectF rest = outerAtBottom ? content.adjusted(0, 0, 0, -priceH - 1)
                                      : content.adjusted(0, priceH + 1, 0, 0);
    QRectF emblemBox = rest;
    if (f.kind != CellKind::Jfl) {
        constexpr qreal kMinEmblem = 18;
        const QRectF nameBox = emblem ? (outerAtBottom ? rest.adjusted(0, 0, 0, -kMinEmblem)
                                                       : rest.adjusted(0, kMinEmblem, 0, 0))
                                      : rest;
        TextStyle st = nameStyle();
        st.align = Qt::AlignHCenter | (outerAtBottom ? Qt::AlignTop : Qt::AlignBottom);
        const TextBox name = drawText(p, nameBox, f.name, st);
        out.push_back(name);
        const QRectF used = p.worldTransform().inverted().mapRect(name.bounds);
        emblemBox = outerAtBottom ? QRectF(rest.left(), used.bottom() + 1, rest.width(),
                                           rest.bottom() - used.bottom() - 1)
                                  : QRectF(rest.left(), rest.top(), rest.width(),
                                           used.top() - rest.top() - 1);
    }
    if (emblem) paintCellEmblem(out, p, emblemBox.adjusted(2, 2, -2, -2), f.kind);
    if (!price.isEmpty()) drawText(out, p, priceBox, price, priceStyle());
}

// Cells on the left and right sides: the name over the full width, then the price with the
// emblem beside it on the outer side.
void paintRowLayout(TextBoxes& out, QPainter& p, const QRectF& content, const CellFace& f,
                    bool outerAtLeft) {
    if (f.kind == CellKind::Jfl) {
        paintCellEmblem(out, p, content.adjusted(2, 2, -2, -2), f.kind);
        return;
    }
    const bool emblem = hasEmblem(f.kind);
    const QString price = priceText(f);
    const qreal rowH = emblem ? 16 : (price.isEmpty() ? 0 : 12);
    drawText(out, p,
             QRectF(content.left(), content.top(), content.width(), content.height() - rowH),
             f.name, nameStyle());
    const QRectF row(content.left(), content.bottom() - rowH, content.width(), rowH);
    if (!emblem) {
        if (!price.isEmpty()) drawText(out, p, row, price, priceStyle());
        return;
    }
    const QFontMetricsF fm(font(Face::Number, kPricePx), p.device());
    const qreal priceW = price.isEmpty() ? 0 : fm.horizontalAdvance(price);
    const qreal groupW = std::min(row.width(), rowH + 3 + priceW);
    const qreal left = row.center().x() - groupW / 2;
    const QRectF icon = outerAtLeft ? QRectF(left, row.top(), rowH, rowH)
                                    : QRectF(left + groupW - rowH, row.top(), rowH, rowH);
    paintCellEmblem(out, p, icon, f.kind);
    if (!price.isEmpty()) {
        const QRectF priceBox =
            outerAtLeft ? QRectF(icon.right() + 3, row.top(), row.right() - icon.right() - 3, rowH)
                        : QRectF(row.left(), row.top(), icon.left() - 3 - row.left(), rowH);
        TextStyle st = priceStyle();
        st.align = (outerAtLeft ? Qt::AlignLeft : Qt::AlignRight) | Qt::AlignVCenter;
        drawText(out, p, priceBox, price, st);
    }
}

void paintCorner(TextBoxes& out, QPainter& p, const QRectF& r, const CellFace& f) {
    const QRectF inner = r.adjusted(4, 4, -4, -4);
    const TextStyle big{Face::Title, 20, colour::teal, Qt::AlignCenter, 1, 9};
    TextStyle caption{Face::Caption, 10, colour::ink, Qt::AlignCenter, 2, 7};
    TextStyle small{Face::Caption, 8, colour::inkSoft, Qt::AlignCenter, 1, 7};
    switch (f.kind) {
        case CellKind::Go: {
            QRectF wash = inner.adjusted(2, 2, -2, -2);
            p.setPen(Qt::NoPen);
            p.setBrush(colour::withAlpha(colour::gold, 40));
            p.drawEllipse(wash.center(), wash.width() * 0.46, wash.height() * 0.46);
            drawText(
                out, p, QRectF(inner.left(), inner.top() + 2, inner.width(), 26), f.name,
                TextStyle{Face::Title, 26, colour::moneyMinus.darker(110), Qt::AlignCenter, 1, 9});
            paintEmblem(p, QRectF(inner.left() + 6, inner.top() + 30, inner.width() - 12, 26),
                        Emblem::GoArrow);
            drawText(out, p, QRectF(inner.left(), inner.bottom() - 14, inner.width(), 12),
                     QStringLiteral("Start here"), small);
            break;
        }
        case CellKind::Jail:
            paintEmblem(p, QRectF(inner.left() + 12, inner.top(), inner.width() - 24, 52),
                        Emblem::JailBars);
            drawText(out, p, QRectF(inner.left(), inner.bottom() - 22, inner.width(), 22), f.name,
                     big);
            break;
        case CellKind::FreeStop:
            paintEmblem(p, QRectF(inner.left() + 10, inner.top(), inner.width() - 20, 40),
                        Emblem::StadiumArch);
            drawText(out, p, QRectF(inner.left(), inner.top() + 41, inner.width(), 22), f.name,
                     caption);
            drawText(out, p, QRectF(inner.left(), inner.bottom() - 12, inner.width(), 12),
                     QStringLiteral("Free stop"), small);
            break;
        case CellKind::Police:
            paintEmblem(p, QRectF(inner.left() + 10, inner.top() + 2, inner.width() - 20, 40),
                        Emblem::PoliceCap);
            drawText(out, p, QRectF(inner.left(), inner.top() + 42, inner.width(), 18), f.name,
                     TextStyle{Face::Title, 15, colour::teal, Qt::AlignCenter, 1, 9});
            drawText(out, p, QRectF(inner.left(), inner.bottom() - 12, inner.width(), 12),
                     QStringLiteral("Go to Jail"), small);
            break;
        default:
            break;
    }
}

}  // namespace

TextBoxes paintBoardCell(QPainter& p, const QRectF& rect, const CellFace& face, Edge edge) {
    TextBoxes out;
    p.save();
    paintBackground(p, rect);
    const bool corner = face.kind == CellKind::Go || face.kind == CellKind::Jail ||
                        face.kind == CellKind::FreeStop || face.kind == CellKind::Police;
    if (corner) {
        paintCorner(out, p, rect, face);
    } else {
        const bool vertical = edge == Edge::Bottom || edge == Edge::Top;
        const qreal depth = vertical ? rect.height() : rect.width();
        const qreal band = face.band.isValid() ? std::round(depth * kBandShare) : 0;
        QRectF bandRect, content;
        switch (edge) {
            case Edge::Bottom:
                bandRect = QRectF(rect.left(), rect.top(), rect.width(), band);
                content = rect.adjusted(2, band + 2, -2, -2);
                break;
            case Edge::Top:
                bandRect = QRectF(rect.left(), rect.bottom() - band, rect.width(), band);
                content = rect.adjusted(2, 2, -2, -band - 2);
                break;
            case Edge::Left:
                bandRect = QRectF(rect.right() - band, rect.top(), band, rect.height());
                content = rect.adjusted(3, 2, -band - 3, -2);
                break;
            case Edge::Right:
                bandRect = QRectF(rect.left(), rect.top(), band, rect.height());
                content = rect.adjusted(band + 3, 2, -3, -2);
                break;
        }
        if (band > 0) {
            p.fillRect(bandRect, face.band);
            p.setPen(pen(colour::ink, 1));
            switch (edge) {
                case Edge::Bottom:
                    p.drawLine(bandRect.bottomLeft(), bandRect.bottomRight());
                    break;
                case Edge::Top:
                    p.drawLine(bandRect.topLeft(), bandRect.topRight());
                    break;
                case Edge::Left:
                    p.drawLine(bandRect.topLeft(), bandRect.bottomLeft());
                    break;
                case Edge::Right:
                    p.drawLine(bandRect.topRight(), bandRect.bottomRight());
                    break;
            }
        }
        if (vertical)
            paintColumnLayout(out, p, content, face, edge == Edge::Bottom);
        else
            paintRowLayout(out, p, content, face, edge == Edge::Left);
    }
    p.setPen(pen(colour::ink, 1));
    p.setBrush(Qt::NoBrush);
    p.drawRect(rect.adjusted(0.5, 0.5, -0.5, -0.5));
    p.restore();
    return out;
}

}  // namespace gw::art
