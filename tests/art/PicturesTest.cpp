// SPDX-License-Identifier: GPL-3.0-or-later
// Every picture in the catalogue: painted at 1x and 2x it has its size, is not blank, and
// every piece of text lies inside its box and the picture at 7 px or more. Text fitting wraps
// before shrinking, never below 7 px, and reports honestly when a text cannot fit.
#include <gtest/gtest.h>

#include <QPainter>

#include "Catalogue.h"
#include "ImageCompare.h"
#include "art/Render.h"
#include "art/Text.h"

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

TextBox drawOnce(QSize size, const QRectF& box, const QString& text, const TextStyle& style) {
    TextBox out;
    renderImage(size, 1, [&](QPainter& p, const QRectF&) { out = drawText(p, box, text, style); });
    return out;
}

TEST(TextFit, WrapsBeforeShrinking) {
    const TextStyle st{Face::Caption, 9, Qt::black, Qt::AlignCenter, 3, 7};
    const TextBox one = drawOnce({60, 40}, QRectF(0, 0, 60, 40), QStringLiteral("Jarry"), st);
    const TextBox two =
        drawOnce({70, 40}, QRectF(0, 0, 62, 40), QStringLiteral("De La Gauchetiere"), st);
    EXPECT_EQ(two.pixelSize, 9);
    EXPECT_GT(two.bounds.height(), one.bounds.height() * 1.5);
    EXPECT_TRUE(two.frame.contains(two.bounds));
}

TEST(TextFit, ShrinksWhenWrappingIsNotEnough) {
    const TextStyle st{Face::Caption, 12, Qt::black, Qt::AlignCenter, 1, 7};
    const TextBox t = drawOnce({80, 20}, QRectF(0, 0, 60, 20), QStringLiteral("Bonaventure"), st);
    EXPECT_LT(t.pixelSize, 12);
    EXPECT_GE(t.pixelSize, 7);
    EXPECT_TRUE(t.frame.contains(t.bounds));
}

TEST(TextFit, ReportsTextThatCannotFit) {
    const TextStyle st{Face::Caption, 9, Qt::black, Qt::AlignCenter, 1, 7};
    const TextBox t = drawOnce({40, 20}, QRectF(0, 0, 20, 10), QStringLiteral("Bonaventure"), st);
    EXPECT_FALSE(t.frame.contains(t.bounds));
}

TEST(TextFit, ScaledTextReportsItsSizeOnThePicture) {
    TextBox out;
    renderImage({100, 100}, 1, [&](QPainter& p, const QRectF&) {
        p.scale(0.5, 0.5);
        out = drawText(p, QRectF(0, 0, 200, 40), QStringLiteral("JFL"),
                       TextStyle{Face::Title, 20, Qt::black, Qt::AlignCenter, 1, 7});
    });
    EXPECT_DOUBLE_EQ(out.pixelSize, 10);
    EXPECT_LE(out.bounds.right(), 100);
}

TEST(TextFit, MoneyReadsWithADollar) {
    EXPECT_EQ(money(260), QStringLiteral("$260"));
}

TEST(TextFit, LongStreetNamesFitEveryCellSize) {
    // Names longer than the game's own, in the narrowest and the shortest cells of each side.
    const QStringList names = {QStringLiteral("Saint-Antoine street"),
                               QStringLiteral("De La Gauchetiere"),
                               QStringLiteral("Guy-Concordia metro")};
    for (int ring : {4, 15, 22, 31}) {
        for (const QString& name : names) {
            for (CellKind kind : {CellKind::Street, CellKind::Metro}) {
                TextBoxes texts;
                renderImage(boardCellSize(ring), 1, [&](QPainter& p, const QRectF& r) {
                    texts = paintBoardCell(p, r, CellFace{kind, name, 300, QColor(176, 182, 234)},
                                           boardCellEdge(ring));
                });
                for (const TextBox& t : texts) {
                    SCOPED_TRACE((name + QStringLiteral(" in cell %1").arg(ring)).toStdString());
                    EXPECT_TRUE(t.frame.adjusted(-0.5, -0.5, 0.5, 0.5).contains(t.bounds));
                    EXPECT_GE(t.pixelSize, 7);
                }
            }
        }
    }
}

}  // namespace
}  // namespace gw::art
