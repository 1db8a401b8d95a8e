// The ledger of one turn: every movement of money explained as a payment that the rules
// allow, or named as the fault it is.
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
    PropertyCell& property(Integer cell) const { return *board_.getCell(cell)->asProperty(); }
    // Each answers how many events it explains from i on, 0 when they are not its kind.
    std::size_t sale(std::size_t i);
    std::size_t rent(std::size_t i);
    std::size_t cellDeal(std::size_t i);
    std::size_t bankPayment(std::size_t i);
    std::size_t bankruptcy(std::size_t i) const;
    bool isOffer(Integer cell, int amount) const;
    bool goesBackToBank(std::size_t i, Integer cell) const;
    std::size_t fromBank(const Event& e, int amount);
    std::size_t toBank(int amount);
    void received(const Event& e, int amount) { lost_ += amount - e.delta; }
    std::string describe(const Event& e) const;
    std::string unexplained(const Event& e) const;

    Board& board_;
    const std::vector<Event>& ev_;
    int played_;
    long long bankNet_ = 0;
    long long lost_ = 0;
    // Payments that a computer's turn makes once at most.
    int rents_ = 0;
    int taxes_ = 0;
    int purchases_ = 0;
    int jailFees_ = 0;
    std::vector<Integer> cardsPaid_;
};

}  // namespace gw::sim
