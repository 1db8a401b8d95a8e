// SPDX-License-Identifier: GPL-3.0-or-later
// Where things sit: the cell sizes close the ring, every band faces the centre, and the
// places the program writes or puts controls on are left free of printed ink.
#include <gtest/gtest.h>

#include <QPainter>

#include "Catalogue.h"
#include "art/Cards.h"
#include "art/EndAbout.h"
#include "art/Palette.h"
#include "art/Render.h"
#include "art/StartWindow.h"

namespace gw::art {
namespace {

// Pixels dark enough to be ink (text, outlines) inside an area of an image.
int inkPixels(const QImage& image, const QRect& area) {
    const qreal dpr = image.devicePixelRatio();
    int count = 0;
    for (int y = area.top(); y <= area.bottom(); ++y)
        for (int x = area.left(); x <= area.right(); ++x)
            if (image.pixelColor(static_cast<int>(x * dpr), static_cast<int>(y * dpr)).lightness() <
                110)
                ++count;
    return count;
}

TEST(BoardLayout, OppositeSidesHaveTheSameLength) {
    int bottom = 0, top = 0, left = 0, right = 0;
    for (int i = 1; i <= 9; ++i) {
        bottom += boardCellSize(i).width();
        left += boardCellSize(10 + i).height();
        top += boardCellSize(20 + i).width();
        right += boardCellSize(30 + i).height();
    }
    EXPECT_EQ(bottom, top);
    EXPECT_EQ(left, right);
    EXPECT_EQ(boardCellSize(0).height(), boardCellSize(10).height());
    EXPECT_EQ(boardCellSize(20).width(), boardCellSize(10).width());
    EXPECT_EQ(boardCellSize(30).width(), boardCellSize(0).width());
}

TEST(BoardLayout, EveryBandFacesTheCentre) {
    const std::vector<CellFace> faces = boardFaces();
    for (int ring = 0; ring < kBoardCells; ++ring) {
        const CellFace& face = faces[static_cast<std::size_t>(ring)];
        if (face.kind != CellKind::Street) continue;
        const QSize s = boardCellSize(ring);
        const QImage cell = renderImage(s, 2, [&](QPainter& p, const QRectF& r) {
            paintBoardCell(p, r, face, boardCellEdge(ring));
        });
        // Points 6 px inside the inner and the outer edge, halfway along the cell.
        QPoint inner, outer;
        switch (boardCellEdge(ring)) {
            case Edge::Bottom:
                inner = {s.width() / 2, 6}, outer = {s.width() / 2, s.height() - 6};
                break;
            case Edge::Top:
                inner = {s.width() / 2, s.height() - 6}, outer = {s.width() / 2, 6};
                break;
            case Edge::Left:
                inner = {s.width() - 6, s.height() / 2}, outer = {6, s.height() / 2};
                break;
            case Edge::Right:
                inner = {6, s.height() / 2}, outer = {s.width() - 6, s.height() / 2};
                break;
        }
        SCOPED_TRACE(ring);
        EXPECT_EQ(cell.pixelColor(inner * 2).rgb(), face.band.rgb());
        EXPECT_NE(cell.pixelColor(outer * 2).rgb(), face.band.rgb());
    }
}

TEST(ClearAreas, CardSlotsAndButtonStripsCarryNoInk) {
    // The program writes its numbers in these boxes and puts buttons under y 244.
    const QRect streetSlots[] = {{24, 24, 153, 17},  {24, 43, 153, 17},  {72, 96, 113, 17},
                                 {112, 112, 73, 17}, {112, 130, 73, 17}, {112, 148, 73, 17},
                                 {112, 164, 73, 17}, {128, 200, 57, 17}, {120, 216, 65, 17},
                                 {16, 246, 169, 40}};
    for (int face = 0; face < kPropertyCardFaces; ++face) {
        const QImage card = renderImage(kPropertyCardSize, 2, [face](QPainter& p, const QRectF& r) {
            paintPropertyCardFace(p, r, face);
        });
        // The captions themselves are ink, so the measure does see print.
        EXPECT_GT(inkPixels(card, face < 9 ? QRect(18, 96, 40, 17) : QRect(18, 130, 40, 17)), 10);
        for (const QRect& slot : streetSlots) {
            if (face >= 9 && slot.top() >= 96 && slot.top() < 244 && slot.top() != 130 &&
                slot.top() != 164)
                continue;  // utility and metro cards use only two value rows
            SCOPED_TRACE(
                QStringLiteral("face %1 slot y %2").arg(face).arg(slot.top()).toStdString());
            EXPECT_EQ(inkPixels(card, slot.adjusted(1, 2, -1, -2)), 0);
        }
    }
    for (TradeSide side : {TradeSide::Owner, TradeSide::Buyer}) {
        const QImage card = renderImage(kTradeCardSize, 1, [side](QPainter& p, const QRectF& r) {
            paintTradeCard(p, r, side);
        });
        for (int y : {104, 120, 136, 152}) EXPECT_EQ(inkPixels(card, QRect(82, y + 2, 100, 12)), 0);
        EXPECT_EQ(inkPixels(card, QRect(16, 242, 169, 30)), 0);
        if (side == TradeSide::Buyer) {
            EXPECT_EQ(inkPixels(card, QRect(114, 210, 69, 21)), 0);
        }
    }
    const QImage jfl =
        renderImage(kNoticeCardSize, 1, [](QPainter& p, const QRectF& r) { paintJflCard(p, r); });
    EXPECT_EQ(inkPixels(jfl, QRect(30, 123, 159, 103)), 0);
    EXPECT_EQ(inkPixels(jfl, QRect(86, 233, 55, 31)), 0);
}

TEST(ClearAreas, WindowBackgroundsLeaveTheControlsTheirPlaces) {
    const QImage start = renderImage(
        {600, 400}, 1, [](QPainter& p, const QRectF& r) { paintStartBackground(p, r); });
    EXPECT_EQ(inkPixels(start, QRect(146, 160, 165, 21)), 0);  // name entry
    for (int row = 0; row < 2; ++row)
        for (int i = 0; i < 7; ++i)
            EXPECT_EQ(inkPixels(start, QRect(8 + 56 * i + 4, 253 + 56 * row + 4, 48, 48)), 0);
    EXPECT_EQ(inkPixels(start, QRect(418, 186, 140, 148)), 0);  // the list of players
    const QImage end = renderImage({600, 491}, 1, [](QPainter& p, const QRectF& r) {
        paintEndBackground(p, r, QStringLiteral("The city is yours."));
    });
    EXPECT_EQ(inkPixels(end, QRect(98, 106, 261, 13)), 0);   // the winner's line
    EXPECT_EQ(inkPixels(end, QRect(416, 280, 169, 89)), 0);  // the buttons
}

}  // namespace
}  // namespace gw::art
