// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of every window shows whole in its worst case: six players with names of
// twenty wide letters, balances of -32768 and "Bankrupt", the longest messages of the game
// and the longest strings of each card. Checked with the font, the flags and the box each
// label actually paints with, at one and two device pixels to the pixel.
#include <gtest/gtest.h>

#include <QAbstractButton>

#include "GuiRun.h"
#include "game/Board.h"
#include "players/player.h"
#include "view/FitLabel.h"
#include "windows/GameEnd.h"

namespace gw::test {
namespace {

const std::string kWide = "WWWWWWWWWWWWWWWWWWWW";
const std::string kLongestCell = "De La Gauchetiere";

// A name of twenty wide letters for each seat; each differs in its last letter.
std::string wideName(int seat) {
    return kWide.substr(0, 19) + static_cast<char>('M' + seat);
}

// Every printed label and every button caption of a window stays inside its box, in type
// no smaller than the floor; a label stays inside the window.
void expectWhole(const QWidget& window, const std::string& what) {
    int checked = 0;
    for (const view::FitLabel* label : window.findChildren<view::FitLabel*>()) {
        if (!label->isVisibleTo(&window) || label->text().isEmpty()) continue;
        ++checked;
        const std::string name = what + " " + label->objectName().toStdString() + " \"" +
                                 label->text().toStdString() + "\"";
        EXPECT_GE(label->font().pixelSize(), view::kTextFloorPx) << name;
        EXPECT_TRUE(view::fitsAtEveryScale(label->font(), label->text(),
                                           label->contentsRect().size(), label->textFlags()))
            << name << " at " << label->font().pixelSize() << " px";
        const QRect inWindow(label->mapTo(&window, QPoint(0, 0)), label->size());
        EXPECT_TRUE(window.rect().contains(inWindow)) << name << " runs out of the window";
    }
    for (const QAbstractButton* button : window.findChildren<QAbstractButton*>()) {
        if (!button->isVisibleTo(&window)) continue;
        ++checked;
        EXPECT_TRUE(view::fitsAtEveryScale(button->font(), button->text(),
                                           button->rect().adjusted(3, 1, -3, -1).size(),
                                           Qt::AlignCenter | Qt::TextWordWrap))
            << what << " button \"" << button->text().toStdString() << "\"";
    }
    EXPECT_GT(checked, 0) << what;
}

class TextsWhole : public ::testing::Test {
protected:
    TextsWhole() : gui(std::make_unique<SeededRandom>(5)) {
        GameStart& start = gui.run.gameStart();
        for (int seat = 0; seat < kMaxPlayers; ++seat) {
            start.NickName_Change(wideName(seat));
            start.Token_Click(seat);
            start.Command1_Click();
        }
        gui.settle();
        expectWhole(program().startView(), "set-up");
        savePictures(program().startView(), "worst-setup");
        start.Command2_Click();
        // The widest balances: -32768 for all but one, who has gone bankrupt.
        for (int i = 0; i < kMaxPlayers; ++i) {
            player& p = *gui.run.board().getPlayer(static_cast<Integer>(i));
            p.debit(32767);
            p.debit(32767);
        }
        gui.run.board().getCurrPlayer().declareBankruptcy();
        gui.settle();
    }

    app::Program& program() { return *gui.program; }
    player& somePlayer() { return *gui.run.board().getPlayer(0); }

    GuiRun gui;
};

TEST_F(TextsWhole, TheMainWindowShowsEveryMessageWhole) {
    const std::string name = wideName(0);
    const std::vector<std::string> messages = {
        name + ", you are in jail. Please roll a double or pay 50 to get out!",
        name + ", you have rolled three doubles, go to jail!",
        name + ", you have rolled doubles, go again!",
        "Good Job" + name + ", you can now get out of jail!",
        name + ", no doubles, stay in jail!",
        name + " has bought " + kLongestCell,
        name + " you owe $32767",
        name + ", its your turn to play.",
        "You cannot pay the rent, you must get $32767",
        "No trade: that sum would take a balance past what the bank can count",
        "You must do something before you end your turn",
        "Get Out of Jail Free Card",
        "Advance to St-Laurent street",
    };
    for (const std::string& message : messages) {
        gui.run.mainWindow().showInfo(message);
        gui.settle();
        expectWhole(program().mainView(), "main");
    }
    savePictures(program().mainView(), "worst-main");
}

TEST_F(TextsWhole, EveryCardShowsItsLongestStringsWhole) {
    Windows& w = gui.run.windows();
    const std::vector<Integer> values(10, -32768);
    for (Integer opt : {Integer{0}, Integer{1}, Integer{3}, Integer{4}}) {
        w.cellInfo.showInfoCard(37, 8, values, opt, somePlayer(), kLongestCell, wideName(1));
        gui.settle();
        expectWhole(program().propertyCard(), "property card");
    }
    savePictures(program().propertyCard(), "worst-property-card");
    w.cellInfo.close();

    w.trading.proposeTrade(37, somePlayer(), kLongestCell, wideName(1));
    gui.settle();
    expectWhole(program().tradingCard(), "trading card, buyer");
    w.trading.seeTrade(37, *gui.run.board().getPlayer(1), -32768);
    gui.settle();
    expectWhole(program().tradingCard(), "trading card, owner");
    savePictures(program().tradingCard(), "worst-trading-card");

    for (const char* text : {"Get Out of Jail Free Card", "Advance to St-Laurent street"}) {
        w.jflCard.showJFLCard(text);
        gui.settle();
        expectWhole(program().jflCard(), "JFL card");
    }
    savePictures(program().jflCard(), "worst-jfl-card");

    w.taxCard.showTaxCard(38, somePlayer(), 32767, 1);
    gui.settle();
    expectWhole(program().taxCard(), "tax card");
    savePictures(program().taxCard(), "worst-tax-card");
}

TEST_F(TextsWhole, TheEndWindowNamesAWinnerOfTwentyWideLettersWhole) {
    gui.run.gameEnd().Form_Load();
    gui.settle();
    expectWhole(program().endView(), "end");
    EXPECT_EQ(gui.run.gameEnd().closingLine(), "The city is yours.") << "a human has won";
    savePictures(program().endView(), "worst-end");
}

}  // namespace
}  // namespace gw::test
