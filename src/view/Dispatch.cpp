// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/Dispatch.h"

#include "windows/GameRun.h"

namespace gw::view {

void Dispatch::click(const std::function<void()>& handler) {
    run_.click(handler);
    if (afterClick_) afterClick_();
}

}  // namespace gw::view
