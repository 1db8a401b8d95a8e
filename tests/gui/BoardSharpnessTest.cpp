// SPDX-License-Identifier: GPL-3.0-or-later
// The board keeps its pieces as pictures; drawn into a picture twice the size, as on a
// high-density screen, a die must come out as sharp as one painted there directly.
#include <gtest/gtest.h>

#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "GuiRun.h"
#include "art/Dice.h"
#include "art/Render.h"
#include "view/BoardLayout.h"
#include "view/BoardWidget.h"

namespace gw::test {
namespace {

// The largest difference of a colour channel where the piece painted alone is opaque.
int largestDifferenceOnThePiece(const QImage& drawn, const QImage& alone) {
    int largest = 0;
    for (int y = 0; y < alone.height(); ++y) {
        for (int x = 0; x < alone.width(); ++x) {
            const QRgb q = alone.pixel(x, y);
            if (qAlpha(q) != 255) continue;
            const QRgb p = drawn.pixel(x, y);
            largest = std::max({largest, std::abs(qRed(p) - qRed(q)),
                                std::abs(qGreen(p) - qGreen(q)), std::abs(qBlue(p) - qBlue(q))});
        }
    }
    return largest;
}

TEST(BoardSharpness, ADieDrawnAtTwiceTheSizeIsPaintedAtThatSize) {
    GuiRun gui(std::make_unique<SeededRandom>(3));
    MainWindow& model = gui.run.mainWindow();
    gui.run.click([&] { model.Showdice(3, 5); });
    view::BoardWidget board(nullptr, model, view::cellPrints(model));

    constexpr qreal kRatio = 2;
    QImage drawn(board.size() * kRatio, QImage::Format_ARGB32_Premultiplied);
    drawn.setDevicePixelRatio(kRatio);
    board.render(&drawn);

    constexpr qreal kSide = 31;  // the die as the board places it, on the centre of its spot
    const QRectF die(view::dieRect(1).center() - QPointF(kSide / 2, kSide / 2),
                     QSizeF(kSide, kSide));
    const QImage alone =
        art::renderImage(die.size().toSize(), kRatio, [&](QPainter& p, const QRectF& r) {
            art::paintDieFace(p, r, 3);
        }).convertToFormat(QImage::Format_ARGB32);
    const QImage face = drawn.copy(QRect((die.topLeft() * kRatio).toPoint(), alone.size()))
                            .convertToFormat(QImage::Format_ARGB32);
    // Scaled up from a picture at the screen's ratio, the pips' edges differ by about 95.
    EXPECT_LE(largestDifferenceOnThePiece(face, alone), 8);
}

}  // namespace
}  // namespace gw::test
