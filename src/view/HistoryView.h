// SPDX-License-Identifier: GPL-3.0-or-later
// The History window: the story of the game as a scrolling list, newest last, each line
// with its round, the player's token and name.
#pragma once

#include <QWidget>

#include "view/Dispatch.h"

class QListWidget;

namespace gw {
class History;
}

namespace gw::view {

class HistoryView final : public QWidget {
    Q_OBJECT
public:
    HistoryView(Dispatch& dispatch, History& model);

    void refresh();
    QListWidget& list() const { return *list_; }

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    Dispatch& dispatch_;
    History& model_;
    QListWidget* list_;
};

}  // namespace gw::view
