// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/taxCellWindow.h"

#include "players/player.h"
#include "windows/Windows.h"

namespace gw {

void taxCellWindow::showTaxCard(Integer iId, player& p, Integer amount, Integer opt) {
    taxId_ = iId;
    picture_ = TaxPicture::None;
    taxPlayer_ = &p;
    label1_ = "Pay $" + std::to_string(amount);
    payRent_.hide();
    if (taxId_ == 4) picture_ = TaxPicture::IncomeTax;
    if (taxId_ == 38) picture_ = TaxPicture::LuxuryTax;
    if (opt == 1) {
        payRent_.show();
        const Integer shortfall = p.canPayTax(taxId_);
        if (shortfall != 0) {
            windows_.main.showInfo("You owe $" + std::to_string(shortfall));
            payRent_.enable(false);
        } else {
            payRent_.enable(!p.isComputer2());
        }
    }
    setVisible(true);
}

bool taxCellWindow::computerThink() {
    windows_.delay.wait(kComputerThinkTicks);
    setVisible(false);
    windows_.main.setEnabled(true);
    return true;
}

// The tax is taken only from a player still in the game whose token stands on the cell.
void taxCellWindow::payRent_Click() {
    if (!isVisible()) return;
    if (taxPlayer_ == nullptr || taxPlayer_->isBankrupt2() || taxPlayer_->isWalking() ||
        taxPlayer_->getPosition() != taxId_) {
        close();
        return;
    }
    taxPlayer_->payRent();
    taxPlayer_->setDidAction(true);
    windows_.main.setEnabled(true);
    setVisible(false);
}

void taxCellWindow::close() {
    windows_.main.setEnabled(true);
    setVisible(false);
}

void taxCellWindow::forgetPlayers() {
    taxPlayer_ = nullptr;
    setVisible(false);
}

void taxCellWindow::forEachControl(const ControlVisitor& fn) const {
    fn("Label1", Control{true, true, label1_});
    fn("payRent", payRent_);
}

}  // namespace gw
