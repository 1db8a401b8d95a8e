// SPDX-License-Identifier: GPL-3.0-or-later
// The property card: one Street, Metro or Utility with its values, and the buttons by
// which a human buys, pays rent, builds, sells, mortgages, releases and opens a trade.
// In a computer's turn the same card comes up with its buttons closed, for the human to
// watch, and computerThink closes it after the standard wait.
#pragma once

#include <array>
#include <span>
#include <string>

#include "base/Integer.h"
#include "ports/CardPorts.h"
#include "ports/WindowCodes.h"
#include "windows/Control.h"

namespace gw {

class Windows;
class player;

class CellInfoWindow final : public WindowModel, public PropertyCardPort {
public:
    explicit CellInfoWindow(Windows& windows) : windows_(windows) {}

    // Fills the card and puts it on the screen; opt: 0 information, 1 buy, 2 rent,
    // 3 own cell, 4 another player's cell open to a trade.
    void showInfoCard(Integer iId, Integer iGroup, std::span<const Integer> iValues, Integer opt,
                      player& p, const std::string& sName, const std::string& sOwner) override;
    bool computerThink() override;

    void buy_Click();
    void buyHotel_Click();
    void forget_Click();
    void Mortgage_Click(int index);
    void Ok_Click(int index);
    void payRent_Click();
    void sellHotel_Click();
    void trade_Click() override;
    void Unmortgage_Click();
    // The window's own close box: no effect on the game, but the main window comes back.
    void close();

    // Every control by its name, as a view binds them.
    void forEachControl(const ControlVisitor& fn) const;
    // A new game: the card forgets the player of the last game.
    void forgetPlayers();

    // Fields of the last card.
    player* cardPlayer() const { return cardPlayer_; }
    Integer cardId() const { return cardId_; }
    const std::string& cardName() const { return cardName_; }
    const std::string& cardOwner() const { return cardOwner_; }
    Integer cardOpt() const { return cardOpt_; }

    // Which of the twelve card pictures is on show.
    CardPicture picture() const { return picture_; }
    // Label1 to Label10 by their number; index 0 is unused. Written out only when read:
    // a computer's cards come and go unseen thousands of times a second.
    std::string label(int number) const;

    const Control& buy() const { return buy_; }
    const Control& forget() const { return forget_; }
    const Control& payRent() const { return payRent_; }
    const Control& trade() const { return trade_; }
    const Control& Ok(int index) const { return ok_[static_cast<std::size_t>(index)]; }
    const Control& Mortgage(int index) const { return mortgage_[static_cast<std::size_t>(index)]; }
    const Control& Unmortgage() const { return unmortgage_; }
    const Control& buyHotel() const { return buyHotel_; }
    const Control& sellHotel() const { return sellHotel_; }
    // On a rent card, whom the rent goes to.
    const Control& payTo() const { return payTo_; }

private:
    // The label numbers that carry a value: a street's eight, the other kinds' three.
    static constexpr std::array<int, 8> kStreetValueLabels{2, 4, 5, 6, 7, 8, 9, 10};
    static constexpr std::array<int, 3> kOtherValueLabels{2, 6, 8};
    static constexpr std::size_t kLabelCount = 11;

    // The card's situations, each filling its own buttons.
    void takeCard(Integer iId, Integer opt, player& p, const std::string& sName,
                  const std::string& sOwner);
    void hideAllButtons();
    void offerPurchase(bool human);
    void demandRent(bool human);
    void offerTrade();
    // The picture and the values of the cell's kind, then the buttons of one's own cell.
    void showStreet(Integer district, std::span<const Integer> iValues);
    void showMetroOrUtility(Integer iGroup, std::span<const Integer> iValues);
    void putValues(std::span<const int> labelNumbers, std::span<const Integer> iValues);
    void showOwnCellButtons(bool narrow);
    // A button acts only while what the card was shown for still holds: its player is in
    // the game, the cell has the owner it had, and for a purchase or a rent the player's
    // token stands on the cell. Otherwise the click only closes the card.
    bool stillHolds(bool onTheCell) const;
    template <class Action>
    void act(bool onTheCell, Action action);
    void hideAndEnableMain();
    void finishCard();

    Windows& windows_;
    player* cardPlayer_ = nullptr;
    const player* ownerWhenShown_ = nullptr;
    Integer cardId_ = 0;
    std::string cardName_;
    std::string cardOwner_;
    Integer cardOpt_ = 0;

    CardPicture picture_ = CardPicture::None;
    bool filled_ = false;  // the labels read their design-time texts until a card is shown
    std::array<Integer, kLabelCount> labelValues_{};
    std::array<bool, kLabelCount> labelHasValue_{};
    Control buy_{true, true, "Buy It!"};
    Control forget_{true, true, "Forget It!"};
    Control payRent_{true, true, "Pay Rent"};
    Control trade_{true, true, "Trade"};
    std::array<Control, 2> ok_{Control{true, true, "Ok"}, Control{true, true, "Ok"}};
    std::array<Control, 2> mortgage_{Control{true, true, "Mortgage"},
                                     Control{true, true, "Mortgage"}};
    Control unmortgage_{true, true, "Unmortgage"};
    Control buyHotel_{true, true, "Buy Hotel"};
    Control sellHotel_{true, true, "Sell Hotel"};
    Control payTo_{false, true, ""};
};

}  // namespace gw
