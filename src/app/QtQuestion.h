// SPDX-License-Identifier: GPL-3.0-or-later
// The windows' yes-or-no questions as real modal boxes over the window that asks.
#pragma once

#include <functional>

#include "windows/Question.h"

class QWidget;

namespace gw::app {

class QtQuestion final : public Question {
public:
    // The window the box belongs to, asked at each question; may give null.
    void setParent(std::function<QWidget*()> parent) { parent_ = std::move(parent); }
    // No is the default answer, so a stray Enter keeps things as they are.
    bool ask(const std::string& title, const std::string& text) override;

private:
    std::function<QWidget*()> parent_;
};

// Presses Yes on the modal question on the screen, as a person would: for a timed close.
// Returns false when no question is up.
bool answerYesToQuestion();

}  // namespace gw::app
