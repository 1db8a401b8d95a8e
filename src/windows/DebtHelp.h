// SPDX-License-Identifier: GPL-3.0-or-later
// The word to a human in debt on the main window's free panel: how much is owed and the
// ways out, and the offer to raise the sum as a computer would (RaisePlan), made only
// once the human says yes. It never trades, never declares bankruptcy and never acts in a
// computer's turn.
#pragma once

#include <string>

#include "windows/Control.h"
#include "windows/RaisePlan.h"

namespace gw {

class Board;
class MainWindow;
class Question;
class player;

class DebtHelp {
public:
    DebtHelp(const MainWindow& main, Board& board, Question& question)
        : main_(main), board_(board), question_(&question) {}

    // True while the main window is up and the human whose turn it is owes money.
    bool isShown() const;
    // "Ann, you are $124 short. ..." or empty when not shown.
    std::string line() const;
    // "Raise $124 for me": shown with the line, when mortgages and hotel sales cover it.
    Control raiseForMe() const;
    // Lists what would go and asks; on Yes makes the sales and mortgages.
    void raiseForMe_Click();

    void setQuestion(Question& question) { question_ = &question; }

private:
    player* debtor() const;

    const MainWindow& main_;
    Board& board_;
    Question* question_;
};

}  // namespace gw
