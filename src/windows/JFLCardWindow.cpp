// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/JFLCardWindow.h"

#include "windows/Windows.h"

namespace gw {

void JFLCardWindow::showJFLCard(const std::string& sDesc) {
    label2_ = sDesc;
    windows_.main.showInfo(sDesc);
    setVisible(true);
}

bool JFLCardWindow::computerThink() {
    windows_.delay.wait(kComputerThinkTicks);
    windows_.main.setEnabled(true);
    setVisible(false);
    return true;
}

void JFLCardWindow::Ok_Click() {
    windows_.main.setEnabled(true);
    setVisible(false);
}

void JFLCardWindow::forEachControl(const ControlVisitor& fn) const {
    fn("Label2", Control{true, true, label2_});
    fn("Ok", ok_);
}

}  // namespace gw
