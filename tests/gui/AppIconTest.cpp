// SPDX-License-Identifier: GPL-3.0-or-later
// The icons a desktop shows: the scalable SVG draws the same picture as the painted PNGs,
// and the small sizes are painted for their size rather than shrunk from a big one.
#include <gtest/gtest.h>

#include <QColor>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>

#include "view/Pictures.h"

namespace gw::test {
namespace {

// Mean difference of the channels of two images of one size, 0 to 255.
double meanDifference(const QImage& a, const QImage& b) {
    const QImage x = a.convertToFormat(QImage::Format_ARGB32);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32);
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int col = 0; col < x.width(); ++col) {
            const QRgb p = x.pixel(col, row);
            const QRgb q = y.pixel(col, row);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q)) + std::abs(qAlpha(p) - qAlpha(q));
        }
    }
    return sum / (4.0 * x.width() * x.height());
}

TEST(AppIcon, TheScalableIconDrawsWhatThePaintedOneShows) {
    QSvgRenderer svg(QStringLiteral(GILDENWAY_ICON_THEME "/scalable/apps/gildenway.svg"));
    ASSERT_TRUE(svg.isValid());
    QImage drawn(256, 256, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter);
    painter.end();
    const QImage painted = view::appIcon(256);
    ASSERT_EQ(painted.size(), drawn.size());
    EXPECT_LT(meanDifference(drawn, painted), 3.0);
    // Not an empty picture that matches an empty one: the tile covers most of the square.
    int opaque = 0;
    for (int row = 0; row < 256; ++row) {
        for (int col = 0; col < 256; ++col) opaque += qAlpha(drawn.pixel(col, row)) == 255;
    }
    EXPECT_GT(opaque, 256 * 256 * 8 / 10);
}

TEST(AppIcon, SmallSizesArePaintedNotShrunk) {
    for (const int size : {16, 22, 24, 32}) {
        const QImage painted = view::appIcon(size);
        ASSERT_EQ(painted.size(), QSize(size, size));
        const QImage shrunk =
            view::appIcon(256).scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_GT(meanDifference(painted, shrunk), 4.0) << size << " px";
    }
}

}  // namespace
}  // namespace gw::test
