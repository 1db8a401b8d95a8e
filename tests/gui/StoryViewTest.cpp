// The story window at the end of a whole game of computers: it shows with Game Over, its
// chart has a line per player as the story tells it, each line's end sits at its worth,
// and the window is painted sharp at 1x and 2x.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>

#include "GuiRun.h"
#include "app/Autoplay.h"
#include "game/Board.h"
#include "windows/GameStory.h"

namespace gw::test {
namespace {

TEST(StoryViewTest, ShowsWithGameOverAndDrawsEveryPlayersWorth) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    gui.delay.pacing().setPace(Pace::Instant);
    view::StoryView& view = gui.program->storyView();
    EXPECT_FALSE(view.isVisible());
    app::seatComputers(gui.program->dispatch(), gui.run, 4);
    gui.settle();
    ASSERT_TRUE(gui.run.gameEnd().isVisible());
    EXPECT_TRUE(view.isVisible());

    const GameStory& story = gui.run.story();
    const std::vector<art::ChartLine> lines = view.chartLines();
    ASSERT_EQ(lines.size(), 4U);
    int crosses = 0;
    for (std::size_t i = 0; i < lines.size(); ++i) {
        EXPECT_EQ(lines[i].worth.size(), story.players()[i].worth.size());
        EXPECT_EQ(lines[i].token, story.players()[i].token);
        if (lines[i].bankruptAt > 0) ++crosses;
    }
    EXPECT_EQ(crosses, 3);

    // The winner's line ends at his worth on the scale; the bankrupt end on the floor.
    QImage image(640, 360, QImage::Format_ARGB32);
    QPainter painter(&image);
    const art::ChartPlaces places = art::paintStoryChart(painter, QRectF(0, 0, 640, 360), lines);
    painter.end();
    ASSERT_EQ(places.lineEnds.size(), 4U);
    for (std::size_t i = 0; i < lines.size(); ++i) {
        const double worth = lines[i].bankruptAt > 0
                                 ? lines[i].worth[static_cast<std::size_t>(lines[i].bankruptAt)]
                                 : lines[i].worth.back();
        const double expected =
            places.plot.bottom() - places.plot.height() * std::max(0.0, worth) / places.top;
        EXPECT_NEAR(places.lineEnds[i].y(), expected, 0.01);
        EXPECT_TRUE(places.plot.adjusted(-1, -1, 1, 1).contains(places.lineEnds[i]));
        if (lines[i].bankruptAt < 0) {
            EXPECT_NEAR(places.lineEnds[i].x(), places.plot.right(), 0.01);
        }
    }
    EXPECT_GE(places.top, *std::max_element(lines[0].worth.begin(), lines[0].worth.end()));

    savePictures(view, "story");
    gui.run.gameEnd().Command2_Click();
}

}  // namespace
}  // namespace gw::test
