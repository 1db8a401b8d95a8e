// SPDX-License-Identifier: GPL-3.0-or-later
// The plain cell: id, name, the way to the board, and who stands on it. Every concrete
// cell holds one and forwards its redraw and its plain landing (a redraw) to it.
#pragma once

#include <string>

#include "base/Integer.h"
#include "ports/MainWindowPort.h"

namespace gw {

class Board;
class player;

class cell {
public:
    cell(Integer iId, std::string sName, Board& bBoard1)
        : name_(std::move(sName)), id_(iId), board_(bBoard1) {}

    Board& getBoard() const { return board_; }
    Integer getId() const { return id_; }
    const std::string& getName() const { return name_; }
    // Always false: who stands here is read from the table that display hands the window.
    bool IsOn(Integer playerid) const;
    // Refreshes who stands here from the players' positions and has the window draw it.
    void display();
    void showInfo() {}
    void doAction(player&) { display(); }
    const OnCell& isOn() const { return isOn_; }

private:
    void updateIsOn();

    std::string name_;
    Integer id_;
    OnCell isOn_{};
    Board& board_;
};

}  // namespace gw
