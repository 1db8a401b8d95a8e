// SPDX-License-Identifier: GPL-3.0-or-later
// The tax card: shows the flat sum of a tax cell and takes the payment. A human who
// cannot pay sees the shortfall and a closed button until money comes in.
#pragma once

#include <string>

#include "base/Integer.h"
#include "ports/CardPorts.h"
#include "ports/WindowCodes.h"
#include "windows/Control.h"

namespace gw {

class Windows;
class player;

class taxCellWindow final : public WindowModel, public TaxCardPort {
public:
    explicit taxCellWindow(Windows& windows) : windows_(windows) {}

    void showTaxCard(Integer iId, player& p, Integer amount, Integer opt) override;
    bool computerThink() override;
    void payRent_Click();

    // Every control by its name, as a view binds them.
    void forEachControl(const ControlVisitor& fn) const;
    // The window's close box: the card goes, the main window comes back; the tax stays due.
    void close();
    void forgetPlayers();

    TaxPicture picture() const { return picture_; }
    const std::string& Label1() const { return label1_; }
    const Control& payRent() const { return payRent_; }
    Integer taxId() const { return taxId_; }
    player* taxPlayer() const { return taxPlayer_; }

private:
    Windows& windows_;
    Integer taxId_ = 0;
    player* taxPlayer_ = nullptr;
    TaxPicture picture_ = TaxPicture::None;
    std::string label1_ = "Label1";
    Control payRent_{true, true, "Pay Tax"};
};

}  // namespace gw
