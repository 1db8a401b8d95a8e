// SPDX-License-Identifier: GPL-3.0-or-later
// The main window at other sizes: everything stands at its design place times one scale, so
// a click at the scaled centre of Roll Dice, of a cell and of a card's button reaches it;
// a window of another shape keeps the proportions, with the board in its middle.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>

#include "GuiRun.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/BoardLayout.h"
#include "windows/CellInfoWindow.h"
#include "windows/MainWindow.h"

namespace gw::test {
namespace {

// Clicks the window where a point of the design lands at the window's scale, on whatever
// widget is there, and returns that widget.
QWidget* clickAtDesignPoint(view::MainWindowView& main, QPointF design) {
    QWidget* client = main.board().parentWidget();
    const QPoint at = (design * main.scale()).toPoint();
    QWidget* hit = client->childAt(at);
    if (hit) QTest::mouseClick(hit, Qt::LeftButton, {}, hit->mapFrom(client, at));
    return hit;
}

class Zoom : public ::testing::TestWithParam<int> {};

TEST_P(Zoom, ClicksAtScaledPlacesReachRollDiceACardButtonAndACell) {
    auto random = std::make_unique<ScriptedRandom>(std::vector<double>{}, 7);
    ScriptedRandom& scripted = *random;
    GuiRun gui(std::move(random));
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    const qreal scale = GetParam() / 100.0;
    main.zoomTo(scale);
    gui.settle();
    ASSERT_NEAR(main.scale(), scale, 0.01);
    const player& ann = gui.run.board().getCurrPlayer();
    ASSERT_FALSE(ann.isComputer2());

    // Roll Dice, by the centre of its place in twips: a throw of 1 and 2 from Go lands on
    // the free street of cell 3, whose card offers it.
    const Integer landing = static_cast<Integer>((ann.getPosition() + 3) % 40);
    scripted.pushFaces({1, 2});
    const QPointF rollDice((1440 + 1095 / 2.0) / 15, (1560 + 495 / 2.0) / 15);
    const QWidget* hit = clickAtDesignPoint(main, rollDice);
    EXPECT_EQ(hit, main.controls().button("rollDice"));
    gui.settle();
    EXPECT_EQ(ann.getPosition(), landing);
    ASSERT_TRUE(gui.run.windows().cellInfo.isVisible());

    // The card's Forget button, at its centre.
    view::CellInfoView& card = gui.program->propertyCard();
    QAbstractButton* forget = card.controls().button("forget");
    ASSERT_TRUE(forget && forget->isVisibleTo(&card) && forget->isEnabled());
    clickOn(*forget);
    gui.settle();
    EXPECT_FALSE(gui.run.windows().cellInfo.isVisible());

    // A street across the board: its card opens for information.
    hit = clickAtDesignPoint(main, view::cellRect(39).center());
    gui.settle();
    EXPECT_EQ(hit, &main.board());
    EXPECT_TRUE(gui.run.windows().cellInfo.isVisible());
    EXPECT_EQ(gui.run.windows().cellInfo.cardId(), 39);
    savePictures(main, "zoom-" + std::to_string(GetParam()));
}

INSTANTIATE_TEST_SUITE_P(AtTwoSizes, Zoom, ::testing::Values(150, 75));

TEST(ZoomWindow, KeepsItsProportionsWithTheBoardInTheMiddleAndHasAViewMenu) {
    GuiRun gui(std::make_unique<SeededRandom>(4));
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    main.action("Zoom200").trigger();
    gui.settle();
    EXPECT_NEAR(main.scale(), 2.0, 0.01);
    main.action("Zoom100").trigger();
    gui.settle();
    EXPECT_NEAR(main.scale(), 1.0, 0.01);
    // Wider than tall: the height sets the scale, the board stands centred.
    main.resize(1400, main.height());
    gui.settle();
    EXPECT_NEAR(main.scale(), 1.0, 0.01);
    const QWidget* client = main.board().parentWidget();
    const QWidget* stage = main.centralWidget();
    EXPECT_NEAR(client->x(), (stage->width() - client->width()) / 2, 1);
    EXPECT_GE(main.screenFit(), 0.1);
}

}  // namespace
}  // namespace gw::test
