#include "windows/taxCellWindow.h"

#include "players/player.h"
#include "windows/Windows.h"

namespace gw {

void taxCellWindow::showTaxCard(Integer iId, player& p, Integer amount, Integer opt) {
    taxId_ = iId;
    picture_ = -1;
    taxPlayer_ = &p;
    label1_ = "Pay $" + std::to_string(amount);
    payRent_.hide();
    if (taxId_ == 4) picture_ = 0;
    if (taxId_ == 38) picture_ = 1;
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

void taxCellWindow::payRent_Click() {
    if (taxPlayer_ == nullptr) return;
    taxPlayer_->payRent();
    taxPlayer_->setDidAction(true);
    windows_.main.setEnabled(true);
    setVisible(false);
}

}  // namespace gw
