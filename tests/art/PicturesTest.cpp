// SPDX-License-Identifier: GPL-3.0-or-later
// Every picture in the catalogue: painted at 1x and 2x it has its size, is not blank, and
// every piece of text lies inside its box and the picture at 7 px or more.
#include <gtest/gtest.h>

#include <QPainter>

#include "Catalogue.h"
#include "ImageCompare.h"
#include "art/Render.h"

namespace gw::art {
namespace {

class EveryPicture : public ::testing::TestWithParam<qreal> {};

TEST_P(EveryPicture, HasItsSizeIsNotBlankAndClipsNoText) {
    const qreal dpr = GetParam();
    for (const PictureEntry& e : catalogue()) {
        SCOPED_TRACE((e.group + QStringLiteral(" / ") + e.name).toStdString());
        TextBoxes texts;
        const QImage image =
            renderImage(e.size, dpr, [&](QPainter& p, const QRectF& r) { texts = e.paint(p, r); });
        EXPECT_EQ(image.size(), e.size * dpr);
        EXPECT_GT(test::distinctColours(image), 2);
        const QRectF picture(QPointF(0, 0), QSizeF(e.size));
        for (const TextBox& t : texts) {
            SCOPED_TRACE(t.text.toStdString());
            const QRectF slack = t.frame.adjusted(-0.5, -0.5, 0.5, 0.5);
            EXPECT_TRUE(slack.contains(t.bounds))
                << "text " << t.bounds.left() << "," << t.bounds.top() << " " << t.bounds.width()
                << "x" << t.bounds.height() << " outside its box";
            EXPECT_TRUE(picture.adjusted(-0.5, -0.5, 0.5, 0.5).contains(t.bounds));
            EXPECT_GE(t.pixelSize, 6.95);
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Ratios, EveryPicture, ::testing::Values(1.0, 2.0));

TEST(Pictures, CatalogueHoldsEveryRole) {
    int cells = 0, cards = 0, dice = 0, portraits = 0;
    for (const PictureEntry& e : catalogue()) {
        if (e.name.startsWith(QStringLiteral("cell "))) ++cells;
        if (e.name.startsWith(QStringLiteral("property "))) ++cards;
        if (e.name.startsWith(QStringLiteral("die "))) ++dice;
        if (e.name.startsWith(QStringLiteral("team "))) ++portraits;
    }
    EXPECT_EQ(cells, 40);
    EXPECT_EQ(cards, 12);
    EXPECT_EQ(dice, 6);
    EXPECT_EQ(portraits, 10);
}

TEST(Pictures, TwoTimesIsPaintedNotScaled) {
    // A 2x picture painted afresh has finer edges than the 1x one blown up.
    const auto paint = [](QPainter& p, const QRectF& r) {
        paintBoardCell(p, r, boardFaces()[19], boardCellEdge(19));
    };
    const QImage sharp = renderImage(boardCellSize(19), 2, paint);
    const QImage blown = renderImage(boardCellSize(19), 1, paint)
                             .scaled(sharp.size(), Qt::IgnoreAspectRatio, Qt::FastTransformation);
    EXPECT_GT(test::meanDifference(sharp, blown), 2.0);
}

}  // namespace
}  // namespace gw::art
