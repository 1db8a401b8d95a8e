// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/HistoryView.h"

#include <QCloseEvent>
#include <QListWidget>
#include <QVBoxLayout>

#include "art/Tokens.h"
#include "windows/History.h"

namespace gw::view {

HistoryView::HistoryView(Dispatch& dispatch, History& model)
    : dispatch_(dispatch), model_(model), list_(new QListWidget(this)) {
    setWindowTitle(QStringLiteral("History"));
    setObjectName(QStringLiteral("history"));
    resize(460, 420);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(4, 4, 4, 4);
    layout->addWidget(list_);
    list_->setAccessibleName(QStringLiteral("History of the game"));
    list_->setWordWrap(true);
}

// New entries are appended; a new game, with fewer entries, starts the list afresh.
void HistoryView::refresh() {
    const auto& entries = model_.entries();
    if (static_cast<std::size_t>(list_->count()) > entries.size()) list_->clear();
    const bool atEnd = list_->count() == static_cast<int>(entries.size());
    for (auto i = static_cast<std::size_t>(list_->count()); i < entries.size(); ++i) {
        const HistoryEntry& e = entries[i];
        list_->addItem(QStringLiteral("Round %1 · %2 %3: %4")
                           .arg(e.round)
                           .arg(art::tokenName(e.token), QString::fromStdString(e.name),
                                QString::fromStdString(e.text)));
    }
    if (!atEnd) list_->scrollToBottom();
    if (model_.isVisible() != isVisible()) setVisible(model_.isVisible());
}

void HistoryView::closeEvent(QCloseEvent* event) {
    event->ignore();
    dispatch_.click([this] { model_.close(); });
}

}  // namespace gw::view
