// SPDX-License-Identifier: GPL-3.0-or-later
// The board at its busiest: six players, every buyable cell owned, a third mortgaged, a
// third with four hotels, six tokens on a side cell and on a corner. The marks lie on the
// band facing the centre and past it, so no cell's name is covered; the picture is written
// at 1x and 2x to be looked at.
#include <gtest/gtest.h>

#include "GuiRun.h"
#include "WorstCase.h"
#include "view/BoardLayout.h"
#include "windows/MainWindow.h"

namespace gw::test {
namespace {

constexpr int kCells = 40;

// The part of a cell that holds its name and price: all but the band.
QRectF nameArea(int c) {
    const QRectF cell = view::cellRect(c);
    const QRectF band = view::bandRect(c);
    if (band.isEmpty()) return {};
    if (band.top() > cell.top())
        return {cell.left(), cell.top(), cell.width(), band.top() - cell.top()};
    if (band.bottom() < cell.bottom())
        return {cell.left(), band.bottom(), cell.width(), cell.bottom() - band.bottom()};
    if (band.left() > cell.left())
        return {cell.left(), cell.top(), band.left() - cell.left(), cell.height()};
    return {band.right(), cell.top(), cell.right() - band.right(), cell.height()};
}

// Overlap of more than a hair, so shared edges and antialiasing do not count.
bool covers(const QRectF& mark, const QRectF& area) {
    const QRectF both = mark.intersected(area);
    return both.width() > 0.6 && both.height() > 0.6;
}

TEST(CrowdedBoard, MarksAndTokensLeaveEveryNameClearAtEveryCell) {
    for (int c = 0; c < kCells; ++c) {
        const QRectF names = nameArea(c);
        if (names.isEmpty()) continue;
        EXPECT_FALSE(covers(view::ownerRect(c), names)) << "owner tab on cell " << c;
        EXPECT_FALSE(covers(view::mortgageRect(c), names)) << "mortgage stamp on cell " << c;
        for (int h = 0; h < 4; ++h) {
            const QRectF hotel = view::hotelRect(c, h);
            EXPECT_TRUE(view::bandRect(c).contains(hotel)) << "hotel " << h << " on cell " << c;
            for (int other = 0; other < h; ++other) {
                EXPECT_FALSE(covers(hotel, view::hotelRect(c, other))) << "hotels on cell " << c;
            }
        }
        for (int count = 1; count <= kMaxPlayers; ++count) {
            for (int slot = 0; slot < count; ++slot) {
                for (int cc = c - 1; cc <= c + 1; ++cc) {
                    // Fanned tokens may lean over a neighbour's band, never over its name.
                    const QRectF near = nameArea((cc + kCells) % kCells);
                    EXPECT_FALSE(covers(view::bigTokenRect(slot, c, slot, count), near))
                        << "token " << slot << " of " << count << " on cell " << c;
                }
            }
        }
    }
}

// The scenario of the worst-case sheet is as crowded as it says, and is written.
TEST(CrowdedBoard, TheWorstCaseHasEveryMarkAndSixTokensOnACell) {
    worst::WorstCase crowded;
    crowded.seatSix();
    crowded.crowdTheBoard();
    crowded.standAllOn(16);
    const MainWindow& main = crowded.run().mainWindow();
    int owned = 0, mortgaged = 0, fullStreets = 0, onSixteen = 0;
    for (int c = 0; c < kCells; ++c) {
        owned += main.ownerMark(c) >= 0 ? 1 : 0;
        mortgaged += main.mortgageShown(c) ? 1 : 0;
        fullStreets += main.hotelsShown(c) == 4 ? 1 : 0;
    }
    for (int id = 0; id < kMaxPlayers; ++id) onSixteen += main.bigToken(id).cell == 16 ? 1 : 0;
    EXPECT_EQ(owned, 28);
    EXPECT_EQ(mortgaged, 9);
    EXPECT_GE(fullStreets, 6);
    EXPECT_EQ(onSixteen, kMaxPlayers);
    savePictures(crowded.program().mainView(), "crowded-side");
}

}  // namespace
}  // namespace gw::test
