// SPDX-License-Identifier: GPL-3.0-or-later
// The one way a view's click, key or menu entry reaches the models: through the run, so a
// new game or the end of the program asked for inside it happens at the right moment.
#pragma once

#include <functional>

namespace gw {
class GameRun;
}

namespace gw::view {

class Dispatch {
public:
    explicit Dispatch(GameRun& run) : run_(run) {}

    void click(const std::function<void()>& handler);
    // Runs after every click, e.g. to cut short the waits of a run that is winding down.
    void setAfterClick(std::function<void()> hook) { afterClick_ = std::move(hook); }
    GameRun& run() const { return run_; }

private:
    GameRun& run_;
    std::function<void()> afterClick_;
};

}  // namespace gw::view
