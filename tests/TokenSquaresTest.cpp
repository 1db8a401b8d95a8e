// SPDX-License-Identifier: GPL-3.0-or-later
// The small squares of the cells in the main window model: a token leaves the squares of
// the cell it walks away from and fills those of the cell it lands on.
#include "GameFixture.h"

namespace gw::test {
namespace {

class TokenSquares : public GameFixture {
protected:
    TokenSquares() {
        rec.model = &model;
        model.init(*board);
        addHuman("Ann", 4);
        addHuman("Bob", 6);
        for (int s = 0; s < 2; ++s) random->push(ScriptedRandom::slot(s, 2));  // keep the order
        model.startGame();
    }
    // The token pictures in the cell's squares, up to the first empty one.
    std::vector<int> squares(int cellId) const {
        std::vector<int> shown;
        for (int s = 0; s < 6 && model.square(cellId, s) != kNoPicture; ++s) {
            shown.push_back(model.square(cellId, s));
        }
        return shown;
    }
    InstantDelay delay;
    MainWindow model{rec, delay};
};

using Tokens = std::vector<int>;

TEST_F(TokenSquares, AThrowRedrawsTheCellLeftWithoutTheToken) {
    player& ann = *board->getPlayer(0);
    nextThrow(1, 2);
    board->playTurn();                 // Go to Saint-Jacques
    EXPECT_EQ(squares(0), Tokens{6});  // Bob stays on Go
    EXPECT_EQ(squares(3), Tokens{4});

    forgetCard();
    board->endTurn();
    nextThrow(2, 1);
    board->playTurn();  // Bob joins her
    EXPECT_EQ(squares(0), Tokens{});
    EXPECT_EQ(squares(3), (Tokens{4, 6}));

    forgetCard();
    board->endTurn();
    placeAt(ann, 38);
    board->getCell(38)->display();
    ASSERT_EQ(squares(38), Tokens{4});
    nextThrow(2, 3);
    board->playTurn();  // round Go, back to Saint-Jacques
    EXPECT_EQ(squares(38), Tokens{});
    EXPECT_EQ(squares(3), (Tokens{4, 6}));
}

}  // namespace
}  // namespace gw::test
