// SPDX-License-Identifier: GPL-3.0-or-later
#include "TurnBook.h"

#include <algorithm>
#include <cmath>

#include "SimText.h"
#include "Tariff.h"

namespace gw::sim {
namespace {

using Kind = Event::Kind;

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

// The game rounds products of doubles to the nearest whole number, halves to the even
// one; so does nearbyint in the default rounding mode.
long long nearest(double value) {
    return std::llround(std::nearbyint(value));
}

// The sums that autoTrade offers for a cell: from a little more than half its price.
bool isOffer(Integer cell, int amount) {
    const double price = tariffOf(cell).price;
    for (int d = kFirstOfferDigit; d <= kLastOfferDigit; ++d) {
        if (nearest(price * (d / 10.0 / 20.0 + 0.5)) == amount) return true;
    }
    return false;
}

// Income tax: a tenth of the worth when that is less than the flat sum.
bool isIncomeTax(long long worth, int amount) {
    const double tenth = saturate(worth) * 0.1;
    return amount == (tenth < kIncomeTaxCap ? nearest(tenth) : kIncomeTaxCap);
}

int balanceBefore(const Event& e, int p) {
    const int after = e.balances[static_cast<std::size_t>(p)];
    return e.who == p ? after - e.delta : after;
}

}  // namespace

std::optional<std::string> TurnBook::explain() {
    for (const Event& e : ev_) {
        // A turn ends with the turn passing on; nothing may follow it.
        if (e.current != played_) {
            return "the turn of " + who(played_) + " had passed to " + who(e.current) +
                   " when this came: " + describe(e);
        }
    }
    for (std::size_t i = 0; i < ev_.size();) {
        std::size_t used = 1;
        switch (ev_[i].kind) {
            case Kind::Money:
                used = sale(i);
                if (used == 0 && !fault_) used = rent(i);
                if (used == 0 && !fault_) used = cellDeal(i);
                if (used == 0 && !fault_) used = goMoney(i);
                if (used == 0 && !fault_) used = absorbedAtTop(ev_[i]);
                if (used == 0 && !fault_) used = bankPayment(i);
                break;
            case Kind::Owner:
            case Kind::Hotel:
            case Kind::Mort:
                used = marks(i);
                break;
            case Kind::Bankrupt:
                if (!board_.getPlayer(static_cast<Integer>(played_))->isBankrupt2()) {
                    return "a bankruptcy of " + who(played_) + " was shown and it plays on";
                }
                break;
            default:
                break;
        }
        if (fault_) return fault_;
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

// An update that moved no money while a purse stood full: a receipt that the 16-bit top
// swallowed whole, after the rule that paid it had already been matched or before its
// pair could be told apart. It is left unattributed, and read before a tax of 0 could be.
std::size_t TurnBook::absorbedAtTop(const Event& e) {
    if (e.who >= 0) return 0;
    const bool full = std::any_of(e.balances.begin(), e.balances.end(),
                                  [](Integer b) { return b == kIntegerMax; });
    return full ? 1 : 0;
}

// A sale between players: the seller is paid, the buyer pays, the cell changes hands.
// Between computers the buyer is always the player at turn, at one of autoTrade's offers;
// a person names any sum and answers a card when he likes, in whoever's turn that is.
std::size_t TurnBook::sale(std::size_t i) {
    const Event& credit = ev_[i];
    const Event* debit = at(i + 1);
    const Event* shown = at(i + 2);
    if (!isMoney(debit) || shown == nullptr || shown->kind != Kind::Owner) return 0;
    // A sum of 0 changes no balance: two updates that move nothing.
    const bool free = credit.who < 0 && debit->who < 0;
    const int buyer = free ? shown->owner : debit->who;
    const int seller = shown->shownOwner;
    if (buyer < 0 || debit->delta > 0 || shown->owner != buyer) return 0;
    const int amount = -debit->delta;
    if (seller < 0 || !(free || isCredit(credit, seller, amount))) return 0;
    if (isComputer(buyer) && isComputer(seller)) {
        if (buyer != credit.current) return 0;
        if (!isOffer(shown->cell, amount)) {
            fail(who(buyer) + " bought " + cell(shown->cell) + " from " + who(seller) + " for " +
                 std::to_string(amount) + ", which no offer of a computer makes");
            return 0;
        }
        computerTest(credit, buyer, bought_, balanceBefore(credit, buyer) > kComputerTradesAbove,
                     "made an offer to buy");
    }
    received(credit, amount);
    return 3;
}

// Rent: the player at turn pays what the cell under the token asks with the hotels on it,
// and its owner receives it.
std::size_t TurnBook::rent(std::size_t i) {
    const Event& e = ev_[i];
    const Event* next = at(i + 1);
    const int p = e.current;
    if (e.rentOwner < 0 || e.who != p || e.delta > 0 || !isMoney(next)) return 0;
    const auto hotels = static_cast<std::size_t>(std::clamp<Integer>(e.hotels, 0, 4));
    const Integer due = tariffOf(e.position).rent[hotels];
    const int paid = -e.delta;
    if (paid == due && isCredit(*next, e.rentOwner, due)) {
        received(*next, due);
        ++rents_;
        return 2;
    }
    // Paid on to another player, as rent is: say what is wrong with it.
    if (next->who < 0 || next->who == p || next->delta != paid) return 0;
    const std::string what = who(p) + " paid a rent of " + std::to_string(paid) + " on " +
                             cell(e.position) + " to " + who(next->who);
    if (next->who != e.rentOwner) {
        fail(what + ", which is the cell of " + who(e.rentOwner) + ": paid to the wrong player");
    } else {
        fail(what + " with " + std::to_string(e.hotels) + " hotels on it, where the rent is " +
             std::to_string(due) + ": a rent of the wrong amount");
    }
    return 0;
}

// A deal with the bank over one cell of its owner, shown on the cell right after. A
// computer deals in its own turn; a person may still use a card left open into another's.
std::size_t TurnBook::cellDeal(std::size_t i) {
    const Event& e = ev_[i];
    const Event* shown = at(i + 1);
    if (!isMark(shown)) return 0;
    // A receipt that a full purse swallowed whole names nobody: the cell names its owner.
    const int p = e.who >= 0 ? e.who : shown->owner;
    if (p < 0 || shown->owner != p) return 0;
    if (p != e.current && isComputer(p)) return 0;
    const CellTariff& t = tariffOf(shown->cell);
    const auto expect = [&](int amount, const std::string& deal) {
        const int moved = e.delta < 0 ? -e.delta : e.delta;
        const bool ok = e.delta < 0 ? isDebit(e, p, amount) : isCredit(e, p, amount);
        if (!ok) {
            fail(who(p) + " " + deal + " " + cell(shown->cell) + " for " + std::to_string(moved) +
                 ", where the amount is " + std::to_string(amount));
        }
        return ok;
    };
    switch (shown->kind) {
        case Kind::Hotel: {
            const int added = shown->hotels - shown->shownHotels;
            if (added == 1 && e.delta < 0) {
                if (!expect(t.hotelCost, "built a hotel on")) return 0;
                computerTest(e, p, built_, balanceBefore(e, p) > kComputerBuildsAbove,
                             "built a hotel");
                return toBank(t.hotelCost) + 1;
            }
            if (added == -1 && e.delta >= 0) {
                if (!expect(t.hotelCost, "sold a hotel of")) return 0;
                bool once = false;
                computerTest(e, p, once, balanceBefore(e, p) < kComputerRaisesBelow,
                             "sold a hotel");
                return fromBank(e, t.hotelCost) + 1;
            }
            return 0;
        }
        case Kind::Mort: {
            if (shown->shownMortgaged == shown->mortgaged) return 0;
            if (shown->mortgaged && e.delta >= 0) {
                if (!expect(t.mortgage, "mortgaged")) return 0;
                bool once = false;
                computerTest(e, p, once, balanceBefore(e, p) < kComputerRaisesBelow, "mortgaged");
                return fromBank(e, t.mortgage) + 1;
            }
            if (!shown->mortgaged && e.delta < 0 && !goesBackToBank(i + 2, shown->cell)) {
                if (!expect(t.release, "released")) return 0;
                computerTest(e, p, released_, balanceBefore(e, p) >= kComputerReleasesFrom,
                             "released a mortgage");
                return toBank(t.release) + 1;
            }
            return 0;
        }
        case Kind::Owner:
            if (shown->shownOwner >= 0 || e.delta > 0) return 0;
            if (!expect(t.price, "bought")) return 0;
            ++purchases_;
            return toBank(t.price) + 1;
        default:
            return 0;
    }
}

// Go money is paid inside a walk round the ring: between the stroke up to cell 39 and the
// one on from cell 0; and only on the walks that pay it.
std::size_t TurnBook::goMoney(std::size_t i) {
    const Event& e = ev_[i];
    const int p = e.current;
    const Event* before = i > 0 ? &ev_[i - 1] : nullptr;
    const Event* after = at(i + 1);
    if (!isWalkOf(before, p) || before->to != kCellCount - 1 || !isWalkOf(after, p) ||
        after->from != 0 || e.who != p || e.delta <= 0) {
        return 0;
    }
    if (!isCredit(e, p, kGoSum)) return 0;
    if (!walkPaysGo(i - 1, *after)) {
        fail(who(p) + " was paid Go money on the walk from cell " + std::to_string(before->from) +
             " to cell " + std::to_string(after->to) +
             ", which is no throw and no forward card: a penalty move pays none");
        return 0;
    }
    return fromBank(e, kGoSum);
}

// A throw's walk comes straight after its dice, as many cells as they show; a card's walk
// starts on the card cell, by the card drawn last. Going to jail and going back three
// cells are walks of neither kind.
bool TurnBook::walkPaysGo(std::size_t first, const Event& last) const {
    const Event& start = ev_[first];
    int steps = (last.to - start.from + kCellCount) % kCellCount;
    if (steps == 0) steps = kCellCount;
    const Event* dice = first > 0 ? &ev_[first - 1] : nullptr;
    if (dice != nullptr && dice->kind == Kind::Dice && dice->who == start.who &&
        steps == dice->from + dice->to) {
        return true;
    }
    switch (start.card) {
        case kPassGoCard:
            return last.to == 0;
        case kStLaurentCard:
            return last.to == 0 && start.from > kStLaurentCell;
        case kForward7Card:
            return steps == 7;
        case kForward11Card:
            return steps == 11;
        case kForward5Card:
            return steps == 5;
        default:
            return false;
    }
}

// Money between the player at turn and the bank with no cell changing: a money card, the
// jail fee, a tax.
std::size_t TurnBook::bankPayment(std::size_t i) {
    const Event& e = ev_[i];
    const int p = e.current;
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
    if (e.inJail && isDebit(e, p, kJailFeeSum)) {
        ++jailFees_;
        return toBank(kJailFeeSum);
    }
    if (e.position != kIncomeTaxCell && e.position != kLuxuryTaxCell) return 0;
    if (e.who >= 0 && (e.who != p || e.delta > 0)) return 0;
    const int paid = e.who < 0 ? 0 : -e.delta;
    // The worth is read before the payment; the event holds it after.
    const bool due =
        e.position == kLuxuryTaxCell ? paid == kLuxuryTaxSum : isIncomeTax(e.worth - e.delta, paid);
    if (!due) {
        fail(who(p) + " paid a tax of " + std::to_string(paid) + " on " + cell(e.position) +
             ", which its rule does not ask");
        return 0;
    }
    ++taxes_;
    return toBank(paid);
}

// Changes shown on cells with no payment of their own: a bankruptcy hands the cells on,
// and the run of them ends where the bankruptcy is shown.
std::size_t TurnBook::marks(std::size_t i) {
    std::size_t end = i;
    while (isMark(at(end))) ++end;
    const Event* last = at(end);
    if (last != nullptr && last->kind == Kind::Bankrupt) return bankruptcy(i, end);
    const Event& e = ev_[i];
    if (e.kind == Kind::Owner && e.shownOwner >= 0 && e.owner >= 0 && e.owner != e.shownOwner) {
        fail(cell(e.cell) + " went from " + who(e.shownOwner) + " to " + who(e.owner) +
             " in a sale without its two payments");
    }
    return 0;
}

// The bankrupt's cells go to the creditor, the owner of the cell it could not pay for,
// or back to the bank when there is none; no other cell moves.
std::size_t TurnBook::bankruptcy(std::size_t i, std::size_t end) {
    const Event& shown = ev_[end];
    const int bankrupt = shown.current;
    int creditor = shown.owner;  // as the cell stood when the bankruptcy was shown
    for (std::size_t j = i; j < end; ++j) {
        if (ev_[j].kind == Kind::Owner && ev_[j].cell == shown.cell) {
            creditor = ev_[j].shownOwner;  // as it stood before the bankruptcy moved it
            break;
        }
    }
    if (creditor == bankrupt) creditor = -1;
    for (std::size_t j = i; j < end; ++j) {
        const Event& m = ev_[j];
        if (m.kind != Kind::Owner || m.owner == m.shownOwner) continue;
        if (m.shownOwner != bankrupt) {
            fail("the bankruptcy of " + who(bankrupt) + " moved " + cell(m.cell) + " of " +
                 who(m.shownOwner) + " to " + who(m.owner));
        } else if (m.owner != creditor) {
            fail("the bankruptcy of " + who(bankrupt) + " on " + cell(shown.cell) + " gave " +
                 cell(m.cell) + " to " + who(m.owner) + ", not to its creditor " + who(creditor));
        } else if (creditor < 0 && (m.mortgaged || m.hotels != 0)) {
            fail("the bankruptcy of " + who(bankrupt) + " gave " + cell(m.cell) +
                 " back to the bank with its mortgage or hotels");
        }
    }
    return end - i;
}

// A bankrupt's cell that goes back to the bank is shown released, then without an owner.
bool TurnBook::goesBackToBank(std::size_t i, Integer c) const {
    const Event* next = at(i);
    return isMark(next) && next->cell == c && next->owner < 0;
}

void TurnBook::computerTest(const Event& e, int p, bool& seen, bool passes,
                            const std::string& what) {
    if (seen || !isComputer(p)) return;
    seen = true;
    if (passes) return;
    fail(who(p) + " " + what + " with " + std::to_string(balanceBefore(e, p)) +
         " in hand, which its balance test does not allow");
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

bool TurnBook::isComputer(int slot) const {
    return board_.getPlayer(static_cast<Integer>(slot))->isComputer2();
}

void TurnBook::fail(std::string what) {
    if (!fault_) fault_ = std::move(what);
}

std::string TurnBook::who(int slot) const {
    return nameOf(board_, slot);
}

std::string TurnBook::cell(Integer c) const {
    return cellText(board_, c);
}

std::string TurnBook::describe(const Event& e) const {
    switch (e.kind) {
        case Kind::Money:
            return (e.who < 0
                        ? std::string("an update that changed no balance")
                        : who(e.who) + " " + (e.delta > 0 ? "+" : "") + std::to_string(e.delta)) +
                   " on " + cell(e.position);
        case Kind::Move:
            return who(e.who) + "'s walk from cell " + std::to_string(e.from) + " to cell " +
                   std::to_string(e.to);
        case Kind::Dice:
            return who(e.who) + "'s throw of " + std::to_string(e.from) + " and " +
                   std::to_string(e.to);
        case Kind::Bankrupt:
            return "a bankruptcy";
        default:
            break;
    }
    const char* what = e.kind == Kind::Owner   ? "owner"
                       : e.kind == Kind::Hotel ? "hotels"
                                               : "mortgage";
    return "the " + std::string(what) + " of " + cell(e.cell) + " (owner " + who(e.owner) +
           ", was " + who(e.shownOwner) + ")";
}

std::string TurnBook::unexplained(const Event& e) const {
    const std::string turn = " in the turn of " + who(e.current);
    if (e.kind == Kind::Money) return "money moved that no rule explains: " + describe(e) + turn;
    return describe(e) + " changed with no payment and no bankruptcy" + turn;
}

}  // namespace gw::sim
