// SPDX-License-Identifier: GPL-3.0-or-later
// A push button whose caption wraps onto several lines when its box is narrow, as the
// long captions of the turn buttons need, with its Alt letter underlined.
#pragma once

#include <QPushButton>

namespace gw::view {

class CaptionButton : public QPushButton {
    Q_OBJECT
public:
    using QPushButton::QPushButton;

    // The letter that Alt presses with: drawn underlined where the caption first has it, the
    // caption itself left as it is.
    void setMnemonic(QChar letter);
    // The caption as drawn, with '&' before the underlined letter (Qt's mnemonic markup).
    QString drawnCaption() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QChar mnemonic_;
};

}  // namespace gw::view
