// SPDX-License-Identifier: GPL-3.0-or-later
#include "app/Program.h"

#include <QEvent>
#include <QPushButton>
#include <QScreen>
#include <QTimer>
#include <array>
#include <utility>

#include "app/QtDelay.h"
#include "windows/GameRun.h"

namespace gw::app {

Program::Program(GameRun& run, QtDelay* delay) : run_(run), dispatch_(run) {
    Windows& w = run.windows();
    main_ = std::make_unique<view::MainWindowView>(dispatch_, run.mainWindow());
    start_ = std::make_unique<view::GameStartView>(dispatch_, run.gameStart());
    cellInfo_ = std::make_unique<view::CellInfoView>(dispatch_, w.cellInfo);
    trading_ = std::make_unique<view::TradingCardView>(dispatch_, w.trading);
    jfl_ = std::make_unique<view::JFLCardView>(dispatch_, w.jflCard);
    tax_ = std::make_unique<view::TaxCardView>(dispatch_, w.taxCard);
    end_ = std::make_unique<view::GameEndView>(dispatch_, run.gameEnd());
    about_ = std::make_unique<view::AboutView>(dispatch_, run.about());
    story_ = std::make_unique<view::StoryView>(dispatch_, run);
    placeWindows();
    // Over the panel with a picture and no controls, under the emblem's place.
    debt_ = new view::DebtPanelView(main_->client(), QRect(592, 376, 186, 96), dispatch_,
                                    run.debtHelp());
    history_ = std::make_unique<view::HistoryView>(dispatch_, run.history());
    if (delay) {
        paceMenu_ = std::make_unique<view::PaceMenu>(*main_, delay->pacing());
        replayStop_ = std::make_unique<view::ReplayStop>(*main_, run, delay->pacing());
        // A game watched again goes at its own pace; the chosen one comes back after.
        run.setOnReplay([this, delay, chosen = Pace::Designed](bool on) mutable {
            if (on) {
                chosen = delay->pacing().pace();
                delay->pacing().setPace(kReplayPace);
            } else {
                delay->pacing().setPace(chosen);
                if (std::exchange(exitAfterReplay_, false)) {
                    dispatch_.click([this] { run_.mainWindow().Exit_Click(); });
                }
            }
            scheduleRefresh();
        });
        main_->installEventFilter(this);
        dispatch_.setAfterClick([this, delay] {
            if (run_.isWindingDown()) delay->cutShort();
        });
    }
    run.setOnChanged([this] { scheduleRefresh(); });
}

Program::~Program() {
    run_.setOnChanged({});
    run_.setOnReplay({});
}

bool Program::eventFilter(QObject* watched, QEvent* event) {
    if (watched != main_.get() || event->type() != QEvent::Close || !run_.isReplaying()) {
        return false;
    }
    event->ignore();
    exitAfterReplay_ = true;
    replayStop_->button().click();
    return true;
}

// The cards and About belong to the main window: no entry of their own in the task bar,
// always above the board, and placed where they leave the turn buttons and the message
// line in view. The set-up and end windows, shown while the main window is hidden, open in
// the middle of the screen.
void Program::placeWindows() {
    const std::array<view::WindowView*, 5> owned = {cellInfo_.get(), trading_.get(), jfl_.get(),
                                                    tax_.get(), about_.get()};
    for (view::WindowView* window : owned) {
        window->setParent(main_.get(), Qt::Dialog);
        window->setPlacer(
            [this](QSize frame) { return view::cardTopLeft(main_->cardRoom(), frame); });
    }
    for (view::WindowView* window : std::array<view::WindowView*, 2>{start_.get(), end_.get()}) {
        window->setPlacer([window](QSize frame) {
            const QScreen* screen = window->screen();
            return screen ? view::centredTopLeft(screen->availableGeometry(), frame)
                          : window->pos();
        });
    }
}

void Program::scheduleRefresh() {
    if (refreshScheduled_) return;
    refreshScheduled_ = true;
    QTimer::singleShot(0, [this, alive = std::weak_ptr<bool>(alive_)] {
        if (alive.lock()) refreshAll();
    });
}

void Program::refreshAll() {
    refreshScheduled_ = false;
    // Cards first, so a card that goes and the main window that comes back change together.
    cellInfo_->refresh();
    trading_->refresh();
    jfl_->refresh();
    tax_->refresh();
    about_->refresh();
    end_->refresh();
    story_->refresh();
    start_->refresh();
    debt_->refresh();
    history_->refresh();
    main_->refresh();
    if (paceMenu_) paceMenu_->refresh();
    if (replayStop_) replayStop_->refresh();
    if (onRefreshed_) onRefreshed_();
}

}  // namespace gw::app
