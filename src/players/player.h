// SPDX-License-Identifier: GPL-3.0-or-later
// One participant of the game, human or computer: money, place on the ring, jail
// state, doubles, turn flag and holdings, and every rule that changes them. Nobody
// else writes the balance or the position. The computer's decisions are operations of
// the same class (autoPlay, autoMakeMoney, autoTrade).
#pragma once

#include <array>
#include <cstdint>
#include <string>

#include "base/Integer.h"
#include "players/CellSet.h"
#include "ports/Sound.h"

namespace gw {

class Board;
class BoardCell;
class PropertyCell;
struct Ports;

constexpr Integer kStartingBalance = 1500;
constexpr Integer kGoMoney = 200;
constexpr Integer kJailCell = 10;
constexpr Integer kJailFee = 50;

class player {
public:
    player(Integer iId, std::string sName, Board& bBoard1, bool is_Computer, Integer token_Name);
    player(const player&) = delete;
    player& operator=(const player&) = delete;

    // Identity and turn flag
    void setId(Integer id) { id_ = id; }
    Integer getId() const { return id_; }
    void setName(std::string name) { name_ = std::move(name); }
    const std::string& getName() const { return name_; }
    std::string getTokenName() const { return std::to_string(token_); }
    bool getDidAction() const { return didAction_; }
    void setDidAction(bool didIt) { didAction_ = didIt; }
    bool isComputer2() const { return isComputer_; }
    bool isBankrupt2() const { return isBankrupt_; }
    Integer getBalance() const { return balance_; }
    Integer getPosition() const { return position_; }
    // True while the token walks: the position is already the cell it walks to.
    bool isWalking() const { return walking_; }
    Board& getBoard() const { return board_; }

    // Jail and doubles
    bool IsInJail() const { return inJail_; }
    Integer getJailCount() const { return jailCount_; }
    // Counts a failed throw; the third failure of a stay lets the player out free.
    void incJailCount();
    void resetJailCount() { jailCount_ = 0; }
    void pay50GOJ();
    bool hasGoJFC() const { return hasGoJFC_; }
    void useGOJFC();
    void setHasGoJFC(bool bGoJFC) { hasGoJFC_ = bGoJFC; }
    // Walks the token forward to cell 10 without Go money and locks it up.
    void goToJail();
    void getOutOfJail();
    Integer getDoubleCount() const { return doubleCount_; }
    void incDoubleCount() { doubleCount_ = addSat(doubleCount_, 1); }
    void resetDoubleCount() { doubleCount_ = 0; }

    // Movement and money
    // Walks numCells forward; reaching or passing Go pays 200 unless penalty is set.
    void move(Integer numCells, bool penalty);
    void debit(Integer amount);
    void credit(Integer amount);

    // Holdings (a cellId is 0 to 39)
    bool canBuy(Integer cellId);
    // Buys the cell under the token, with no test: callers ask canBuy first.
    void buyProperty();
    void newlyOwn(BoardCell& pProp);
    void noMoreOwn(BoardCell& pProp);
    // True when the district row is held whole. Marks the missing third column of the
    // two-street districts as held on every call.
    bool ownDist(Integer iDist);
    bool canBuild(Integer cellId);
    void buildHotel(Integer cellId);
    bool canSellHotel(Integer cellId);
    void sellHotel(Integer cellId);
    bool canMort(Integer cellId);
    void mortgageProp(Integer cellId);
    bool canUnmort(Integer cellId);
    void unmortgageProp(Integer cellId);
    // Whether the player holds the buyable cell, kept as cells change hands so that the
    // computer's play need not ask all forty cells.
    bool holds(Integer cellId) const { return held_.has(cellId); }
    bool ownsStreetEntry(int row, int column) const {
        return ownedStreets_[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
    }

    // Rent, debt and bankruptcy
    // The rent due on the cell under the token, hotels counted.
    Integer getRent();
    void payRent();
    // 0 when the bare rent of the cell under the token can be paid, else the shortfall.
    Integer canPayRent(Integer cellId);
    Integer canPayTax(Integer cellId);
    Integer calcAssets();
    player* isInDebtTo();
    void declareBankruptcy();

    // Trading (this player is the buyer)
    void offerTrade(Integer cellId, Integer amount);
    void doTrade(Integer cellId, Integer amount);

    // The computer's play
    void autoPlay(Integer opt);
    void autoMakeMoney(Integer amount);
    void autoTrade();

private:
    Ports& windows() const;
    BoardCell* cellUnder() const;
    // The buyable cell under the token, or null.
    PropertyCell* propertyUnder() const;
    // The tax due on a tax cell, with the lesser-of rule of income tax.
    Integer taxDue(const BoardCell& taxCell);
    void setStreetEntry(const BoardCell& c, bool owned);
    // ownDist's side effect: the missing third column of the two-street districts marked held.
    void markTwoStreetDistricts();
    // Brings the district masks up to date with one row of ownedStreets_.
    void updateDistrict(std::size_t row);
    bool wholeDistrict(std::size_t row) const { return ((wholeDistricts_ >> row) & 1U) != 0; }
    void playSound(SoundEffect effect) const;
    void showPayingButtons() const;
    void autoLeaveJailAndRoll();
    void autoReleaseAndAct();
    void autoSettleTradeRaiseBuild();
    void autoBuild();

    std::string name_;
    Integer id_;
    Integer token_;
    Integer balance_ = kStartingBalance;
    Integer position_ = 0;
    bool inJail_ = false;
    Integer jailCount_ = 0;
    bool hasGoJFC_ = false;
    bool isComputer_;
    bool isBankrupt_ = false;
    Integer doubleCount_ = 0;
    std::array<std::array<bool, 3>, 8> ownedStreets_{};
    // The districts, one bit a row of ownedStreets_, kept as that table changes: those held
    // whole (a two-street district with its two), and those that lack one street that the
    // computer may ask for.
    std::uint8_t wholeDistricts_ = 0;
    std::uint8_t districtsOneShort_ = 0;
    CellSet held_;
    Board& board_;
    bool didAction_ = false;
    bool walking_ = false;
};

}  // namespace gw
