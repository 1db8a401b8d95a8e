// SPDX-License-Identifier: GPL-3.0-or-later
// The modal message boxes of the set-up window. The core owns the interface so that a
// test sees title, text and icon; the desktop program shows a real modal box.
#pragma once

#include <string>
#include <vector>

namespace gw {

enum class MessageIcon { Exclamation };

class MessageBox {
public:
    virtual ~MessageBox() = default;
    // Shows the box and returns when the user has closed it with OK.
    virtual void show(const std::string& title, const std::string& text, MessageIcon icon) = 0;
};

// Remembers every box instead of showing it: headless runs and tests.
class RecordedMessageBox final : public MessageBox {
public:
    struct Shown {
        std::string title;
        std::string text;
        MessageIcon icon;
    };
    std::vector<Shown> shown;
    void show(const std::string& title, const std::string& text, MessageIcon icon) override {
        shown.push_back({title, text, icon});
    }
};

}  // namespace gw
