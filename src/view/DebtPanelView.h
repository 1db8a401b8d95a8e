// SPDX-License-Identifier: GPL-3.0-or-later
// The word to a human in debt, drawn over the main window's free panel, with the button
// that raises the sum as a computer would. Hidden while nobody at the screen owes money.
#pragma once

#include <QWidget>

#include "view/Dispatch.h"
#include "view/FitLabel.h"

class QPushButton;

namespace gw {
class DebtHelp;
}

namespace gw::view {

class DebtPanelView final : public QWidget {
    Q_OBJECT
public:
    DebtPanelView(QWidget& parent, const QRect& place, Dispatch& dispatch, DebtHelp& model);

    void refresh();
    FitLabel& line() const { return *line_; }
    QPushButton& raiseForMe() const { return *raise_; }

protected:
    void paintEvent(QPaintEvent* event) override;
    // Follows the main window's zoom: the parent is resized whenever the scale changes.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void followScale(qreal scale);

    Dispatch& dispatch_;
    DebtHelp& model_;
    FitLabel* line_;
    QPushButton* raise_;
    QRect place_;  // at 100 %
};

}  // namespace gw::view
