// SPDX-License-Identifier: GPL-3.0-or-later
// Marks laid over cells: the side hotel is the upright one turned, the mortgage stamp lets
// the cell show through, and pictures come out at the ratio asked for.
#include <gtest/gtest.h>

#include <QPainter>
#include <QTransform>

#include "ImageCompare.h"
#include "art/Marks.h"
#include "art/Render.h"
#include "art/Tokens.h"

namespace gw::art {
namespace {

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

}  // namespace
}  // namespace gw::art
