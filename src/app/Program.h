// SPDX-License-Identifier: GPL-3.0-or-later
// The views of one run, wired to its models: every change marks them for one repaint from
// the event loop, clicks pass through one dispatch, and a run that winds down cuts short
// the waits still running.
#pragma once

#include <QObject>
#include <memory>

#include "view/CardViews.h"
#include "view/DebtPanelView.h"
#include "view/Dispatch.h"
#include "view/HistoryView.h"
#include "view/MainWindowView.h"
#include "view/PaceMenu.h"
#include "view/ReplayStop.h"
#include "view/StartEndViews.h"
#include "view/StoryView.h"

namespace gw {
class GameRun;
}

namespace gw::app {

class QtDelay;

class Program : public QObject {
public:
    Program(GameRun& run, QtDelay* delay);
    ~Program();

    // Brings every window to its model at once (the event loop does it after changes).
    void refreshAll();
    // Runs after each refresh, e.g. to watch for the end of a game.
    void setOnRefreshed(std::function<void()> hook) { onRefreshed_ = std::move(hook); }

    view::Dispatch& dispatch() { return dispatch_; }
    view::MainWindowView& mainView() { return *main_; }
    view::GameStartView& startView() { return *start_; }
    view::CellInfoView& propertyCard() { return *cellInfo_; }
    view::TradingCardView& tradingCard() { return *trading_; }
    view::JFLCardView& jflCard() { return *jfl_; }
    view::TaxCardView& taxCard() { return *tax_; }
    view::GameEndView& endView() { return *end_; }
    view::AboutView& aboutView() { return *about_; }
    // Game > Pace; there is none without a real delay.
    view::PaceMenu* paceMenu() { return paceMenu_.get(); }
    view::StoryView& storyView() { return *story_; }
    view::ReplayStop* replayStop() { return replayStop_.get(); }
    view::DebtPanelView& debtPanel() { return *debt_; }
    view::HistoryView& historyView() { return *history_; }

protected:
    // The close box of the main window during a game watched again: the rest plays at
    // once, then the program ends as the close box always ends it.
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void scheduleRefresh();
    void placeWindows();

    GameRun& run_;
    view::Dispatch dispatch_;
    std::unique_ptr<view::MainWindowView> main_;
    std::unique_ptr<view::GameStartView> start_;
    std::unique_ptr<view::CellInfoView> cellInfo_;
    std::unique_ptr<view::TradingCardView> trading_;
    std::unique_ptr<view::JFLCardView> jfl_;
    std::unique_ptr<view::TaxCardView> tax_;
    std::unique_ptr<view::GameEndView> end_;
    std::unique_ptr<view::AboutView> about_;
    std::unique_ptr<view::PaceMenu> paceMenu_;
    std::unique_ptr<view::StoryView> story_;
    std::unique_ptr<view::ReplayStop> replayStop_;
    view::DebtPanelView* debt_ = nullptr;  // a child of the main window
    std::unique_ptr<view::HistoryView> history_;
    bool refreshScheduled_ = false;
    bool exitAfterReplay_ = false;
    std::function<void()> onRefreshed_;
    // Set while this object lives: a refresh queued from the event loop checks it.
    std::shared_ptr<bool> alive_ = std::make_shared<bool>(true);
};

}  // namespace gw::app
