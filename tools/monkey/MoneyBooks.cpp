// SPDX-License-Identifier: GPL-3.0-or-later
#include "MoneyBooks.h"

#include "SimText.h"
#include "TurnBook.h"

namespace gw::monkey {

void MoneyBooks::begin(Board& board) {
    board_ = &board;
    ledger_.attach(board);
    ledger_.clearEvents();
    asides_.clear();
    total_ = sim::moneyOf(board);
}

std::string MoneyBooks::check() {
    if (board_ == nullptr) return {};
    if (!ledger_.fault().empty()) return ledger_.fault();
    long long bankNet = 0;
    std::string broken;
    for (const std::vector<sim::Event>& aside : asides_) {
        if (broken.empty()) broken = explain(aside, bankNet);
    }
    if (broken.empty()) broken = explain(ledger_.events(), bankNet);
    asides_.clear();
    ledger_.clearEvents();
    if (!broken.empty()) return broken;
    for (Integer i = 0; i < board_->getNumPlayer(); ++i) {
        if (board_->getPlayer(i)->getBalance() != ledger_.balances()[static_cast<std::size_t>(i)]) {
            return "the balance of " + sim::nameOf(*board_, i) +
                   " changed with no update of the panel";
        }
    }
    const long long total = sim::moneyOf(*board_);
    if (total - total_ != bankNet) {
        return "the players' money changed by " + std::to_string(total - total_) +
               " and the bank's payments explain " + std::to_string(bankNet);
    }
    total_ = total;
    return {};
}

std::string MoneyBooks::explain(const std::vector<sim::Event>& events, long long& bankNet) {
    for (auto first = events.begin(); first != events.end();) {
        auto end = first;
        // A throw and what follows it up to the next throw or the next player's turn: the
        // payments that come once a throw are counted over that.
        while (end != events.end() && end->current == first->current &&
               (end == first || end->kind != sim::Event::Kind::Dice)) {
            ++end;
        }
        const std::vector<sim::Event> turn(first, end);
        sim::TurnBook book(*board_, turn, first->current);
        if (std::optional<std::string> fault = book.explain()) return *fault;
        bankNet += book.bankNet() - book.lost();
        first = end;
    }
    return {};
}

}  // namespace gw::monkey
