// SPDX-License-Identifier: GPL-3.0-or-later
// The command line of the program. Without options it is the game as a person plays it;
// the options serve the smoke test and the start-up and memory bench. Every option is one
// row of the table in Options.cpp: its names, its value, its help line and how it is read.
#pragma once

#include <QString>
#include <QStringList>
#include <cstdint>
#include <optional>

#include "windows/Pace.h"

namespace gw::app {

struct Options {
    // Print the set-up window's title and quit as soon as it is on the screen.
    bool quitWhenShown = false;
    // Save a picture to this file: of the set-up window once it is painted, then quit; or,
    // with closeAfterMs, of the main window as the program leaves.
    QString screenshot;
    // Seat this many computer players, start, and quit when the game is over.
    int computers = 0;
    int tickMs = 80;
    // The pace the game starts at; Game > Pace changes it later.
    Pace pace = Pace::Designed;
    // Leave the program this long after the start (0: never), by the main window's close
    // box or by File > Exit, to show that leaving in the middle of a wait ends it cleanly.
    int closeAfterMs = 0;
    enum class Leave { CloseBox, FileExit };
    Leave leaveBy = Leave::CloseBox;
    // A fixed seed instead of the clock.
    std::optional<std::uint64_t> seed;
    // Asked for --help or --version: print `answer` and end with code 0.
    bool help = false;
    bool version = false;
    QString answer;
    // One line naming what is wrong; the program ends with code 2.
    QString error;
};

// `arguments` begin with the program's name, as QCoreApplication::arguments() does.
Options parseOptions(const QStringList& arguments);

}  // namespace gw::app
