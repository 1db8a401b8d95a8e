// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/BoardLayout.h"

#include <QPointF>
#include <algorithm>
#include <array>
#include <cmath>

#include "art/BoardGeometry.h"
#include "view/Places.h"

namespace gw::view {

namespace {

constexpr qreal px(int twips) {
    return twips / static_cast<qreal>(kTwipsPerPixel);
}

enum Side { Bottom, Left, Top, Right };

Side sideOf(int c) {
    if (c <= 10) return Bottom;
    if (c < 20) return Left;
    if (c < 30) return Top;
    return Right;
}

// The offsets in twips of the six small squares (IsOn1, IsOn2, IsOn3, IsOn6, IsOn7, IsOn8)
// from the cell's left and top, by side of the board.
const std::array<std::array<QPoint, 6>, 4> kSquares = {{
    {{{120, 840}, {285, 840}, {465, 840}, {120, 1005}, {285, 1005}, {465, 1005}}},
    {{{150, 165}, {315, 165}, {150, 465}, {150, 330}, {315, 330}, {330, 480}}},
    {{{120, 120}, {285, 120}, {465, 120}, {120, 285}, {285, 285}, {465, 285}}},
    {{{765, 165}, {930, 165}, {765, 465}, {765, 330}, {930, 330}, {945, 480}}},
}};

QPoint cellTwips(int c) {
    if (c == 0) return {7680, 7680};
    if (c < 10) return {7680 - 720 * c, 7680};
    if (c == 10) return {0, 7680};
    if (c < 20) return {0, 6960 - 720 * (c - 11)};
    if (c == 20) return {0, 0};
    if (c < 30) return {1200 + 720 * (c - 21), 0};
    if (c == 30) return {7680, 0};
    return {7680, 1200 + 720 * (c - 31)};
}

QRectF at(int cellId, QPoint offset, int w, int h) {
    const QPoint cell = cellTwips(cellId);
    return {px(cell.x() + offset.x()), px(cell.y() + offset.y()), px(w), px(h)};
}

}  // namespace

bool isSideCell(int cellId) {
    const Side s = sideOf(cellId);
    return s == Left || s == Right;
}

QRectF cellRect(int cellId) {
    const QPoint t = cellTwips(cellId);
    return {QPointF(px(t.x()), px(t.y())), QSizeF(art::boardCellSize(cellId))};
}

QRectF centreRect() {
    return {px(1200), px(1200), px(6630), px(6585)};
}

QRectF squareRect(int cellId, int s) {
    int slot = s;
    if (cellId == 9) slot = (s + 3) % 6;  // its two rows of squares are swapped
    QPoint offset = kSquares[sideOf(cellId)][static_cast<std::size_t>(slot)];
    if (cellId == 20) offset.rx() += 510;
    return at(cellId, offset, 150, 120);
}

namespace {

// The band is a fifth of the cell's depth, as the cells are painted.
constexpr qreal kBandShare = 0.2;

// Marks lie on the band, the strip of a cell facing the centre, so the name stays clear.
// A piece of it is given along the edge (a, from the band's start) and across it (t, from
// the band's outer line towards the centre and on past the cell).
QRectF bandPiece(int cellId, qreal a0, qreal a1, qreal t0, qreal t1) {
    const QRectF band = bandRect(cellId);
    switch (sideOf(cellId)) {
        case Bottom:
            return QRectF(QPointF(band.left() + a0, band.bottom() - t1),
                          QPointF(band.left() + a1, band.bottom() - t0));
        case Top:
            return QRectF(QPointF(band.left() + a0, band.top() + t0),
                          QPointF(band.left() + a1, band.top() + t1));
        case Left:
            return QRectF(QPointF(band.left() + t0, band.top() + a0),
                          QPointF(band.left() + t1, band.top() + a1));
        case Right:
            return QRectF(QPointF(band.right() - t1, band.top() + a0),
                          QPointF(band.right() - t0, band.top() + a1));
    }
    return {};
}

qreal bandLength(int cellId) {
    const QRectF band = bandRect(cellId);
    return isSideCell(cellId) ? band.height() : band.width();
}
qreal bandDepth(int cellId) {
    const QRectF band = bandRect(cellId);
    return isSideCell(cellId) ? band.width() : band.height();
}

constexpr qreal kTabSide = 18;
constexpr qreal kMarksStart = kTabSide + 3;

}  // namespace

QRectF bandRect(int cellId) {
    const QRectF cell = cellRect(cellId);
    if (cellId % 10 == 0) return {};
    const bool side = isSideCell(cellId);
    const qreal depth = std::round((side ? cell.width() : cell.height()) * kBandShare);
    switch (sideOf(cellId)) {
        case Bottom:
            return {cell.left(), cell.top(), cell.width(), depth};
        case Top:
            return {cell.left(), cell.bottom() - depth, cell.width(), depth};
        case Left:
            return {cell.right() - depth, cell.top(), depth, cell.height()};
        case Right:
            return {cell.left(), cell.top(), depth, cell.height()};
    }
    return {};
}

QRectF hotelRect(int cellId, int h) {
    const qreal slot = (bandLength(cellId) - kMarksStart - 2) / 4;
    const qreal a = kMarksStart + slot * h;
    return bandPiece(cellId, a + 0.5, a + slot - 0.5, 2, bandDepth(cellId) - 2);
}

QRectF mortgageRect(int cellId) {
    // The stamp runs the band's length and a little past it, over the centre, to hold its
    // word whole at 7 px; the owner's tab shows through it.
    return bandPiece(cellId, 1, bandLength(cellId) - 1, 1, bandDepth(cellId) + 5);
}

QRectF ownerRect(int cellId) {
    const qreal d = bandDepth(cellId);
    return bandPiece(cellId, 2, 2 + kTabSide, d - kTabSide / 2, d + kTabSide / 2);
}

QRectF bigTokenRect(int playerId, int cellId) {
    return bigTokenRect(playerId, cellId, 0, 1);
}

// The tokens stand on the band and past it, over the centre, never on the name; several on
// one cell fan out along the edge, every other one a step further in.
QRectF bigTokenRect(int playerId, int cellId, int slot, int count) {
    const qreal size = playerId == 0 ? 48 : 40;
    const qreal spread = std::min<qreal>(13, 60.0 / std::max(count, 1));
    const qreal lateral = (slot - (count - 1) / 2.0) * spread;
    const qreal stagger = slot % 2 == 1 ? 8 : 0;
    if (cellId % 10 == 0) {
        // A corner: round the corner that touches the centre, fanned across its diagonal.
        const QRectF cell = cellRect(cellId);
        const QRectF centre = centreRect();
        const QPointF inner(cell.center().x() < centre.center().x() ? cell.right() : cell.left(),
                            cell.center().y() < centre.center().y() ? cell.bottom() : cell.top());
        const QPointF in((centre.center().x() - inner.x()) > 0 ? 1 : -1,
                         (centre.center().y() - inner.y()) > 0 ? 1 : -1);
        const qreal reach = size / 2 - 6 + stagger;
        const QPointF middle = inner + QPointF(in.x() * reach, in.y() * reach) +
                               QPointF(-in.y() * lateral, in.x() * lateral) * 0.8;
        return {middle.x() - size / 2, middle.y() - size / 2, size, size};
    }
    const qreal along = bandLength(cellId) / 2 + lateral;
    const qreal t0 = 2 + stagger;
    return bandPiece(cellId, along - size / 2, along + size / 2, t0, t0 + size);
}

QRectF dieRect(int die) {
    return die == 1 ? QRectF(px(4080), px(6480), px(825), px(705))
                    : QRectF(px(4560), px(6240), px(825), px(705));
}

}  // namespace gw::view
