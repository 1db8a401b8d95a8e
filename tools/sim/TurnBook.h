// SPDX-License-Identifier: GPL-3.0-or-later
// The ledger of one turn: every movement of money explained as a payment that the rules
// allow, at an amount from the ledger's own tables, or named as the fault it is.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "LedgerWindow.h"

namespace gw::sim {

// Explains the movements of money of one turn. Every movement is a payment between the
// current player and the bank, or one half of a payment between two players; a change
// shown on a cell without a payment belongs to a bankruptcy.
class TurnBook {
public:
    TurnBook(Board& board, const std::vector<Event>& events, int played)
        : board_(board), ev_(events), played_(played) {}

    std::optional<std::string> explain();
    // What the bank paid out, net, and what did not arrive at the 16-bit bound.
    long long bankNet() const { return bankNet_; }
    long long lost() const { return lost_; }

private:
    const Event* at(std::size_t i) const { return i < ev_.size() ? &ev_[i] : nullptr; }
    // Each answers how many events it explains from i on, 0 when they are not its kind;
    // one that recognises its kind at a wrong amount or for a wrong player says so in fault_.
    std::size_t sale(std::size_t i);
    std::size_t rent(std::size_t i);
    std::size_t cellDeal(std::size_t i);
    std::size_t goMoney(std::size_t i);
    static std::size_t absorbedAtTop(const Event& e);
    std::size_t bankPayment(std::size_t i);
    std::size_t marks(std::size_t i);
    std::size_t bankruptcy(std::size_t i, std::size_t end);
    // Whether the walk whose first stroke is ev_[first] and last stroke `last` pays Go money.
    bool walkPaysGo(std::size_t first, const Event& last) const;
    bool goesBackToBank(std::size_t i, Integer cell) const;
    // A computer's balance tests, checked on the first payment that each one lets through
    // for player p.
    void computerTest(const Event& e, int p, bool& seen, bool passes, const std::string& what);
    std::size_t fromBank(const Event& e, int amount);
    std::size_t toBank(int amount);
    void received(const Event& e, int amount) { lost_ += amount - e.delta; }
    bool isComputer(int slot) const;
    void fail(std::string what);
    std::string who(int slot) const;
    std::string cell(Integer c) const;
    std::string describe(const Event& e) const;
    std::string unexplained(const Event& e) const;

    Board& board_;
    const std::vector<Event>& ev_;
    int played_;
    long long bankNet_ = 0;
    long long lost_ = 0;
    std::optional<std::string> fault_;
    // Payments that a computer's turn makes once at most.
    int rents_ = 0;
    int taxes_ = 0;
    int purchases_ = 0;
    int jailFees_ = 0;
    std::vector<Integer> cardsPaid_;
    bool released_ = false;
    bool bought_ = false;
    bool built_ = false;
};

}  // namespace gw::sim
