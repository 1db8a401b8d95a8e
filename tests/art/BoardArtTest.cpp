// SPDX-License-Identifier: GPL-3.0-or-later
// Where things sit: the cell sizes close the ring, every band faces the centre, and the
// places the program writes or puts controls on are left free of printed ink. The pieces of
// the board: a cell and its card share one band colour, dice faces show their number of
// pips, the side hotel is the upright one turned, the mortgage stamp lets the cell show
// through, pictures come out at the ratio asked for, and the fourteen tokens are told apart
// by silhouette and colour at 64 px and by colour alone on the 10 by 8 squares.
#include <gtest/gtest.h>

#include <QPainter>
#include <QTransform>

#include "Catalogue.h"
#include "ImageCompare.h"
#include "art/Cards.h"
#include "art/Dice.h"
#include "art/EndAbout.h"
#include "art/Marks.h"
#include "art/Palette.h"
#include "art/Render.h"
#include "art/StartWindow.h"
#include "art/Tokens.h"

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

bool near(QColor a, QColor b, int tolerance) {
    return std::abs(a.red() - b.red()) <= tolerance &&
           std::abs(a.green() - b.green()) <= tolerance &&
           std::abs(a.blue() - b.blue()) <= tolerance;
}

TEST(Colours, CellBandMatchesItsCard) {
    const std::vector<CellFace> faces = boardFaces();
    // One street of each district, with where its band lies on its side of the board.
    const std::pair<int, QPoint> probes[] = {{1, {26, 8}},   {6, {26, 8}},   {11, {74, 25}},
                                             {16, {74, 25}}, {21, {26, 75}}, {26, {26, 75}},
                                             {31, {8, 25}},  {37, {8, 25}}};
    for (const auto& [ring, at] : probes) {
        const QImage cell = renderImage(boardCellSize(ring), 1, [&](QPainter& p, const QRectF& r) {
            paintBoardCell(p, r, faces[static_cast<std::size_t>(ring)], boardCellEdge(ring));
        });
        const int district = (ring / 10) * 2 + (ring % 10 > 5 ? 2 : 1);
        const QImage card = renderImage(kPropertyCardSize, 1, [&](QPainter& p, const QRectF& r) {
            paintPropertyCardFace(p, r, district - 1);
        });
        SCOPED_TRACE(ring);
        EXPECT_TRUE(near(cell.pixelColor(at), colour::districtBand(district), 12));
        EXPECT_TRUE(near(card.pixelColor(18, 20), colour::districtBand(district), 12));
    }
}

TEST(Dice, EachFaceShowsItsPips) {
    // Count pips as dark blobs along a scan of the whole face.
    auto darkShare = [](int value) {
        const QImage face = renderImage(
            {100, 100}, 1, [value](QPainter& p, const QRectF& r) { paintDieFace(p, r, value); });
        int dark = 0;
        for (int y = 10; y < 90; ++y)
            for (int x = 10; x < 90; ++x)
                if (face.pixelColor(x, y).lightness() < 90) ++dark;
        return dark;
    };
    int previous = 0;
    for (int v = 1; v <= 6; ++v) {
        const int dark = darkShare(v);
        EXPECT_GT(dark, previous) << "face " << v;
        previous = dark;
    }
}

TEST(Marks, SideHotelIsTheUprightOneTurned) {
    const QImage upright =
        renderImage({12, 21}, 2, [](QPainter& p, const QRectF& r) { paintHotel(p, r); });
    const QImage side =
        renderImage({21, 12}, 2, [](QPainter& p, const QRectF& r) { paintHotel(p, r); });
    const QImage turned = upright.transformed(QTransform().rotate(90));
    EXPECT_LT(test::meanDifference(turned, side), 3.0);
    EXPECT_GT(test::meanDifference(upright.transformed(QTransform().rotate(-90)), side), 10.0);
}

TEST(Marks, MortgageStampIsRedAndLetsTheCellShowThrough) {
    for (QSize size : {QSize(29, 42), QSize(42, 29)}) {
        const QImage stamp =
            renderImage(size, 1, [](QPainter& p, const QRectF& r) { paintMortgageStamp(p, r); });
        int opaque = 0, reddish = 0, covered = 0;
        for (int y = 0; y < stamp.height(); ++y)
            for (int x = 0; x < stamp.width(); ++x) {
                const QColor c = stamp.pixelColor(x, y);
                if (c.alpha() == 255) ++opaque;
                if (c.alpha() > 0) ++covered;
                if (c.alpha() > 100 && c.red() > c.green() + 60) ++reddish;
            }
        EXPECT_EQ(opaque, 0);
        EXPECT_GT(reddish, 40);
        EXPECT_LT(covered, size.width() * size.height() * 3 / 4);
    }
}

TEST(Render, PixmapCarriesItsRatio) {
    const QPixmap pm =
        renderPicture({24, 24}, 2, [](QPainter& p, const QRectF& r) { paintToken(p, r, 3); });
    EXPECT_EQ(pm.devicePixelRatio(), 2);
    EXPECT_EQ(pm.size(), QSize(48, 48));
    EXPECT_EQ(pm.deviceIndependentSize(), QSizeF(24, 24));
}

std::vector<QImage> tokensAt(QSize size) {
    std::vector<QImage> images;
    for (int t = 0; t < kTokenCount; ++t)
        images.push_back(
            renderImage(size, 1, [t](QPainter& p, const QRectF& r) { paintToken(p, r, t); }));
    return images;
}

void expectPairwiseApart(const std::vector<QImage>& images, double threshold) {
    for (std::size_t a = 0; a < images.size(); ++a)
        for (std::size_t b = a + 1; b < images.size(); ++b)
            EXPECT_GT(test::meanDifference(images[a], images[b]), threshold)
                << tokenName(static_cast<int>(a)).toStdString() << " and "
                << tokenName(static_cast<int>(b)).toStdString();
}

TEST(Tokens, DifferAt64AndAtTenByEight) {
    expectPairwiseApart(tokensAt({64, 64}), 12);
    expectPairwiseApart(tokensAt({10, 8}), 20);
}

TEST(Tokens, ColoursAreFarApart) {
    // Distance in a roughly perceptual space: lightness counts twice.
    for (int a = 0; a < kTokenCount; ++a)
        for (int b = a + 1; b < kTokenCount; ++b) {
            const QColor x = tokenColour(a), y = tokenColour(b);
            const double dr = x.redF() - y.redF(), dg = x.greenF() - y.greenF(),
                         db = x.blueF() - y.blueF();
            const double dl = x.lightnessF() - y.lightnessF();
            EXPECT_GT(std::sqrt(dr * dr + dg * dg + db * db + 2 * dl * dl), 0.25)
                << tokenName(a).toStdString() << " and " << tokenName(b).toStdString();
        }
}

TEST(Tokens, IndexWrapsInsteadOfFailing) {
    EXPECT_EQ(tokenColour(kTokenCount), tokenColour(0));
    EXPECT_EQ(tokenName(-1), tokenName(kTokenCount - 1));
}

}  // namespace
}  // namespace gw::art
