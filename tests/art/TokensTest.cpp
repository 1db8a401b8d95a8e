// SPDX-License-Identifier: GPL-3.0-or-later
// The fourteen tokens must be told apart: by silhouette and colour at 64 px, by colour alone
// on the 10 by 8 squares of the board.
#include <gtest/gtest.h>

#include <QPainter>

#include "ImageCompare.h"
#include "art/Render.h"
#include "art/Tokens.h"

namespace gw::art {
namespace {

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

TEST(Tokens, DifferAt64) {
    expectPairwiseApart(tokensAt({64, 64}), 12);
}

TEST(Tokens, DifferAtTenByEight) {
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
