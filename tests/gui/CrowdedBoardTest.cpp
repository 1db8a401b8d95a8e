// The board at its busiest: six players, every buyable cell owned, a third mortgaged, a
// third with four hotels, six tokens on a side cell and on a corner. The marks lie on the
// band facing the centre and past it, so no cell's name is covered; the picture is written
// at 1x and 2x to be looked at.
#include <gtest/gtest.h>

#include "GuiRun.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/BoardLayout.h"

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

TEST(CrowdedBoard, IsWrittenAtItsBusiest) {
    GuiRun gui(std::make_unique<SeededRandom>(8));
    GameStart& start = gui.run.gameStart();
    for (int seat = 0; seat < kMaxPlayers; ++seat) {
        start.NickName_Change("WWWWWWWWWWWWWWWWWWW" +
                              std::string(1, static_cast<char>('M' + seat)));
        start.Token_Click(seat * 2);
        start.Command1_Click();
    }
    start.Command2_Click();
    Board& board = gui.run.board();
    int n = 0;
    for (Integer c = 0; c < kCells; ++c) {
        PropertyCell* cell = board.propertyAt(c);
        if (!cell) continue;
        player& owner = *board.getPlayer(static_cast<Integer>(n % kMaxPlayers));
        owner.newlyOwn(*cell);
        if (n % 3 == 1) {
            owner.mortgageProp(c);
        } else if (n % 3 == 2) {
            if (auto* street = dynamic_cast<Street*>(cell)) {
                for (int h = 0; h < 4; ++h) street->addHotel();
                gui.run.mainWindow().showHotel(c);
            }
        }
        ++n;
    }
    for (Integer id = 0; id < kMaxPlayers; ++id) gui.run.mainWindow().MoveToken(id, 16, 16);
    gui.settle();
    savePictures(gui.program->mainView(), "crowded-side");
    for (Integer id = 0; id < kMaxPlayers; ++id) gui.run.mainWindow().MoveToken(id, 20, 20);
    gui.settle();
    savePictures(gui.program->mainView(), "crowded-corner");
    EXPECT_GT(n, 20);
}

}  // namespace
}  // namespace gw::test
