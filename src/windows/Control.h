// SPDX-License-Identifier: GPL-3.0-or-later
// The state of one control as a view draws it: shown, enabled, caption.
#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace gw {

struct Control {
    bool visible = true;
    bool enabled = true;
    std::string caption;

    void show(bool on = true) { visible = on; }
    void hide() { visible = false; }
    void enable(bool on = true) { enabled = on; }
    bool isOpen() const { return visible && enabled; }
};

// Visits one control of a window by its name: "rollDice", "Ok(1)", "PlayerName(3)".
using ControlVisitor = std::function<void(std::string_view name, const Control&)>;

// What every window model shares: whether it is up, and a hook that lets a view
// repaint after a change. Headless, the hook is empty.
class WindowModel {
public:
    bool isVisible() const { return visible_; }
    void setOnChanged(std::function<void()> hook) { onChanged_ = std::move(hook); }

protected:
    void setVisible(bool visible) {
        visible_ = visible;
        changed();
    }
    void changed() const {
        if (onChanged_) onChanged_();
    }

private:
    bool visible_ = false;
    std::function<void()> onChanged_;
};

}  // namespace gw
