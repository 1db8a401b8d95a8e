// SPDX-License-Identifier: GPL-3.0-or-later
// How the windows look: every window's widgets agree with its model after a refresh (and every
// picture is written at 1x and 2x for a person to look at); About gives every member a face of
// their own and uses its whole height; the set-up window's human and computer keys read as a
// choice, the kind in force marked as chosen and the other as the switch to it; the desktop's
// scalable icon draws what the painted ones show, and the small sizes are painted for their
// size rather than shrunk from a big one.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QColor>
#include <QFontMetrics>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QSvgRenderer>
#include <cstdlib>
#include <set>
#include <vector>

#include "GuiRun.h"
#include "art/Render.h"
#include "view/Pictures.h"
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

// The titles and sizes are the views' constants; what they must hold is checked with the
// texts shown whole and the places of the windows.
TEST(WindowsMatchModels, AtLoadEveryWindowHasItsControls) {
    GuiRun gui(std::make_unique<SeededRandom>(3));
    app::Program& p = *gui.program;
    EXPECT_TRUE(p.startView().isVisible());
    EXPECT_FALSE(p.mainView().isVisible());
    EXPECT_EQ(p.mainView().scale(), 1.0);

    expectMatches(p.startView().controls(), gui.run.gameStart(), "set-up");
    expectMatches(p.mainView().controls(), gui.run.mainWindow(), "main");
    expectMatches(p.propertyCard().controls(), gui.run.windows().cellInfo, "property card");
    expectMatches(p.tradingCard().controls(), gui.run.windows().trading, "trading card");
    expectMatches(p.jflCard().controls(), gui.run.windows().jflCard, "JFL card");
    expectMatches(p.taxCard().controls(), gui.run.windows().taxCard, "tax card");
    expectMatches(p.endView().controls(), gui.run.gameEnd(), "end");
    expectMatches(p.aboutView().controls(), gui.run.about(), "About");
    savePictures(p.startView(), "setup");
}

struct Member {
    std::string name;
    QRect portrait;
    QRect label;
};

std::vector<Member> membersOf(app::Program& p, const About_Help& model) {
    std::vector<Member> out;
    model.forEachMember([&](std::string_view name, const Control&) {
        const QWidget* portrait = p.aboutView().portrait(name);
        const QWidget* label = p.aboutView().controls().widget(name);
        if (portrait == nullptr || label == nullptr) {
            ADD_FAILURE() << "no portrait or label for " << name;
            return;
        }
        out.push_back({std::string(name), portrait->geometry(), label->geometry()});
    });
    return out;
}

TEST(AboutLayout, EveryNameHasItsOwnPortraitAndTheTeamFillsTheWindow) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    app::Program& p = *gui.program;
    const std::vector<Member> members = membersOf(p, gui.run.about());
    ASSERT_EQ(members.size(), 10u);
    const QRect window = p.aboutView().rect();
    int lowest = 0;
    for (std::size_t i = 0; i < members.size(); ++i) {
        const Member& m = members[i];
        SCOPED_TRACE(m.name);
        EXPECT_TRUE(window.contains(m.portrait));
        EXPECT_TRUE(window.contains(m.label));
        // The portrait stands right over its own name.
        EXPECT_LE(m.portrait.bottom(), m.label.top());
        EXPECT_LE(m.label.top() - m.portrait.bottom(), 8);
        EXPECT_NEAR(m.portrait.center().x(), m.label.center().x(), 2);
        for (std::size_t j = i + 1; j < members.size(); ++j) {
            const Member& other = members[j];
            EXPECT_FALSE(m.portrait.intersects(other.portrait)) << "and " << other.name;
            EXPECT_FALSE(m.portrait.intersects(other.label)) << "and " << other.name;
            EXPECT_FALSE(m.label.intersects(other.label)) << "and " << other.name;
            EXPECT_FALSE(m.label.intersects(other.portrait)) << "and " << other.name;
        }
        // The name shows whole under its portrait, in the font it is drawn with.
        const auto* label = qobject_cast<const QLabel*>(p.aboutView().controls().widget(m.name));
        ASSERT_NE(label, nullptr);
        EXPECT_LE(QFontMetrics(label->font()).horizontalAdvance(label->text()), label->width());
        lowest = std::max(lowest, m.label.bottom());
    }
    // No empty lower third: the team reaches down into it, and nothing covers Ok.
    EXPECT_GT(lowest, window.height() * 2 / 3);
    const QWidget* ok = p.aboutView().controls().widget("Command1");
    ASSERT_NE(ok, nullptr);
    for (const Member& m : members) {
        EXPECT_FALSE(ok->geometry().intersects(m.portrait)) << m.name;
        EXPECT_FALSE(ok->geometry().intersects(m.label)) << m.name;
    }
    savePictures(p.aboutView(), "about");
}

TEST(AboutLayout, TheTenPortraitsAreTenDifferentFaces) {
    std::set<QByteArray> seen;
    for (int i = 0; i < 10; ++i) {
        const QImage face = art::renderImage(
            QSize(97, 89), 1, [i](QPainter& p, const QRectF& r) { view::paintPortrait(p, r, i); });
        seen.insert(QByteArray(reinterpret_cast<const char*>(face.constBits()),
                               static_cast<qsizetype>(face.sizeInBytes())));
    }
    EXPECT_EQ(seen.size(), 10u);
}

using view::Choice;

QImage pictureOf(Choice choice) {
    return art::renderImage(QSize(154, 50), 1, [choice](QPainter& p, const QRectF& r) {
        view::paintChoice(p, r, choice);
    });
}

// The chosen key wears a gold seal with a tick at its right end; the switch an empty ring.
bool wearsTheSeal(const QImage& picture) {
    const QColor seal = picture.pixelColor(129, 28);
    return std::abs(seal.red() - 0xC9) < 24 && std::abs(seal.green() - 0xA2) < 24 &&
           std::abs(seal.blue() - 0x27) < 30;
}

// Dark keys are the chosen ones: the mean lightness of the whole key.
double lightness(const QImage& picture) {
    double sum = 0;
    for (int y = 0; y < picture.height(); ++y)
        for (int x = 0; x < picture.width(); ++x) sum += picture.pixelColor(x, y).lightnessF();
    return sum / (picture.width() * picture.height());
}

TEST(KindChoice, TheChosenKindIsMarkedAndTheOtherIsItsSwitch) {
    for (const auto& [chosen, offered] :
         {std::pair{Choice::HumanSmall, Choice::HumanLarge},
          std::pair{Choice::ComputerSmall, Choice::ComputerLarge}}) {
        const QImage inForce = pictureOf(chosen);
        const QImage toSwitch = pictureOf(offered);
        EXPECT_NE(inForce, toSwitch);
        EXPECT_TRUE(wearsTheSeal(inForce));
        EXPECT_FALSE(wearsTheSeal(toSwitch));
        // The switch must not read as the weightier choice.
        EXPECT_LT(lightness(inForce) + 0.2, lightness(toSwitch));
    }
}

TEST(KindChoice, AClickMovesTheMarkToTheKindClicked) {
    GuiRun gui(std::make_unique<SeededRandom>(8));
    view::GameStartView& start = gui.program->startView();
    const GameStart& model = gui.run.gameStart();
    auto shown = [&](int number) { return start.image(number).isVisibleTo(&start); };
    // At load the next player is human: the human key is marked, the computer one offered.
    ASSERT_FALSE(model.nextIsComputer());
    EXPECT_TRUE(shown(2));  // human, in force
    EXPECT_TRUE(shown(1));  // computer, the switch (over Image3)
    EXPECT_FALSE(shown(4));

    clickOn(start.image(1));
    gui.settle();
    EXPECT_TRUE(model.nextIsComputer());
    EXPECT_FALSE(shown(1));
    EXPECT_TRUE(shown(3));  // computer, in force
    EXPECT_TRUE(shown(4));  // human, the switch (over Image2)
    // The window itself shows the seal on the computer's key and none on the human's.
    const QImage window = start.grab().toImage();
    EXPECT_TRUE(wearsTheSeal(window.copy(start.image(3).geometry())));
    EXPECT_FALSE(wearsTheSeal(window.copy(start.image(4).geometry())));
    savePictures(start, "setup-computer-chosen");

    clickOn(start.image(4));
    gui.settle();
    EXPECT_FALSE(model.nextIsComputer());
    EXPECT_TRUE(shown(1));
    EXPECT_FALSE(shown(4));
}

// Mean difference of the channels of two images of one size, 0 to 255.
double meanDifference(const QImage& a, const QImage& b) {
    const QImage x = a.convertToFormat(QImage::Format_ARGB32);
    const QImage y = b.convertToFormat(QImage::Format_ARGB32);
    double sum = 0;
    for (int row = 0; row < x.height(); ++row) {
        for (int col = 0; col < x.width(); ++col) {
            const QRgb p = x.pixel(col, row);
            const QRgb q = y.pixel(col, row);
            sum += std::abs(qRed(p) - qRed(q)) + std::abs(qGreen(p) - qGreen(q)) +
                   std::abs(qBlue(p) - qBlue(q)) + std::abs(qAlpha(p) - qAlpha(q));
        }
    }
    return sum / (4.0 * x.width() * x.height());
}

TEST(AppIcon, TheScalableIconDrawsWhatThePaintedOneShows) {
    QSvgRenderer svg(QStringLiteral(GILDENWAY_ICON_THEME "/scalable/apps/gildenway.svg"));
    ASSERT_TRUE(svg.isValid());
    QImage drawn(256, 256, QImage::Format_ARGB32_Premultiplied);
    drawn.fill(Qt::transparent);
    QPainter painter(&drawn);
    painter.setRenderHint(QPainter::Antialiasing);
    svg.render(&painter);
    painter.end();
    const QImage painted = view::appIcon(256);
    ASSERT_EQ(painted.size(), drawn.size());
    EXPECT_LT(meanDifference(drawn, painted), 3.0);
    // Not an empty picture that matches an empty one: the tile covers most of the square.
    int opaque = 0;
    for (int row = 0; row < 256; ++row) {
        for (int col = 0; col < 256; ++col) opaque += qAlpha(drawn.pixel(col, row)) == 255;
    }
    EXPECT_GT(opaque, 256 * 256 * 8 / 10);
}

TEST(AppIcon, SmallSizesArePaintedNotShrunk) {
    for (const int size : {16, 22, 24, 32}) {
        const QImage painted = view::appIcon(size);
        ASSERT_EQ(painted.size(), QSize(size, size));
        const QImage shrunk =
            view::appIcon(256).scaled(size, size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        EXPECT_GT(meanDifference(painted, shrunk), 4.0) << size << " px";
    }
}

}  // namespace
}  // namespace gw::test
