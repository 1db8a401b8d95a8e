// SPDX-License-Identifier: GPL-3.0-or-later
#include "WorstCase.h"

#include <QCoreApplication>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "players/player.h"

namespace gw::worst {

namespace {
constexpr int kCells = 40;
}

std::string wideName(int seat) {
    return std::string(19, 'W') + static_cast<char>('M' + seat);
}

WorstCase::WorstCase()
    : delay_(0), run_(sound_, delay_, messages_, std::make_unique<SeededRandom>(8)) {
    run_.start();
    program_ = std::make_unique<app::Program>(run_, &delay_);
    program_->refreshAll();
}

WorstCase::~WorstCase() {
    program_.reset();
}

void WorstCase::settle() {
    QCoreApplication::processEvents();
    program_->refreshAll();
}

void WorstCase::seatSix() {
    GameStart& start = run_.gameStart();
    for (int seat = 0; seat < kMaxPlayers; ++seat) {
        start.NickName_Change(wideName(seat));
        start.Token_Click(seat * 2);
        start.Command1_Click();
    }
    settle();
    start.Command2_Click();
    settle();
}

void WorstCase::crowdTheBoard() {
    Board& board = run_.board();
    int n = 0;
    for (Integer c = 0; c < kCells; ++c) {
        PropertyCell* cell = board.propertyAt(c);
        if (!cell) continue;
        player& owner = *board.getPlayer(static_cast<Integer>(n % kMaxPlayers));
        owner.newlyOwn(*cell);
        if (n % 3 == 1) {
            owner.mortgageProp(c);
        } else if (n % 3 == 2) {
            if (Street* street = cell->asStreet()) {
                for (int h = 0; h < 4; ++h) street->addHotel();
                run_.mainWindow().showHotel(c);
            }
        }
        ++n;
    }
    settle();
}

void WorstCase::widestBalances() {
    for (Integer i = 0; i < kMaxPlayers; ++i) {
        player& p = *run_.board().getPlayer(i);
        p.debit(32767);
        p.debit(32767);
    }
    run_.board().getCurrPlayer().declareBankruptcy();
    settle();
}

void WorstCase::standAllOn(int cell) {
    const auto at = static_cast<Integer>(cell);
    for (Integer id = 0; id < kMaxPlayers; ++id) run_.mainWindow().MoveToken(id, at, at);
    settle();
}

std::string WorstCase::longestMessage() const {
    return wideName(0) + ", you are in jail. Please roll a double or pay 50 to get out!";
}

}  // namespace gw::worst
