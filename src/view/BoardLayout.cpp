#include "view/BoardLayout.h"

#include <QPointF>
#include <array>

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

struct Offsets {
    std::array<QPoint, 6> squares;  // IsOn1, IsOn2, IsOn3, IsOn6, IsOn7, IsOn8
    std::array<QPoint, 4> hotels;
    QPoint mortgage;
    QPoint owner;
};

// Offsets in twips from the cell's left and top, by side of the board.
const std::array<Offsets, 4> kOffsets = {{
    {{{{120, 840}, {285, 840}, {465, 840}, {120, 1005}, {285, 1005}, {465, 1005}}},
     {{{360, -120}, {510, -120}, {420, -15}, {600, -30}}},
     {360, -180},
     {0, -120}},
    {{{{150, 165}, {315, 165}, {150, 465}, {150, 330}, {315, 330}, {330, 480}}},
     {{{1080, 435}, {1080, 570}, {960, 360}, {960, 540}}},
     {840, 345},
     {960, 0}},
    {{{{120, 120}, {285, 120}, {465, 120}, {120, 285}, {285, 285}, {465, 285}}},
     {{{0, 960}, {150, 960}, {60, 1065}, {240, 1050}}},
     {0, 840},
     {360, 960}},
    {{{{765, 165}, {930, 165}, {765, 465}, {765, 330}, {930, 330}, {945, 480}}},
     {{{-120, 75}, {-120, 210}, {0, 0}, {0, 180}}},
     {-195, 0},
     {-120, 360}},
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
    QPoint offset = kOffsets[sideOf(cellId)].squares[static_cast<std::size_t>(slot)];
    if (cellId == 20) offset.rx() += 510;
    return at(cellId, offset, 150, 120);
}

QRectF hotelRect(int cellId, int h) {
    const QPoint offset = kOffsets[sideOf(cellId)].hotels[static_cast<std::size_t>(h)];
    return isSideCell(cellId) ? at(cellId, offset, 315, 180) : at(cellId, offset, 180, 315);
}

QRectF mortgageRect(int cellId) {
    const QPoint offset = kOffsets[sideOf(cellId)].mortgage;
    return isSideCell(cellId) ? at(cellId, offset, 630, 435) : at(cellId, offset, 435, 630);
}

QRectF ownerRect(int cellId) {
    return at(cellId, kOffsets[sideOf(cellId)].owner, 360, 360);
}

QRectF bigTokenRect(int playerId, int cellId) {
    QPoint offset;
    if (cellId == 0)
        offset = {360, 360};
    else if (cellId < 10)
        offset = {90, 360};
    else if (cellId == 10)
        offset = {300, 360};
    else if (cellId < 20)
        offset = {300, 90};
    else if (cellId == 20)
        offset = {300, 300};
    else if (cellId < 30)
        offset = {90, 300};
    else if (cellId == 30)
        offset = {300, 360};
    else
        offset = {360, 90};
    const int size = playerId == 0 ? 720 : 600;
    return at(cellId, offset, size, size);
}

QRectF dieRect(int die) {
    return die == 1 ? QRectF(px(4080), px(6480), px(825), px(705))
                    : QRectF(px(4560), px(6240), px(825), px(705));
}

}  // namespace gw::view
