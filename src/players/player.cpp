// SPDX-License-Identifier: GPL-3.0-or-later
// Identity, movement, money and jail.
#include "players/player.h"

#include "cards/JFLDeck.h"  // a kept card goes back to the deck, whose cards act on players
#include "cells/BoardCell.h"
#include "game/Board.h"  // the board seating this player, which holds it in turn
#include "ports/Ports.h"

namespace gw {

player::player(Integer iId, std::string sName, Board& bBoard1, bool is_Computer, Integer token_Name)
    : name_(std::move(sName)),
      id_(iId),
      token_(token_Name),
      isComputer_(is_Computer),
      board_(bBoard1) {}

Ports& player::windows() const {
    return board_.windows();
}

BoardCell* player::cellUnder() const {
    return board_.getCell(position_);
}

PropertyCell* player::propertyUnder() const {
    return board_.propertyAt(position_);
}

void player::playSound(SoundEffect effect) const {
    windows().sound.play(MediaPlayer::Main1, effect);
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
    playSound(SoundEffect::Jail);
    inJail_ = true;
}

void player::getOutOfJail() {
    inJail_ = false;
    resetJailCount();
}

void player::move(Integer numCells, bool penalty) {
    MainWindowPort& main = windows().main;
    main.UpdateTurnPlaying(TurnButtons::Neither);
    Integer from = position_;
    const Integer to = addSat(position_, numCells);
    const bool passesGo = to >= 40;
    // The position is the cell walked to before the walk begins, so that a click served
    // during the walk never sees one beyond the ring.
    position_ = passesGo ? static_cast<Integer>(to - 40) : to;
    walking_ = true;
    board_.getCell(from)->display();  // drawn without this token: the position is new already
    if (passesGo) {
        main.MoveToken(id_, from, 39);
        from = 0;
        if (!penalty) credit(kGoMoney);
    }
    main.MoveToken(id_, from, position_);
    walking_ = false;
    if (isComputer_) main.UpdateTurnPlaying(TurnButtons::Neither);
}

// The turn buttons follow the player whose turn it is: money that moves for another player,
// in a late trade, says nothing about whether the current one can pay.
void player::showPayingButtons() const {
    const player& current = board_.getCurrPlayer();
    windows().main.showNegBalance(current.balance_ < 0);
}

void player::debit(Integer amount) {
    playSound(SoundEffect::Pay);
    balance_ = subSat(balance_, amount);
    showPayingButtons();
    windows().main.UpdatePlayers();
}

void player::credit(Integer amount) {
    playSound(SoundEffect::Buy);
    balance_ = addSat(balance_, amount);
    showPayingButtons();
    windows().main.UpdatePlayers();
}

}  // namespace gw
