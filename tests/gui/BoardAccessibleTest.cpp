// SPDX-License-Identifier: GPL-3.0-or-later
// The board to a screen reader: forty buttons named as the cells print, lying where the
// cells lie at any size, whose press does what a click on the cell does.
#include <gtest/gtest.h>

#include <QAccessible>
#include <QAccessibleActionInterface>
#include <algorithm>

#include "GuiRun.h"
#include "art/Tokens.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/BoardLayout.h"
#include "view/CaptionButton.h"
#include "windows/CellInfoWindow.h"
#include "windows/MainWindow.h"

namespace gw::test {
namespace {

// Where a cell of the design lies on the screen at a scale.
QRect screenCell(view::BoardWidget& board, int cellId, qreal scale) {
    const QRectF design = view::cellRect(cellId);
    const QRect local = QRectF(design.topLeft() * scale, design.size() * scale).toRect();
    return {board.mapToGlobal(local.topLeft()), local.size()};
}

TEST(BoardAccessible, FortyCellButtonsNamedAsTheCellsAndPlacedAtTheZoom) {
    GuiRun gui(std::make_unique<SeededRandom>(4));
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    view::BoardWidget& board = main.board();
    QAccessibleInterface* boardFace = QAccessible::queryAccessibleInterface(&board);
    ASSERT_NE(boardFace, nullptr);
    EXPECT_EQ(boardFace->text(QAccessible::Name), QStringLiteral("Board"));
    EXPECT_FALSE(boardFace->text(QAccessible::Description).isEmpty());
    ASSERT_EQ(boardFace->childCount(), 40);

    for (int c = 0; c < 40; ++c) {
        QAccessibleInterface* cell = boardFace->child(c);
        ASSERT_NE(cell, nullptr) << c;
        EXPECT_EQ(cell->role(), QAccessible::Button) << c;
        EXPECT_EQ(cell->text(QAccessible::Name).toStdString(),
                  gui.run.board().getCell(static_cast<Integer>(c))->Cell_getName())
            << c;
        EXPECT_EQ(cell->parent(), boardFace);
        EXPECT_EQ(boardFace->indexOfChild(cell), c);
    }
    EXPECT_EQ(boardFace->child(0)->text(QAccessible::Name), QStringLiteral("GO"));
    EXPECT_EQ(boardFace->child(1)->text(QAccessible::Name), QStringLiteral("Saint-Antoine"));
    EXPECT_EQ(boardFace->child(10)->text(QAccessible::Name), QStringLiteral("Jail"));
    EXPECT_EQ(boardFace->child(38)->text(QAccessible::Name), QStringLiteral("Luxury Tax"));

    for (const qreal scale : {1.0, 1.5, 0.75}) {
        main.zoomTo(scale);
        gui.settle();
        for (int c : {0, 1, 10, 25, 38}) {
            const QRect want = screenCell(board, c, main.scale());
            EXPECT_EQ(boardFace->child(c)->rect(), want) << c << " at " << scale;
            const QAccessibleInterface* hit =
                boardFace->childAt(want.center().x(), want.center().y());
            EXPECT_EQ(hit, boardFace->child(c)) << c << " at " << scale;
        }
    }
}

TEST(BoardAccessible, PressingACellOpensItsCardAsAClickDoes) {
    GuiRun gui(std::make_unique<SeededRandom>(4));
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    main.zoomTo(1.5);
    gui.settle();
    ASSERT_FALSE(gui.run.windows().cellInfo.isVisible());
    QAccessibleInterface* street = QAccessible::queryAccessibleInterface(&main.board())->child(39);
    QAccessibleActionInterface* actions = street->actionInterface();
    ASSERT_NE(actions, nullptr);
    EXPECT_EQ(actions->actionNames(), QStringList{QAccessibleActionInterface::pressAction()});
    // A disabled board takes no click, and no press either.
    main.client().setEnabled(false);
    actions->doAction(QAccessibleActionInterface::pressAction());
    QCoreApplication::processEvents();
    EXPECT_FALSE(gui.run.windows().cellInfo.isVisible());
    main.client().setEnabled(true);
    actions->doAction(QAccessibleActionInterface::pressAction());
    gui.settle();
    EXPECT_TRUE(gui.run.windows().cellInfo.isVisible());
    EXPECT_EQ(gui.run.windows().cellInfo.cardId(), 39);
}

// The panels' painted tokens are named: each row's token and player, and whose turn it is.
TEST(BoardAccessible, PanelsNameTheTokensTheyShow) {
    GuiRun gui(std::make_unique<SeededRandom>(4));
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    QStringList names;
    for (const QWidget* w : main.client().findChildren<QWidget*>()) names << w->accessibleName();
    const player& ann = gui.run.board().getCurrPlayer();
    ASSERT_EQ(ann.getName(), "Ann");
    const QString token = art::tokenName(std::stoi(ann.getTokenName()));
    const auto withAnn = [&](const QString& name) {
        return name.startsWith(QStringLiteral("Players: ")) &&
               name.contains(token + QStringLiteral(" Ann"));
    };
    EXPECT_TRUE(std::any_of(names.begin(), names.end(), withAnn))
        << names.join(QLatin1Char('|')).toStdString();
    EXPECT_TRUE(names.contains(QStringLiteral("Now playing: ") + token))
        << names.join(QLatin1Char('|')).toStdString();
}

// The Alt letter is drawn underlined; the caption the model writes stays as it is.
TEST(BoardAccessible, TurnButtonsUnderlineTheirAltLetterAndKeepTheirCaptions) {
    GuiRun gui(std::make_unique<SeededRandom>(4));
    gui.seatAnnAndAComputer();
    const view::ControlSet& controls = gui.program->mainView().controls();
    const MainWindow& model = gui.run.mainWindow();
    struct Key {
        const char* name;
        char letter;
        const Control& model;
    };
    for (const Key& key :
         {Key{"rollDice", 'R', model.rollDice()}, Key{"endTurn", 'E', model.endTurn()},
          Key{"declareBank", 'B', model.declareBank()}}) {
        const char* name = key.name;
        auto* button = qobject_cast<view::CaptionButton*>(controls.button(name));
        ASSERT_NE(button, nullptr) << name;
        const QString caption = QString::fromStdString(key.model.caption);
        EXPECT_EQ(button->text(), caption) << name;
        QString drawn = button->drawnCaption();
        const qsizetype mark = drawn.indexOf(QLatin1Char('&'));
        ASSERT_GE(mark, 0) << name;
        EXPECT_EQ(drawn.at(mark + 1).toUpper(), QLatin1Char(key.letter)) << name;
        EXPECT_EQ(drawn.remove(mark, 1), caption) << name;
    }
}

}  // namespace
}  // namespace gw::test
