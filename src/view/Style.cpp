// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Style.h"

#include "art/Text.h"

namespace gw::view {

QString styleSheet() {
    return QStringLiteral(R"(
QPushButton {
    color: #F3EBD3;
    background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #2F7C79, stop:1 #1F5C5A);
    border: 1px solid #144040;
    border-radius: 5px;
    padding: 0px 2px;
}
QPushButton:hover { background: qlineargradient(x1:0, y1:0, x2:0, y2:1, stop:0 #3A8E8A, stop:1 #246A67); }
QPushButton:pressed { background: #144040; }
QPushButton:focus { border: 1px solid #C9A227; }
QPushButton:disabled {
    color: #8C8A80;
    background: #E4D8B8;
    border: 1px solid #B8AC8C;
}
QLineEdit {
    color: #2A2A2E;
    background: #FBF6E7;
    border: 1px solid #1F5C5A;
    border-radius: 3px;
    padding: 0px 3px;
    selection-background-color: #C9A227;
    selection-color: #2A2A2E;
}
QLineEdit:disabled { color: #8C8A80; background: #E4D8B8; }
QLabel[role="printed"] { color: #2A2A2E; background: transparent; }
QMainWindow, QDialog { background: #F3EBD3; }
QMenuBar { background: #1F5C5A; color: #F3EBD3; }
QMenuBar::item:selected { background: #C9A227; color: #2A2A2E; }
QMenu { background: #FBF6E7; color: #2A2A2E; border: 1px solid #1F5C5A; }
QMenu::item:selected { background: #C9A227; }
)");
}

QFont controlFont(ControlKind kind, int pixelSize) {
    switch (kind) {
        case ControlKind::Button:
            return art::font(art::Face::Caption, pixelSize);
        case ControlKind::Label:
            return art::font(art::Face::Caption, pixelSize);
        case ControlKind::TextEntry:
            return art::font(art::Face::Number, pixelSize);
    }
    return {};
}

}  // namespace gw::view
