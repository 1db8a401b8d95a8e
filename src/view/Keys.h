// SPDX-License-Identifier: GPL-3.0-or-later
// Keys on a window's buttons: Alt and a letter clicks a named button while it is shown and
// enabled, as a mnemonic does; the letter is drawn underlined, the caption's text stays as
// the model writes it.
#pragma once

#include <QWidget>
#include <initializer_list>
#include <string_view>
#include <utility>

#include "view/ControlSet.h"

namespace gw::view {

void addMnemonics(QWidget& window, const ControlSet& controls,
                  std::initializer_list<std::pair<std::string_view, char>> keys);

// True when some button of the window is shown and enabled.
bool hasOpenButton(const QWidget& window);

}  // namespace gw::view
