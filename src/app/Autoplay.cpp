// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Autoplay.h"

#include "view/Dispatch.h"
#include "windows/GameRun.h"

namespace gw::app {

void seatComputers(view::Dispatch& dispatch, GameRun& run, int computers) {
    GameStart& start = run.gameStart();
    for (int i = 0; i < computers; ++i) {
        dispatch.click([&] { start.Token_Click(i); });
        if (!start.nextIsComputer()) dispatch.click([&] { start.Image1_Click(); });
        dispatch.click([&] { start.Command1_Click(); });
    }
    dispatch.click([&] { start.Command2_Click(); });
}

}  // namespace gw::app
