// SPDX-License-Identifier: GPL-3.0-or-later
// The game: the players in their order of play, whose turn it is, the dice, the deck
// and the forty cells. Every rule step of a turn starts in playTurn, rollDice or
// endTurn; nothing else changes whose turn it is.
#pragma once

#include <array>
#include <functional>
#include <memory>
#include <string>
#include <string_view>

// game and the rule folders include each other: the board owns its deck, cells and
// players, and they reach back only through game's leaf headers and a Board&.
#include "base/Integer.h"
#include "base/Limits.h"
#include "cards/JFLDeck.h"
#include "cells/BoardCell.h"
#include "game/Dice.h"
#include "game/GameSetup.h"
#include "game/Random.h"
#include "players/player.h"

namespace gw {

struct Ports;

class Board {
public:
    Board(Ports& ports, std::unique_ptr<Random> random);
    ~Board();
    Board(const Board&) = delete;
    Board& operator=(const Board&) = delete;

    // Set-up
    // Builds or rebuilds the cells and the deck; every cell is as new.
    void init();
    // The cell at a position, or null outside 0 to 39; the position is not wrapped.
    BoardCell* getCell(Integer pos) const {
        return onRing(pos) ? cells_[static_cast<std::size_t>(pos)].get() : nullptr;
    }
    // The buyable cell or the street at a position, or null for any other cell.
    PropertyCell* propertyAt(Integer pos) const {
        return onRing(pos) ? properties_[static_cast<std::size_t>(pos)] : nullptr;
    }
    Street* streetAt(Integer pos) const {
        return onRing(pos) ? streets_[static_cast<std::size_t>(pos)] : nullptr;
    }
    // The cells of one kind, to meet a player's holdings.
    CellSet cellsOfKind(CellKind kind) const { return kinds_[static_cast<std::size_t>(kind)]; }
    // The street of a district, by row (district 1 is row 0) and column (its first street
    // is column 0); null for the third column of the two-street districts.
    Street* streetInDistrict(int row, int column) const {
        return districts_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }
    // Empties the player slots; init is what sets the counts back to 0.
    void deleteAllPlayer();
    // Stores the player in the next slot; false, and nothing stored, when six are seated.
    bool addPlayer(std::unique_ptr<player> playerInfo);
    // Makes a player with the next free id and stores it; null when six are seated.
    player* addPlayer(std::string name, bool isComputer, Integer token);
    // Seats the players of a set-up, in its order, up to six.
    void addPlayers(const GameSetup& setup);
    // Draws the order of play and renumbers the players by it.
    void shufflePlayers();

    // Players
    player& getCurrPlayer() const { return *players_[static_cast<std::size_t>(currPlayer_)]; }
    Integer getCurrPlayerIndex() const { return currPlayer_; }
    Integer getNumPlayer() const { return numPlayer_; }
    player* getPlayer(Integer id) const {
        return id >= 0 && id < kMaxPlayers ? players_[static_cast<std::size_t>(id)].get() : nullptr;
    }
    JFLDeck& getJFLDeck() { return jflDeck_; }

    // The turn cycle
    // The part of a turn that needs no further input: a human's throw and landing, or a
    // computer's whole turn. Runs of computer turns are a loop, not a deepening chain.
    void playTurn();
    // One throw for the current player, with all it brings about but the landing.
    void rollDice();
    // Tries to end the current player's turn and starts the next one.
    void endTurn();

    // One reseeded draw from the game's random source.
    double draw() { return random_->draw(); }
    Ports& windows() const { return windows_; }
    const Dice& dice1() const { return dice1_; }
    const Dice& dice2() const { return dice2_; }

    // Throws of the dice since the turn passed to the current player: three at the most.
    int throwsThisTurn() const { return throwsThisTurn_; }
    // How many players are not bankrupt; the game is over at one.
    Integer countSolvent() const;
    // Called after each computer turn of a run; answering false stops the run there
    // (a tool's cap on turns, or a program that is closing).
    void setOnTurnPlayed(std::function<bool()> hook) { onTurnPlayed_ = std::move(hook); }

private:
    static bool onRing(Integer pos) { return pos >= 0 && pos < kCellCount; }
    void playOneTurn();
    void buildCells();
    // Puts "who" followed by "what" on the message line, written into one buffer that keeps
    // its room from throw to throw.
    void say(std::string_view who, std::string_view what);

    Integer currPlayer_ = 0;
    Integer numPlayer_ = 0;
    int throwsThisTurn_ = 0;
    std::array<std::unique_ptr<player>, kMaxPlayers> players_;
    std::array<std::unique_ptr<BoardCell>, kCellCount> cells_;
    // The buyable cells and the streets by position, null elsewhere: the computer's
    // play asks for them dozens of times a turn.
    std::array<PropertyCell*, kCellCount> properties_{};
    std::array<Street*, kCellCount> streets_{};
    std::array<std::array<Street*, 3>, 8> districts_{};
    std::array<CellSet, kCellKindCount> kinds_{};
    Ports& windows_;
    std::unique_ptr<Random> random_;
    JFLDeck jflDeck_;
    Dice dice1_;
    Dice dice2_;

    bool turnRunning_ = false;
    bool turnPending_ = false;
    std::function<bool()> onTurnPlayed_;
    std::string message_;
};

}  // namespace gw
