// SPDX-License-Identifier: GPL-3.0-or-later
// The human and computer keys of the set-up window read as a choice: the kind in force is
// marked as chosen, the other kind is the switch to it, and a click moves the mark.
#include <gtest/gtest.h>

#include "GuiRun.h"
#include "art/Render.h"
#include "view/Pictures.h"

namespace gw::test {
namespace {

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

}  // namespace
}  // namespace gw::test
