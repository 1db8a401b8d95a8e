// SPDX-License-Identifier: GPL-3.0-or-later
// "The story of the game": a window beside Game Over with the chart of every player's worth
// after each round, the game's figures, and "Watch the game again". It shows while the end
// window does.
#pragma once

#include <QWidget>
#include <vector>

#include "art/StoryChart.h"
#include "view/Dispatch.h"

class QPushButton;

namespace gw {
class GameRun;
}

namespace gw::view {

class StoryView final : public QWidget {
    Q_OBJECT
public:
    StoryView(Dispatch& dispatch, GameRun& run);

    void refresh();
    // The chart's lines as the story gives them.
    std::vector<art::ChartLine> chartLines() const;
    QPushButton& watchAgain() const { return *watchAgain_; }

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Dispatch& dispatch_;
    GameRun& run_;
    QPushButton* watchAgain_;
};

}  // namespace gw::view
