// SPDX-License-Identifier: GPL-3.0-or-later
// The set-up window's message boxes as real modal boxes with a warning icon.
#pragma once

#include <functional>

#include "windows/MessageBox.h"

class QWidget;

namespace gw::app {

class QtMessageBox final : public MessageBox {
public:
    // The window the box belongs to, asked at each box; may give null.
    void setParent(std::function<QWidget*()> parent) { parent_ = std::move(parent); }
    void show(const std::string& title, const std::string& text, MessageIcon icon) override;

private:
    std::function<QWidget*()> parent_;
};

}  // namespace gw::app
