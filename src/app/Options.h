// The command line of the program. Without options it is the game as a person plays it;
// the options serve the smoke test and the start-up and memory bench.
#pragma once

#include <QStringList>
#include <cstdint>
#include <optional>

#include "windows/Pace.h"

namespace gw::app {

struct Options {
    // Print the set-up window's title and quit as soon as it is on the screen.
    bool quitWhenShown = false;
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
    QString error;
};

Options parseOptions(const QStringList& arguments);

}  // namespace gw::app
