// SPDX-License-Identifier: GPL-3.0-or-later
// The trading card: a buyer's face to make an offer for another player's cell, and an
// owner's face to take it, ask for more or turn it down. One window serves both sides,
// one after the other, so at most one offer is on the table.
#pragma once

#include <optional>
#include <string>

#include "base/Integer.h"
#include "ports/CardPorts.h"
#include "ports/WindowCodes.h"
#include "windows/Control.h"

namespace gw {

class Windows;
class player;

class TradingCardWindow final : public WindowModel, public TradingCardPort {
public:
    static constexpr std::size_t kAmountMaxLength = 5;

    explicit TradingCardWindow(Windows& windows) : windows_(windows) {}

    // The buyer's face.
    void proposeTrade(Integer iId, player& buyer, const std::string& sStreetName,
                      const std::string& sOwner);
    // The owner's face, with the sum on the table.
    void seeTrade(Integer iId, player& owner, Integer iAmount) override;
    bool computerThink() override;

    void doneDeal_Click();
    void forgetIt_Click();
    void wantIt_Click() override;
    void wantMore_Click();

    // The amount box. Focus, a click into it and the card opening or turning to its other
    // face select the whole text, so typing replaces it however the focus moved; the key
    // filter lets the digits through and drops every other key, Backspace and minus included.
    void amount_GotFocus() { selectAmount(); }
    void amount_Click() { selectAmount(); }
    static bool amount_KeyPress(char key) { return key >= '0' && key <= '9'; }
    // Types one key into the box as the text box would: filtered, then replacing the
    // selection or appended while the box has room.
    void typeKey(char key);
    void setAmountText(std::string text) override;
    const std::string& amountText() const { return amount_; }
    bool amountSelected() const { return amountSelected_; }
    // The typed sum as a number; nothing for an empty box or one above 32767.
    std::optional<Integer> readAmount() const;

    // Every control by its name, as a view binds them.
    void forEachControl(const ControlVisitor& fn) const;
    // The window's close box, and a new game: the card goes and forgets its players.
    void close();
    void forgetPlayers();

    player* tradeBuyer() const { return tradeBuyer_; }
    player* tradeOwner() const { return tradeOwner_; }
    Integer tradeId() const { return tradeId_; }
    Integer tradeAmount() const { return tradeAmount_; }
    const std::string& tradeStreet() const { return tradeStreet_; }
    const std::string& tradeOwnerName() const { return tradeOwnerName_; }

    TradeFace face() const { return face_; }
    const std::string& label(int number) const { return labels_[static_cast<std::size_t>(number)]; }
    const Control& Label4() const { return label4_; }
    const Control& doneDeal() const { return doneDeal_; }
    const Control& wantIt() const { return wantIt_; }
    const Control& wantMore() const { return wantMore_; }
    const Control& forgetIt() const { return forgetIt_; }

private:
    void hide() { setVisible(false); }
    void selectAmount() {
        amountSelected_ = true;
        changed();
    }
    // The offer still stands: both parties are in the game and the cell is still the
    // owner's. Otherwise a click only closes the card.
    bool stillHolds() const;
    // A sum that no balance can take: the seller's would pass 32767 or the buyer's -32768.
    bool sumOutOfBounds(Integer sum) const;
    // Reads the box for an offer: the sum, or nothing with the reason on the message line.
    std::optional<Integer> offeredSum();

    Windows& windows_;
    player* tradeBuyer_ = nullptr;
    player* tradeOwner_ = nullptr;
    const player* ownerWhenProposed_ = nullptr;
    Integer tradeId_ = 0;
    std::string tradeStreet_;
    std::string tradeOwnerName_;
    Integer tradeAmount_ = 0;

    TradeFace face_ = TradeFace::Buyer;
    std::string amount_;
    bool amountSelected_ = false;
    std::array<std::string, 4> labels_{};
    Control label4_{true, true, ""};
    Control doneDeal_{true, true, "Done Deal Buddy !"};
    Control wantIt_{true, true, "I Want It !"};
    Control wantMore_{true, true, "I Want More !"};
    Control forgetIt_{true, true, "Forget It !"};
};

}  // namespace gw
