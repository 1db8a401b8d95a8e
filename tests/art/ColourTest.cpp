// SPDX-License-Identifier: GPL-3.0-or-later
// A cell and its card share one band colour; dice faces show their number of pips.
#include <gtest/gtest.h>

#include <QPainter>

#include "Catalogue.h"
#include "art/Cards.h"
#include "art/Dice.h"
#include "art/Palette.h"
#include "art/Render.h"

namespace gw::art {
namespace {

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

}  // namespace
}  // namespace gw::art
