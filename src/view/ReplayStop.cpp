// SPDX-License-Identifier: GPL-3.0-or-later
#include "view/ReplayStop.h"

#include <QMainWindow>
#include <QPushButton>

#include "windows/GameRun.h"
#include "windows/PacedDelay.h"

namespace gw::view {

namespace {

// Over the board's centre, above the turn buttons, in the client area's pixels.
constexpr QRect kPlace{245, 96, 100, 30};

}  // namespace

// A child of the window itself, not of its client area, which a card may disable.
ReplayStop::ReplayStop(QMainWindow& window, GameRun& run, PacedDelay& pacing)
    : window_(window),
      run_(run),
      pacing_(pacing),
      button_(new QPushButton(QStringLiteral("Stop"), &window)) {
    button_->hide();
    QObject::connect(button_, &QPushButton::clicked, button_, [this] {
        run_.stopWatching();
        pacing_.setPace(Pace::Instant);
    });
}

void ReplayStop::refresh() {
    const bool shown = run_.isReplaying();
    if (shown) {
        const QWidget* client = window_.centralWidget();
        const QPoint at = client != nullptr ? client->geometry().topLeft() : QPoint();
        button_->setGeometry(kPlace.translated(at));
        button_->raise();
    }
    if (shown != button_->isVisible()) button_->setVisible(shown);
}

}  // namespace gw::view
