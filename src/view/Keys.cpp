// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Keys.h"

#include <QAbstractButton>
#include <QShortcut>
#include <map>
#include <vector>

#include "view/CaptionButton.h"

namespace gw::view {

// Buttons that share a letter take turns in one place of the window: one key serves them
// all and clicks whichever is open.
void addMnemonics(QWidget& window, const ControlSet& controls,
                  std::initializer_list<std::pair<std::string_view, char>> keys) {
    std::map<char, std::vector<QAbstractButton*>> byLetter;
    for (const auto& [name, letter] : keys) {
        QAbstractButton* button = controls.button(name);
        if (!button) continue;
        byLetter[letter].push_back(button);
        if (auto* caption = qobject_cast<CaptionButton*>(button)) {
            caption->setMnemonic(QLatin1Char(letter));
        }
    }
    for (const auto& [letter, buttons] : byLetter) {
        auto* shortcut =
            new QShortcut(QKeySequence(Qt::ALT | static_cast<Qt::Key>(letter)), &window);
        QObject::connect(shortcut, &QShortcut::activated, &window, [buttons = buttons] {
            for (QAbstractButton* b : buttons) {
                if (b->isVisible() && b->isEnabled()) {
                    b->click();
                    return;
                }
            }
        });
    }
}

bool hasOpenButton(const QWidget& window) {
    for (const QAbstractButton* b : window.findChildren<QAbstractButton*>()) {
        if (b->isVisible() && b->isEnabled()) return true;
    }
    return false;
}

}  // namespace gw::view
