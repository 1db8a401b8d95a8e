// SPDX-License-Identifier: GPL-3.0-or-later
// One run of the game with its real windows for a test: a recorded message box instead of
// a modal one, silence, short real waits, and a chosen source of chance.
#pragma once

#include <QApplication>
#include <QTest>
#include <memory>
#include <string>

#include "app/Program.h"
#include "app/QtDelay.h"
#include "game/Random.h"
#include "ports/Sound.h"
#include "windows/GameRun.h"
#include "windows/MessageBox.h"

namespace gw::test {

class GuiRun {
public:
    explicit GuiRun(std::unique_ptr<Random> random, int tickMs = 1)
        : delay(tickMs), run(sound, delay, messages, std::move(random)) {
        run.setOnExit([this] { exited = true; });
        run.start();
        program = std::make_unique<app::Program>(run, &delay);
        program->refreshAll();
    }
    ~GuiRun() { program.reset(); }

    // Seats two humans, Ann and Bob, by the set-up window's clicks, and starts their game.
    void seatAnnAndBob();
    // Seats Ann, a human, and the computer Robot, starts, and lets play run until Ann rolls.
    void seatAnnAndAComputer();

    // Lets queued events run, then brings every window to its model.
    void settle() {
        QCoreApplication::processEvents();
        program->refreshAll();
    }

    RecordedMessageBox messages;
    SilentSound sound;
    app::QtDelay delay;
    GameRun run;
    std::unique_ptr<app::Program> program;
    bool exited = false;
};

// Clicks a widget in its middle, as a person would.
inline void clickOn(QWidget& widget) {
    QTest::mouseClick(&widget, Qt::LeftButton, {}, widget.rect().center());
}

// Saves a window at 1x and 2x under /tmp/gildenway-gui/NAME@1x.png and @2x.png.
void savePictures(QWidget& window, const std::string& name);

}  // namespace gw::test
