// Identity, movement, money and jail.
#include "players/player.h"

#include "cards/JFLDeck.h"
#include "cells/BoardCell.h"
#include "game/Board.h"

namespace gw {

player::player(Integer iId, std::string sName, Board& bBoard1, bool is_Computer, Integer token_Name)
    : name_(std::move(sName)),
      id_(iId),
      token_(token_Name),
      isComputer_(is_Computer),
      board_(bBoard1) {}

Windows& player::windows() const {
    return board_.windows();
}

BoardCell* player::cellUnder() const {
    return board_.getCell(position_);
}

void player::playSound(const char* file) const {
    windows().sound.play(MediaPlayer::Main1, file);
}

void player::incJailCount() {
    if (jailCount_ > 1) {
        getOutOfJail();
    } else {
        ++jailCount_;
    }
}

void player::pay50GOJ() {
    debit(kJailFee);
    getOutOfJail();
}

void player::useGOJFC() {
    setHasGoJFC(false);
    board_.getJFLDeck().insertJail();
    getOutOfJail();
}

void player::goToJail() {
    if (position_ <= kJailCell) {
        move(static_cast<Integer>(kJailCell - position_), true);
    } else {
        move(static_cast<Integer>(40 - position_), true);
        move(kJailCell, true);
    }
    windows().main.showInfo("Go to jail!");
    playSound("jailthere.wav");
    inJail_ = true;
}

void player::getOutOfJail() {
    inJail_ = false;
    resetJailCount();
}

void player::move(Integer numCells, bool penalty) {
    MainWindowPort& main = windows().main;
    main.UpdateTurnPlaying(2);
    Integer from = position_;
    position_ = addSat(position_, numCells);
    board_.getCell(from)->display();  // drawn without this token: the position is new already
    if (position_ >= 40) {
        main.MoveToken(id_, from, 39);
        position_ = static_cast<Integer>(position_ - 40);
        from = 0;
        if (!penalty) credit(kGoMoney);
    }
    main.MoveToken(id_, from, position_);
    if (isComputer_) main.UpdateTurnPlaying(2);
}

void player::debit(Integer amount) {
    playSound("pay.wav");
    balance_ = subSat(balance_, amount);
    windows().main.showNegBalance(balance_ < 0);
    windows().main.UpdatePlayers();
}

void player::credit(Integer amount) {
    playSound("buy.wav");
    balance_ = addSat(balance_, amount);
    windows().main.showNegBalance(balance_ < 0);
    windows().main.UpdatePlayers();
}

}  // namespace gw
