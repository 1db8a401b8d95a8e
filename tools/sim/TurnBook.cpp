#include "TurnBook.h"

#include <algorithm>

#include "SimText.h"
#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "cells/TaxCell.h"

namespace gw::sim {
namespace {

using Kind = Event::Kind;

// The money cards: types 3 to 7 collect these sums from the bank, 8 to 12 pay them.
constexpr std::array<Integer, 5> kCardSums = {250, 200, 150, 100, 50};
constexpr Integer kFirstCollectCard = 3;
constexpr Integer kFirstPayCard = 8;
constexpr Integer kLastPayCard = 12;
// The digits of autoTrade's draw that lead to an offer.
constexpr int kFirstOfferDigit = 5;
constexpr int kLastOfferDigit = 9;

bool isMoney(const Event* e) {
    return e != nullptr && e->kind == Kind::Money;
}
bool isMark(const Event* e) {
    return e != nullptr &&
           (e->kind == Kind::Owner || e->kind == Kind::Hotel || e->kind == Kind::Mort);
}
bool isWalkOf(const Event* e, int who) {
    return e != nullptr && e->kind == Kind::Move && e->who == who;
}

// A payment of `amount` by player p. A payment of 0 (a tax on no worth) changes no balance.
bool isDebit(const Event& e, int p, int amount) {
    return e.kind == Kind::Money &&
           ((e.who == p && e.delta == -amount) || (amount == 0 && e.who < 0));
}

// A receipt of `amount` by player p. A balance sticks at the top of the 16-bit range, so
// there less may arrive, or nothing.
bool isCredit(const Event& e, int p, int amount) {
    if (e.kind != Kind::Money || p < 0 || p >= kMaxPlayers) return false;
    if (e.who == p && e.delta == amount) return true;
    const bool atTop = e.balances[static_cast<std::size_t>(p)] == kIntegerMax;
    return atTop && (e.who == p || e.who < 0) && e.delta >= 0 && e.delta < amount;
}

}  // namespace

std::optional<std::string> TurnBook::explain() {
    for (const Event& e : ev_) {
        // A turn ends with the turn passing on; nothing may follow it.
        if (e.current != played_) {
            return "the turn of " + nameOf(board_, played_) + " had passed to " +
                   nameOf(board_, e.current) + " when this came: " + describe(e);
        }
    }
    for (std::size_t i = 0; i < ev_.size();) {
        std::size_t used = 1;
        if (ev_[i].kind == Kind::Money) {
            used = sale(i);
            if (used == 0) used = rent(i);
            if (used == 0) used = cellDeal(i);
            if (used == 0) used = bankPayment(i);
        } else if (isMark(&ev_[i])) {
            used = bankruptcy(i);
        } else if (ev_[i].kind == Kind::Bankrupt &&
                   !board_.getPlayer(static_cast<Integer>(played_))->isBankrupt2()) {
            return "a bankruptcy of " + nameOf(board_, played_) + " was shown and it plays on";
        }
        if (used == 0) return unexplained(ev_[i]);
        i += used;
    }
    if (rents_ > 1 || taxes_ > 1 || purchases_ > 1 || jailFees_ > 1) {
        return "a payment that comes once a turn came twice (rents " + std::to_string(rents_) +
               ", taxes " + std::to_string(taxes_) + ", purchases " + std::to_string(purchases_) +
               ", jail fees " + std::to_string(jailFees_) + ")";
    }
    return std::nullopt;
}

// A sale between players: the seller is paid, the buyer pays, the cell changes hands.
// Between computers the buyer is always the player at turn, at one of autoTrade's offers.
std::size_t TurnBook::sale(std::size_t i) {
    const Event& credit = ev_[i];
    const Event* debit = at(i + 1);
    const Event* shown = at(i + 2);
    const int buyer = credit.current;
    if (!isMoney(debit) || shown == nullptr || shown->kind != Kind::Owner) return 0;
    if (debit->who != buyer || debit->delta > 0 || shown->owner != buyer) return 0;
    const int amount = -debit->delta;
    if (shown->shownOwner < 0 || !isCredit(credit, shown->shownOwner, amount)) return 0;
    if (!isOffer(shown->cell, amount)) return 0;
    received(credit, amount);
    return 3;
}

// Rent: the player at turn pays what the cell under the token asks, its owner receives it.
std::size_t TurnBook::rent(std::size_t i) {
    const Event& e = ev_[i];
    const Event* next = at(i + 1);
    if (e.rentOwner < 0 || next == nullptr || !isDebit(e, e.current, e.rentDue)) return 0;
    if (!isCredit(*next, e.rentOwner, e.rentDue)) return 0;
    received(*next, e.rentDue);
    ++rents_;
    return 2;
}

// A deal with the bank over one cell of the player at turn, shown on the cell right after.
std::size_t TurnBook::cellDeal(std::size_t i) {
    const Event& e = ev_[i];
    const Event* shown = at(i + 1);
    const int p = e.current;
    if (!isMark(shown) || shown->owner != p) return 0;
    const Property& prop = property(shown->cell).getProp();
    switch (shown->kind) {
        case Kind::Hotel: {
            const Integer cost = board_.getCell(shown->cell)->asStreet()->getHotelCost();
            const int added = shown->hotels - shown->shownHotels;
            if (added == 1 && isDebit(e, p, cost)) return toBank(cost) + 1;
            if (added == -1 && isCredit(e, p, cost)) return fromBank(e, cost) + 1;
            return 0;
        }
        case Kind::Mort: {
            const Integer release = rounded(prop.getMortgage() * 1.1);
            if (shown->shownMortgaged == shown->mortgaged) return 0;
            if (shown->mortgaged && isCredit(e, p, prop.getMortgage())) {
                return fromBank(e, prop.getMortgage()) + 1;
            }
            if (!shown->mortgaged && isDebit(e, p, release) &&
                !goesBackToBank(i + 2, shown->cell)) {
                return toBank(release) + 1;
            }
            return 0;
        }
        case Kind::Owner:
            if (shown->shownOwner >= 0 || !isDebit(e, p, prop.getPrice())) return 0;
            ++purchases_;
            return toBank(prop.getPrice()) + 1;
        default:
            return 0;
    }
}

// Money between the player at turn and the bank with no cell changing: Go money, a money
// card, the jail fee, a tax.
std::size_t TurnBook::bankPayment(std::size_t i) {
    const Event& e = ev_[i];
    const int p = e.current;
    // Go money is paid inside a walk round the ring: between the stroke up to cell 39
    // and the one on from cell 0.
    const Event* before = i > 0 ? &ev_[i - 1] : nullptr;
    const Event* after = at(i + 1);
    if (isWalkOf(before, p) && before->to == kCellCount - 1 && isWalkOf(after, p) &&
        after->from == 0 && isCredit(e, p, kGoMoney)) {
        return fromBank(e, kGoMoney);
    }
    if (e.card >= kFirstCollectCard && e.card <= kLastPayCard) {
        const bool collect = e.card < kFirstPayCard;
        const Integer sum = kCardSums[static_cast<std::size_t>(
            e.card - (collect ? kFirstCollectCard : kFirstPayCard))];
        // One payment a draw: a second one on the same card is no card's doing.
        const bool fresh =
            std::find(cardsPaid_.begin(), cardsPaid_.end(), e.cardSlot) == cardsPaid_.end();
        if (fresh && (collect ? isCredit(e, p, sum) : isDebit(e, p, sum))) {
            cardsPaid_.push_back(e.cardSlot);
            return collect ? fromBank(e, sum) : toBank(sum);
        }
    }
    if (e.inJail && isDebit(e, p, kJailFee)) {
        ++jailFees_;
        return toBank(kJailFee);
    }
    if (const TaxCell* tax = board_.getCell(e.position)->asTax()) {
        Integer due = tax->getRent();
        if (tax->isIncomeTax()) {
            // The worth is read before the payment; the event holds it after.
            const double tenth = saturate(static_cast<long long>(e.assets) - e.delta) * 0.1;
            if (tenth < due) due = rounded(tenth);
        }
        if (isDebit(e, p, due)) {
            ++taxes_;
            return toBank(due);
        }
    }
    return 0;
}

// Changes shown on cells with no payment: a bankruptcy hands the cells on, and the run of
// them ends where the bankruptcy is shown. No cell goes to the bankrupt player.
std::size_t TurnBook::bankruptcy(std::size_t i) const {
    std::size_t j = i;
    for (; isMark(at(j)); ++j) {
        if (ev_[j].kind == Kind::Owner && ev_[j].owner == ev_[j].current) return 0;
    }
    const Event* end = at(j);
    return end != nullptr && end->kind == Kind::Bankrupt ? j - i : 0;
}

bool TurnBook::isOffer(Integer cell, int amount) const {
    const Integer price = property(cell).getProp().getPrice();
    for (int d = kFirstOfferDigit; d <= kLastOfferDigit; ++d) {
        if (rounded(price * (d / 10.0 / 20.0 + 0.5)) == amount) return true;
    }
    return false;
}

// A bankrupt's cell that goes back to the bank is shown released, then without an owner.
bool TurnBook::goesBackToBank(std::size_t i, Integer cell) const {
    const Event* next = at(i);
    return isMark(next) && next->cell == cell && next->owner < 0;
}

std::size_t TurnBook::fromBank(const Event& e, int amount) {
    bankNet_ += amount;
    received(e, amount);
    return 1;
}

std::size_t TurnBook::toBank(int amount) {
    bankNet_ -= amount;
    return 1;
}

std::string TurnBook::describe(const Event& e) const {
    switch (e.kind) {
        case Kind::Money:
            return (e.who < 0 ? std::string("an update that changed no balance")
                              : nameOf(board_, e.who) + " " + (e.delta > 0 ? "+" : "") +
                                    std::to_string(e.delta)) +
                   " on " + cellText(board_, e.position);
        case Kind::Move:
            return nameOf(board_, e.who) + "'s walk from cell " + std::to_string(e.from) +
                   " to cell " + std::to_string(e.to);
        case Kind::Bankrupt:
            return "a bankruptcy";
        default:
            break;
    }
    const char* what = e.kind == Kind::Owner   ? "owner"
                       : e.kind == Kind::Hotel ? "hotels"
                                               : "mortgage";
    return "the " + std::string(what) + " of " + cellText(board_, e.cell) + " (owner " +
           nameOf(board_, e.owner) + ", was " + nameOf(board_, e.shownOwner) + ")";
}

std::string TurnBook::unexplained(const Event& e) const {
    const std::string turn = " in the turn of " + nameOf(board_, e.current);
    if (e.kind == Kind::Money) return "money moved that no rule explains: " + describe(e) + turn;
    return describe(e) + " changed with no payment and no bankruptcy" + turn;
}
}  // namespace gw::sim
