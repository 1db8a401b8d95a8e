// SPDX-License-Identifier: GPL-3.0-or-later
// A main window that shows nothing and writes down what the rules tell it: every
// movement of money, every throw, every walk of a token and every change shown on a cell.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "game/Board.h"
#include "ports/MainWindowPort.h"

namespace gw::sim {

// One thing the main window was told during a turn.
struct Event {
    enum class Kind : std::uint8_t { Money, Move, Dice, Owner, Hotel, Mort, Bankrupt };

    Kind kind = Kind::Money;
    int current = 0;  // slot of the player whose turn it was

    // Money: the one balance that changed (-1: none did), by how much, all balances after
    // it, and what the current player stood on, which tells the bank's payments apart.
    int who = -1;
    int delta = 0;
    std::array<Integer, kMaxPlayers> balances{};
    Integer position = 0;
    bool inJail = false;
    Integer card = -1;  // on a card cell: the type of the card drawn last, and its slot
    Integer cardSlot = -1;
    int rentOwner = -1;   // on another player's unmortgaged cell: its owner; hotels below
    long long worth = 0;  // on a tax cell: the current player's worth, by the ledger's tables

    // Move: the token of `who` walked from `from` to `to`; a walk that starts on a card
    // cell notes the card drawn last in `card`. Dice: `from` and `to` are the two faces.
    Integer from = 0;
    Integer to = 0;

    // Owner, Hotel and Mort: the cell as it stood when shown, and as it was shown before.
    // Bankrupt: `cell` is where the bankrupt stood and `owner` who held that cell then.
    Integer cell = 0;
    int owner = -1;
    bool mortgaged = false;
    Integer hotels = 0;
    int shownOwner = -1;
    bool shownMortgaged = false;
    Integer shownHotels = 0;
};

class LedgerWindow final : public MainWindowPort {
public:
    // Without `record` only the counts are kept (trades, hotels, game ends), which costs
    // next to nothing; the balances and the fault are followed only with it.
    explicit LedgerWindow(bool record) : record_(record) {}

    // Starts watching a game whose players are seated and in their order of play.
    void attach(Board& board);

    const std::vector<Event>& events() const { return events_; }
    void clearEvents() { events_.clear(); }
    // Takes out the events recorded since there were `from` of them, leaving the others.
    std::vector<Event> takeEventsFrom(std::size_t from) {
        const auto first = events_.begin() + static_cast<std::ptrdiff_t>(from);
        std::vector<Event> taken(first, events_.end());
        events_.erase(first, events_.end());
        return taken;
    }
    // What went wrong while the game ran, beyond the reach of the checks after a turn.
    const std::string& fault() const { return fault_; }
    const std::array<Integer, kMaxPlayers>& balances() const { return balances_; }
    // A cell as the board shows it: the owner's slot (-1 the bank), mortgage, hotels.
    int shownOwner(Integer cell) const { return shownOwner_[static_cast<std::size_t>(cell)]; }
    bool shownMortgaged(Integer cell) const {
        return shownMortgaged_[static_cast<std::size_t>(cell)];
    }
    Integer shownHotels(Integer cell) const { return shownHotels_[static_cast<std::size_t>(cell)]; }

    int trades() const { return trades_; }
    int selfTrades() const { return selfTrades_; }
    int hotelsBuilt() const { return hotelsBuilt_; }
    int gameEnds() const { return gameEnds_; }

    void showInfo(std::string_view) override {}
    void UpdateTurnPlaying(TurnButtons) override {}
    void Showdice(Integer die1, Integer die2) override;
    void MoveToken(Integer id, Integer from, Integer to) override;
    void UpdatePlayers() override;
    void showCell(const OnCell&, Integer) override {}
    void showOwner(Integer cellId) override;
    void showHotel(Integer cellId) override;
    void showMort(Integer cellId) override;
    void showInJail() override {}
    void showNegBalance(bool) override {}
    void showBankRupt() override;
    void setEnabled(bool) override {}
    void showGameEnd() override { ++gameEnds_; }

private:
    // The slot of the cell's owner, -1 for the bank.
    int ownerSlot(Integer cellId) const;
    Event mark(Event::Kind kind, Integer cellId) const;
    void describeStand(Event& e) const;
    long long worthOf(const player& p) const;

    bool record_;
    Board* board_ = nullptr;
    std::vector<Event> events_;
    std::string fault_;
    std::array<Integer, kMaxPlayers> balances_{};
    std::array<int, kCellCount> shownOwner_{};
    std::array<bool, kCellCount> shownMortgaged_{};
    std::array<Integer, kCellCount> shownHotels_{};
    int trades_ = 0;
    int selfTrades_ = 0;
    int hotelsBuilt_ = 0;
    int gameEnds_ = 0;
};

}  // namespace gw::sim
