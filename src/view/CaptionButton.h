// A push button whose caption wraps onto several lines when its box is narrow, as the
// long captions of the turn buttons need.
#pragma once

#include <QPushButton>

namespace gw::view {

class CaptionButton : public QPushButton {
    Q_OBJECT
public:
    using QPushButton::QPushButton;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}  // namespace gw::view
