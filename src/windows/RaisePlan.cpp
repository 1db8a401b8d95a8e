// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/RaisePlan.h"

#include <algorithm>
#include <memory>

#include "cells/PropertyCell.h"
#include "cells/Street.h"
#include "game/Board.h"
#include "players/player.h"
#include "ports/Delay.h"
#include "ports/MainWindowPort.h"
#include "windows/Windows.h"

namespace gw {
namespace {

// A main window that keeps, in order, the sales and mortgages the copy makes, and nothing
// once the copy goes bankrupt.
class StepLog final : public NullMainWindow {
public:
    const Board* board = nullptr;
    std::vector<RaiseStep> steps;
    bool bankrupt = false;

    void showHotel(Integer cellId) override {
        if (!bankrupt) steps.push_back({RaiseStep::Kind::SellHotel, cellId});
    }
    void showMort(Integer cellId) override {
        const PropertyCell* prop = board->propertyAt(cellId);
        if (!bankrupt && prop != nullptr && prop->getProp().isMortgaged2()) {
            steps.push_back({RaiseStep::Kind::Mortgage, cellId});
        }
    }
    void showBankRupt() override { bankrupt = true; }
};

// The player's balance and cells, hotels and mortgages included, on a board of its own
// with a second player to take the turn should the copy go bankrupt.
class Copy {
public:
    explicit Copy(const player& original)
        : windows_(log_, sound_, delay_), board_(windows_, std::make_unique<SeededRandom>(1)) {
        log_.board = &board_;
        board_.init();
        self_ = board_.addPlayer(original.getName(), true, 0);
        board_.addPlayer("stand-in", false, 1);
        const Board& real = original.getBoard();
        for (Integer i = 0; i < kCellCount; ++i) {
            const PropertyCell* prop = real.propertyAt(i);
            if (prop == nullptr || prop->getProp().getOwners() != &original) continue;
            self_->newlyOwn(*board_.getCell(i));
            if (prop->getProp().isMortgaged2()) board_.propertyAt(i)->getProp().Mortgage();
            if (const Street* s = real.streetAt(i)) {
                for (Integer h = 0; h < s->getHotelCount(); ++h) board_.streetAt(i)->addHotel();
            }
        }
        // In steps that each fit the 16-bit range, for a debt near its end.
        while (self_->getBalance() > original.getBalance()) {
            const int gap = self_->getBalance() - original.getBalance();
            self_->debit(static_cast<Integer>(std::min(gap, 30000)));
        }
        log_.steps.clear();
    }

    // What autoMakeMoney(0) does to the copy.
    RaisePlan raise() {
        const Integer before = self_->getBalance();
        self_->autoMakeMoney(0);
        RaisePlan plan;
        plan.covers = !log_.bankrupt && self_->getBalance() >= 0;
        if (plan.covers) {
            plan.steps = log_.steps;
            plan.raised = subSat(self_->getBalance(), before);
        }
        return plan;
    }

private:
    StepLog log_;
    SilentSound sound_;
    InstantDelay delay_;
    Windows windows_;
    Board board_;
    player* self_ = nullptr;
};

}  // namespace

RaisePlan planRaise(const player& p) {
    if (p.getBalance() >= 0) return RaisePlan{{}, true, 0};
    return Copy(p).raise();
}

void carryOutRaise(player& p, const RaisePlan& plan) {
    for (const RaiseStep& step : plan.steps) {
        if (step.kind == RaiseStep::Kind::SellHotel) {
            if (p.canSellHotel(step.cellId)) p.sellHotel(step.cellId);
        } else if (p.canMort(step.cellId)) {
            p.mortgageProp(step.cellId);
        }
    }
}

std::string describeRaise(const player& p, const RaisePlan& plan) {
    std::string mortgages;
    std::string sales;
    const Board& board = p.getBoard();
    for (const RaiseStep& step : plan.steps) {
        const std::string& name = board.getCell(step.cellId)->Cell_getName();
        std::string& list = step.kind == RaiseStep::Kind::Mortgage ? mortgages : sales;
        // A street whose hotels go one by one is named once.
        if (list.find(name) != std::string::npos) continue;
        if (!list.empty()) list += ", ";
        list += name;
    }
    std::string text = "To raise $" + std::to_string(plan.raised) + ":";
    if (!sales.empty()) text += "\nsell hotels on " + sales;
    if (!mortgages.empty()) text += "\nmortgage " + mortgages;
    return text;
}

}  // namespace gw
