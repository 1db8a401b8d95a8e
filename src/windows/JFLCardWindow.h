// SPDX-License-Identifier: GPL-3.0-or-later
// The card that shows a drawn JFL card's text. It closes by itself after the standard
// wait, for humans and computers alike; OK only closes it sooner.
#pragma once

#include <string>

#include "ports/CardPorts.h"
#include "windows/Control.h"

namespace gw {

class Windows;

class JFLCardWindow final : public WindowModel, public JFLCardPort {
public:
    explicit JFLCardWindow(Windows& windows) : windows_(windows) {}

    void showJFLCard(const std::string& sDesc) override;
    bool computerThink() override;
    void Ok_Click();

    // Every control by its name, as a view binds them.
    void forEachControl(const ControlVisitor& fn) const;
    // The window's close box: the main window comes back.
    void close() { Ok_Click(); }

    // The card's text.
    const std::string& Label2() const { return label2_; }
    const Control& Ok() const { return ok_; }

private:
    Windows& windows_;
    std::string label2_ = "Label1";
    Control ok_{true, true, "OK"};
};

}  // namespace gw
