// SPDX-License-Identifier: GPL-3.0-or-later
// The story of one game, gathered from what the rules tell the main window: every
// player's worth after each round (as the computer counts it), the round of each
// bankruptcy, the rent paid and received, purchases, trades, hotels built and the
// largest rent. It listens beside the window and decides nothing; the end window shows it.
#pragma once

#include <array>
#include <string>
#include <vector>

#include "ports/MainWindowPort.h"

namespace gw {

class Board;

struct StoryPlayer {
    std::string name;
    int token = 0;
    // Worth after each round; the first entry is the worth at the start.
    std::vector<long long> worth;
    int bankruptAfterRound = -1;  // the round in which the player went bankrupt, or -1
    long long rentPaid = 0;
    long long rentReceived = 0;
};

struct LargestRent {
    long long amount = 0;
    int payer = -1;  // player ids; -1 while no rent was paid
    int owner = -1;
};

class GameStory final : public MainWindowPort {
public:
    // A game begins on this board, its players seated; they are read at the first call
    // from the rules, once the order of play is drawn.
    void begin(Board& board);

    // The rounds played, the last one counted even when the game ended inside it.
    int roundsPlayed() const { return rounds_; }
    const std::vector<StoryPlayer>& players() const { return players_; }
    int purchases() const { return purchases_; }
    int trades() const { return trades_; }
    int hotelsBuilt() const { return hotelsBuilt_; }
    const LargestRent& largestRent() const { return largestRent_; }
    bool isOver() const { return over_; }
    // The figures as the end window prints them, one line each: rounds, purchases, trades
    // and hotels, the largest rent, then each player's rent paid and received.
    std::vector<std::string> figureLines() const;

    // What the rules tell the main window
    void showInfo(std::string_view) override {}
    void UpdateTurnPlaying(TurnButtons opt) override;
    void Showdice(Integer, Integer) override {}
    void MoveToken(Integer, Integer, Integer) override {}
    void UpdatePlayers() override;
    void showCell(const OnCell&, Integer) override {}
    void showOwner(Integer cellId) override;
    void showHotel(Integer cellId) override;
    void showMort(Integer) override {}
    void showInJail() override {}
    void showNegBalance(bool) override {}
    void showBankRupt() override;
    void setEnabled(bool) override {}
    void showGameEnd() override;

private:
    // A change of one balance, as UpdatePlayers reveals it.
    struct Payment {
        int who = -1;
        long long delta = 0;
        int current = -1;
        int rentOwner = -1;  // the owner of the unmortgaged cell under the current token
    };

    void seatPlayers();
    // True once the story is listening to a game that is not over.
    bool listening();
    void closeRound();
    int ownerUnderCurrent() const;

    Board* board_ = nullptr;
    std::vector<StoryPlayer> players_;
    std::vector<long long> balances_;
    std::array<int, kCellCount> owners_{};
    std::array<int, kCellCount> hotels_{};
    Payment last_;
    int pendingDebitOf_ = -1;  // a debit not yet matched to a purchase or trade
    int lastTurnIndex_ = 0;
    int rounds_ = 0;
    int purchases_ = 0;
    int trades_ = 0;
    int hotelsBuilt_ = 0;
    LargestRent largestRent_;
    bool over_ = false;
    bool seated_ = false;
};

}  // namespace gw
