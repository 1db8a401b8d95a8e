// "The story of the game": a window beside Game Over with the chart of every player's worth
// after each round and the game's figures. It shows while the end window does.
#pragma once

#include <QWidget>
#include <vector>

#include "art/StoryChart.h"

namespace gw {
class GameEnd;
class GameStory;
}  // namespace gw

namespace gw::view {

class StoryView final : public QWidget {
    Q_OBJECT
public:
    StoryView(const GameStory& story, const GameEnd& end);

    void refresh();
    // The chart's lines as the story gives them.
    std::vector<art::ChartLine> chartLines() const;

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    const GameStory& story_;
    const GameEnd& end_;
};

}  // namespace gw::view
