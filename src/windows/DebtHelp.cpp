// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/DebtHelp.h"

#include "game/Board.h"
#include "players/player.h"
#include "windows/MainWindow.h"
#include "windows/Question.h"

namespace gw {

player* DebtHelp::debtor() const {
    if (!main_.isVisible() || board_.getNumPlayer() == 0) return nullptr;
    player& p = board_.getCurrPlayer();
    if (p.isComputer2() || p.isBankrupt2() || p.getBalance() >= 0) return nullptr;
    return &p;
}

bool DebtHelp::isShown() const {
    return debtor() != nullptr;
}

std::string DebtHelp::line() const {
    const player* p = debtor();
    if (p == nullptr) return {};
    const int owed = -static_cast<int>(p->getBalance());
    std::string text = p->getName() + ", you are $" + std::to_string(owed) + " short. ";
    if (planRaise(*p).covers) {
        text += "Click your cells to mortgage them or sell hotels, or Declare Bankruptcy.";
    } else {
        text += "Mortgages and hotel sales cannot cover it: Declare Bankruptcy.";
    }
    return text;
}

Control DebtHelp::raiseForMe() const {
    const player* p = debtor();
    if (p == nullptr || !planRaise(*p).covers) return Control{false, false, ""};
    const int owed = -static_cast<int>(p->getBalance());
    return Control{true, true, "Raise $" + std::to_string(owed) + " for me"};
}

void DebtHelp::raiseForMe_Click() {
    if (!raiseForMe().isOpen()) return;
    player& p = *debtor();
    const RaisePlan plan = planRaise(p);
    if (!question_->ask("Raise money", describeRaise(p, plan) + "\n\nDo it?")) return;
    carryOutRaise(p, plan);
}

}  // namespace gw
