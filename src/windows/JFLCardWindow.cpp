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

}  // namespace gw
