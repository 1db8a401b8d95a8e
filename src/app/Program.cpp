#include "app/Program.h"

#include <QTimer>

#include "app/QtDelay.h"
#include "windows/GameRun.h"

namespace gw::app {

Program::Program(GameRun& run, QtDelay* delay) : run_(run), dispatch_(run) {
    Windows& w = run.windows();
    main_ = std::make_unique<view::MainWindowView>(dispatch_, run.mainWindow(),
                                                   view::cellPrints(run.board()));
    start_ = std::make_unique<view::GameStartView>(dispatch_, run.gameStart());
    cellInfo_ = std::make_unique<view::CellInfoView>(dispatch_, w.cellInfo);
    trading_ = std::make_unique<view::TradingCardView>(dispatch_, w.trading);
    jfl_ = std::make_unique<view::JFLCardView>(dispatch_, w.jflCard);
    tax_ = std::make_unique<view::TaxCardView>(dispatch_, w.taxCard);
    end_ = std::make_unique<view::GameEndView>(dispatch_, run.gameEnd());
    about_ = std::make_unique<view::AboutView>(dispatch_, run.about());
    // Over the panel with a picture and no controls, under the emblem's place.
    debt_ = new view::DebtPanelView(main_->client(), QRect(592, 376, 186, 96), dispatch_,
                                    run.debtHelp());
    history_ = std::make_unique<view::HistoryView>(dispatch_, run.history());
    if (delay) {
        dispatch_.setAfterClick([this, delay] {
            if (run_.isWindingDown()) delay->cutShort();
        });
    }
    run.setOnChanged([this] { scheduleRefresh(); });
}

Program::~Program() {
    run_.setOnChanged({});
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
    start_->refresh();
    debt_->refresh();
    history_->refresh();
    main_->refresh();
    if (onRefreshed_) onRefreshed_();
}

}  // namespace gw::app
