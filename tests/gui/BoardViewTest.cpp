// SPDX-License-Identifier: GPL-3.0-or-later
// The board as drawn and as read, at every size. To a screen reader: forty buttons named as
// the cells print, lying where the cells lie, whose press does what a click on the cell does.
// At other sizes everything stands at its design place times one scale, so a click at the
// scaled centre of Roll Dice, of a cell and of a card's button reaches it, and a window of
// another shape keeps the proportions. Drawn at twice the size a die is as sharp as one
// painted there. At its busiest (six players, every buyable cell owned, a third mortgaged, a
// third with four hotels, six tokens on a cell) the marks leave every cell's name clear.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAccessible>
#include <QAccessibleActionInterface>
#include <QAction>
#include <QPainter>
#include <algorithm>
#include <cstdlib>

#include "GuiRun.h"
#include "WorstCase.h"
#include "art/Dice.h"
#include "art/Render.h"
#include "art/Tokens.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/BoardLayout.h"
#include "view/BoardWidget.h"
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

// Ann and a computer seated, Ann to roll.
class SeatedBoard : public ::testing::Test {
protected:
    SeatedBoard() { gui.seatAnnAndAComputer(); }
    GuiRun gui{std::make_unique<SeededRandom>(4)};
    view::MainWindowView& main = gui.program->mainView();
};

TEST_F(SeatedBoard, FortyCellButtonsNamedAsTheCellsAndPlacedAtTheZoom) {
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

TEST_F(SeatedBoard, PressingACellOpensItsCardAsAClickDoes) {
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
TEST_F(SeatedBoard, PanelsNameTheTokensTheyShow) {
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
TEST_F(SeatedBoard, TurnButtonsUnderlineTheirAltLetterAndKeepTheirCaptions) {
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

// What the board shows over a cell's name.
QImage nameOnBoard(view::MainWindowView& main, int c) {
    const QRectF name = nameArea(c);
    const qreal scale = main.scale();
    return main.board()
        .grab(QRectF(name.topLeft() * scale, name.size() * scale).toAlignedRect())
        .toImage();
}

// A player stands on the board once: its small square is not painted over a cell's name
// while its large token is out, and is painted once the large token has gone.
TEST(CrowdedBoard, ASmallSquareShowsOnlyAPlayerWhoseLargeTokenIsGone) {
    GuiRun gui(std::make_unique<SeededRandom>(6));
    gui.seatAnnAndAComputer();
    MainWindow& model = gui.run.mainWindow();
    view::MainWindowView& main = gui.program->mainView();
    const int annId = gui.run.board().getCurrPlayer().getId();
    constexpr int kStreet = 39;
    const QImage bare = nameOnBoard(main, kStreet);
    OnCell ann{};
    ann[static_cast<std::size_t>(annId)] = true;

    gui.run.click([&] { model.showCell(ann, kStreet); });
    gui.settle();
    ASSERT_NE(model.square(kStreet, 0), kNoPicture);
    EXPECT_EQ(nameOnBoard(main, kStreet), bare);

    gui.run.click([&] { model.showBankRupt(); });
    gui.settle();
    ASSERT_FALSE(model.bigToken(annId).visible);
    EXPECT_NE(nameOnBoard(main, kStreet), bare);
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

TEST_F(SeatedBoard, TheWindowKeepsItsProportionsWithTheBoardInTheMiddleAndHasAViewMenu) {
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
