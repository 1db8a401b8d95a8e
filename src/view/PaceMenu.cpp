// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/PaceMenu.h"

#include <QActionGroup>
#include <QMainWindow>
#include <QMenuBar>

#include "view/MainWindowView.h"

namespace gw::view {

namespace {

// The Game menu, made before Help when the window has none yet.
QMenu& gameMenu(QMainWindow& window) {
    QMenuBar& bar = *window.menuBar();
    for (QAction* action : bar.actions()) {
        if (action->menu() && action->text() == QStringLiteral("&Game")) return *action->menu();
    }
    auto* menu = new QMenu(QStringLiteral("&Game"), &bar);
    QAction* before = nullptr;
    for (QAction* action : bar.actions()) {
        if (action->text() == QStringLiteral("&Help")) before = action;
    }
    bar.insertMenu(before, menu);
    menu->menuAction()->setProperty(MainWindowView::kOpenWhileCardUp, true);
    return *menu;
}

}  // namespace

PaceMenu::PaceMenu(QMainWindow& window, PacedDelay& pacing) : pacing_(pacing) {
    QMenu* pace = gameMenu(window).addMenu(QStringLiteral("&Pace"));
    auto* group = new QActionGroup(pace);
    for (const Pace p : kPaces) {
        const std::string_view caption = paceCaption(p);
        QAction* entry = pace->addAction(
            QString::fromLatin1(caption.data(), static_cast<qsizetype>(caption.size())));
        entry->setCheckable(true);
        group->addAction(entry);
        QObject::connect(entry, &QAction::triggered, pace, [this, p] {
            pacing_.setPace(p);
            refresh();
        });
        entries_[static_cast<std::size_t>(p)] = entry;
    }
    refresh();
}

void PaceMenu::refresh() {
    entry(pacing_.pace()).setChecked(true);
}

}  // namespace gw::view
