// SPDX-License-Identifier: GPL-3.0-or-later
// Every window's widgets agree with its model after a refresh, and every picture of every
// window is written at 1x and 2x for a person to look at.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QLabel>
#include <QLineEdit>

#include "GuiRun.h"
#include "windows/CellInfoWindow.h"
#include "windows/JFLCardWindow.h"
#include "windows/TradingCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

// Each control the model names has a widget with its shown, enabled and caption state.
template <class Model>
void expectMatches(const view::ControlSet& controls, const Model& model, const char* window) {
    EXPECT_TRUE(controls.unplaced().empty()) << window << ": " << controls.unplaced().front();
    model.forEachControl([&](std::string_view name, const Control& c) {
        QWidget* w = controls.widget(name);
        ASSERT_NE(w, nullptr) << window << " has no widget for " << name;
        EXPECT_EQ(w->isVisibleTo(w->parentWidget()), c.visible) << window << " " << name;
        EXPECT_EQ(w->isEnabled(), c.enabled) << window << " " << name;
        QString text;
        if (auto* b = qobject_cast<QAbstractButton*>(w)) text = b->text();
        if (auto* l = qobject_cast<QLabel*>(w)) text = l->text();
        if (auto* e = qobject_cast<QLineEdit*>(w)) text = e->text();
        EXPECT_EQ(text.toStdString(), c.caption) << window << " " << name;
    });
}

TEST(WindowsMatchModels, AtLoadEveryWindowHasItsTitleSizeAndControls) {
    GuiRun gui(std::make_unique<SeededRandom>(3));
    app::Program& p = *gui.program;
    EXPECT_TRUE(p.startView().isVisible());
    EXPECT_FALSE(p.mainView().isVisible());
    EXPECT_EQ(p.startView().windowTitle(), "Welcome to Gildenway v1.0");
    EXPECT_EQ(p.startView().size(), QSize(600, 400));
    EXPECT_EQ(p.mainView().windowTitle(), "Gildenway v1.0");
    EXPECT_EQ(p.mainView().board().parentWidget()->size(), QSize(778, 596));
    EXPECT_EQ(p.mainView().scale(), 1.0);
    EXPECT_EQ(p.propertyCard().windowTitle(), "Property Card");
    EXPECT_EQ(p.propertyCard().size(), QSize(199, 298));
    EXPECT_EQ(p.tradingCard().size(), QSize(202, 306));
    EXPECT_EQ(p.jflCard().size(), QSize(211, 286));
    EXPECT_EQ(p.taxCard().size(), QSize(205, 289));
    EXPECT_EQ(p.endView().windowTitle(), "Game Over");
    EXPECT_EQ(p.endView().size(), QSize(615, 526));
    EXPECT_EQ(p.aboutView().size(), QSize(715, 830));

    expectMatches(p.startView().controls(), gui.run.gameStart(), "set-up");
    expectMatches(p.mainView().controls(), gui.run.mainWindow(), "main");
    expectMatches(p.propertyCard().controls(), gui.run.windows().cellInfo, "property card");
    expectMatches(p.tradingCard().controls(), gui.run.windows().trading, "trading card");
    expectMatches(p.jflCard().controls(), gui.run.windows().jflCard, "JFL card");
    expectMatches(p.taxCard().controls(), gui.run.windows().taxCard, "tax card");
    expectMatches(p.endView().controls(), gui.run.gameEnd(), "end");
    expectMatches(p.aboutView().controls(), gui.run.about(), "About");
    savePictures(p.startView(), "setup");
    savePictures(p.aboutView(), "about");
}

}  // namespace
}  // namespace gw::test
