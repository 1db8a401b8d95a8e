// SPDX-License-Identifier: GPL-3.0-or-later
// The faces the board prints come from the main window's model, read from the cells
// once they exist: the view paints nothing it did not get from there.
#include <gtest/gtest.h>

#include "RunFixture.h"

namespace gw::test {
namespace {

using CellFacesFromTheMainWindow = RunFixture;

TEST_F(CellFacesFromTheMainWindow, EachKindOfCellPrintsItsOwnFace) {
    const MainWindow& m = main();

    EXPECT_EQ(m.cellFace(0).kind, CellFaceKind::Go);
    EXPECT_EQ(m.cellFace(30).kind, CellFaceKind::Police);
    EXPECT_EQ(m.cellFace(20).kind, CellFaceKind::FreeStop);

    const CellFace& street = m.cellFace(39);
    EXPECT_EQ(street.kind, CellFaceKind::Street);
    EXPECT_EQ(street.name, "The Boulevard");
    EXPECT_EQ(street.price, 500);
    EXPECT_EQ(street.district, 8);

    // The two utilities wear different pictures; a metro prints its price, a card cell none.
    EXPECT_EQ(m.cellFace(12).kind, CellFaceKind::UtilityBulb);
    EXPECT_EQ(m.cellFace(28).kind, CellFaceKind::UtilityTower);
    EXPECT_EQ(m.cellFace(5).price, 300);
    EXPECT_EQ(m.cellFace(2).kind, CellFaceKind::Jfl);
    EXPECT_EQ(m.cellFace(2).price, 0);

    // A tax cell prints the sum it asks, as its card asks it.
    EXPECT_EQ(m.cellFace(4).kind, CellFaceKind::Tax);
    EXPECT_EQ(m.cellFace(4).price, 200);
    EXPECT_EQ(m.cellFace(38).price, 75);
}

}  // namespace
}  // namespace gw::test
