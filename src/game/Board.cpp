// SPDX-License-Identifier: GPL-3.0-or-later
// The order of play and the turn cycle.
#include "game/Board.h"

#include <span>
#include <string>
#include <string_view>

#include "game/Scatter.h"
#include "ports/Ports.h"

namespace gw {

Board::Board(Ports& windows, std::unique_ptr<Random> random)
    : windows_(windows),
      random_(std::move(random)),
      jflDeck_(*this),
      dice1_(*random_),
      dice2_(*random_) {}

Board::~Board() = default;

void Board::deleteAllPlayer() {
    for (auto& slot : players_) slot.reset();
}

bool Board::addPlayer(std::unique_ptr<player> playerInfo) {
    if (numPlayer_ >= kMaxPlayers) return false;
    players_[static_cast<std::size_t>(numPlayer_)] = std::move(playerInfo);
    ++numPlayer_;
    return true;
}

player* Board::addPlayer(std::string name, bool isComputer, Integer token) {
    if (numPlayer_ >= kMaxPlayers) return nullptr;
    addPlayer(std::make_unique<player>(numPlayer_, std::move(name), *this, isComputer, token));
    return players_[static_cast<std::size_t>(numPlayer_ - 1)].get();
}

void Board::addPlayers(const GameSetup& setup) {
    for (const GameSetup::Seat& seat : setup.seats) addPlayer(seat.name, seat.computer, seat.token);
}

Integer Board::countSolvent() const {
    Integer solvent = 0;
    for (Integer i = 0; i < numPlayer_; ++i) {
        const player* p = getPlayer(i);
        if (p != nullptr && !p->isBankrupt2()) ++solvent;
    }
    return solvent;
}

// Player i of the old order goes to the place the scatter gave it.
void Board::shufflePlayers() {
    const int n = numPlayer_;
    std::array<Integer, kMaxPlayers> order{};
    scatter(std::span(order.data(), static_cast<std::size_t>(n)), n, n, [this] { return draw(); });
    std::array<std::unique_ptr<player>, kMaxPlayers> shuffled;
    for (int i = 0; i < n; ++i) {
        shuffled[static_cast<std::size_t>(order[static_cast<std::size_t>(i)] - 1)] =
            std::move(players_[static_cast<std::size_t>(i)]);
    }
    for (int i = 0; i < n; ++i) {
        players_[static_cast<std::size_t>(i)] = std::move(shuffled[static_cast<std::size_t>(i)]);
        players_[static_cast<std::size_t>(i)]->setId(static_cast<Integer>(i));
    }
}

// A computer's turn ends in endTurn, which starts the next computer's turn. Run as
// written that chain deepens with every turn; here a nested start only marks the next
// turn as due, and the outermost call plays the due turns one after another.
void Board::playTurn() {
    if (turnRunning_) {
        turnPending_ = true;
        return;
    }
    turnRunning_ = true;
    do {
        turnPending_ = false;
        const bool computerTurn = getCurrPlayer().isComputer2();
        playOneTurn();
        if (computerTurn && onTurnPlayed_ && !onTurnPlayed_()) break;
    } while (turnPending_);
    turnPending_ = false;
    turnRunning_ = false;
}

void Board::playOneTurn() {
    player& p = getCurrPlayer();
    if (p.isComputer2()) {
        for (Integer opt = 0; opt <= 3; ++opt) {
            p.autoPlay(opt);
            // A bankruptcy has passed the turn on already.
            if (p.isBankrupt2()) return;
        }
        endTurn();
        return;
    }
    // The throw takes the token off a cell that may have been dealt with before it, by a
    // click on the cell under the token; the cell it lands on has still to be dealt with,
    // or a rent or a tax could be left unpaid at End Turn.
    p.setDidAction(false);
    rollDice();
    player& current = getCurrPlayer();
    getCell(current.getPosition())->doAction(current);
    windows_.main.UpdateTurnPlaying(TurnButtons::Finish);
}

void Board::rollDice() {
    player& p = getCurrPlayer();
    MainWindowPort& main = windows_.main;
    ++throwsThisTurn_;
    dice1_.roll();
    dice2_.roll();
    const Integer a = dice1_.getValue();
    const Integer b = dice2_.getValue();
    if (a != b) {
        p.resetDoubleCount();
    } else {
        p.incDoubleCount();
        say(p.getName(), ", you have rolled doubles, go again!");
    }
    if (p.getDoubleCount() == 3) {
        main.showInfo(p.getName() + ", you have rolled three doubles, go to jail!");
        windows_.sound.play(MediaPlayer::Main2, SoundEffect::Police);
        p.goToJail();
    } else if (p.IsInJail()) {
        if (p.getDoubleCount() == 0) {
            p.incJailCount();
            main.showInfo(p.getName() + ", no doubles, stay in jail!");
            main.UpdateTurnPlaying(TurnButtons::Finish);
        } else {
            main.showInfo("Good Job" + p.getName() + ", you can now get out of jail!");
            p.getOutOfJail();
        }
    }
    main.Showdice(dice1_.getValue(), dice2_.getValue());
    if (!p.IsInJail()) p.move(static_cast<Integer>(a + b), false);
}

void Board::say(std::string_view who, std::string_view what) {
    message_.assign(who).append(what);
    windows_.main.showInfo(message_);
}

void Board::endTurn() {
    MainWindowPort& main = windows_.main;
    player& p = getCurrPlayer();
    BoardCell* c = getCell(p.getPosition());
    const bool mustAct = c->isTax() || c->isProperty();
    if (!p.getDidAction() && mustAct) {
        main.showInfo("You must do something before you end your turn");
        c->doAction(p);
    } else if (!p.isBankrupt2() && p.getBalance() < 0) {
        main.showInfo("You must make money first");
    } else {
        if (p.isBankrupt2() || p.getDoubleCount() == 0) {
            throwsThisTurn_ = 0;
            // On at least once, and past every bankrupt player; one of them is left.
            for (Integer step = 0; step < numPlayer_; ++step) {
                currPlayer_ = currPlayer_ == numPlayer_ - 1 ? Integer{0}
                                                            : static_cast<Integer>(currPlayer_ + 1);
                if (!getCurrPlayer().isBankrupt2()) break;
            }
        }
        player& q = getCurrPlayer();
        q.setDidAction(false);
        if (q.IsInJail() && q.getDoubleCount() >= 1) {
            // Doubles, then jail: the promised throw is void.
            q.setDidAction(true);
            q.resetDoubleCount();
            endTurn();
        } else if (q.isComputer2()) {
            main.UpdateTurnPlaying(TurnButtons::Neither);
            if (countSolvent() > 1) playTurn();
        } else {
            main.UpdateTurnPlaying(TurnButtons::Roll);
        }
    }
    if (!getCurrPlayer().isComputer2()) main.showInJail();
}

}  // namespace gw
