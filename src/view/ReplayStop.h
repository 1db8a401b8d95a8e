// SPDX-License-Identifier: GPL-3.0-or-later
// The "Stop" of a game watched again, over the top of the board's centre: the only thing
// on the main window that answers while the game replays. The rest of the game then plays
// at once, without a wait or a sound, and Game Over comes back.
#pragma once

#include <QObject>

class QMainWindow;
class QPushButton;

namespace gw {
class GameRun;
class PacedDelay;
}  // namespace gw

namespace gw::view {

class ReplayStop {
public:
    ReplayStop(QMainWindow& window, GameRun& run, PacedDelay& pacing);

    // Shown while the game replays.
    void refresh();
    QPushButton& button() const { return *button_; }

private:
    QMainWindow& window_;
    GameRun& run_;
    PacedDelay& pacing_;
    QPushButton* button_;
};

}  // namespace gw::view
