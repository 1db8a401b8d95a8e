// SPDX-License-Identifier: GPL-3.0-or-later
// The game at its most crowded, with its real windows: six players with names of twenty
// wide letters, every buyable cell owned, a third mortgaged, a third with four hotels,
// balances of -32768 and "Bankrupt", and the longest strings of every message and card.
// The worst-case sheet and the tests of whole texts and clear names start from it.
#pragma once

#include <memory>
#include <string>

#include "app/Program.h"
#include "app/QtDelay.h"
#include "game/Random.h"
#include "ports/Sound.h"
#include "windows/GameRun.h"
#include "windows/MessageBox.h"

namespace gw::worst {

// A name of twenty wide letters for each seat, each differing in its last letter.
std::string wideName(int seat);
// The longest cell name of the board.
inline constexpr const char* kLongestCell = "De La Gauchetiere";

class WorstCase {
public:
    WorstCase();
    ~WorstCase();

    // Seats six humans with wide names and starts the game.
    void seatSix();
    // Every buyable cell owned, a third mortgaged, a third with four hotels.
    void crowdTheBoard();
    // Balances of -32768 for all, then the current player goes bankrupt.
    void widestBalances();
    // Every player's token on one cell.
    void standAllOn(int cell);
    // The longest message the game writes: the jail line with a wide name.
    std::string longestMessage() const;

    app::Program& program() { return *program_; }
    GameRun& run() { return run_; }
    // Lets queued events run and brings every window to its model.
    void settle();

private:
    RecordedMessageBox messages_;
    SilentSound sound_;
    app::QtDelay delay_;
    GameRun run_;
    std::unique_ptr<app::Program> program_;
};

}  // namespace gw::worst
