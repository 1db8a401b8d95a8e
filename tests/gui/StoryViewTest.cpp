// SPDX-License-Identifier: GPL-3.0-or-later
// The story window at the end of a whole game of computers: it shows with Game Over, its
// chart has a line per player as the story tells it, each line's end sits at its worth,
// and the window is painted sharp at 1x and 2x.
#include <gtest/gtest.h>

#include <QImage>
#include <QPainter>
#include <QPushButton>
#include <QTimer>

#include "GuiRun.h"
#include "Signature.h"
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
}

// Three computers play a seeded game to its end at once.
void playThreeComputersToTheEnd(GuiRun& gui) {
    gui.delay.pacing().setPace(Pace::Instant);
    app::seatComputers(gui.program->dispatch(), gui.run, 3);
    gui.settle();
}

// "Watch the game again" replays on the main window at Fast, with a Stop over the board;
// Stop plays the rest at once and Game Over comes back on the same end.
TEST(StoryViewTest, WatchTheGameAgainThenStop) {
    GuiRun gui(std::make_unique<SeededRandom>(9), 4);
    playThreeComputersToTheEnd(gui);
    ASSERT_TRUE(gui.run.gameEnd().isVisible());
    const std::uint64_t end = sim::stateHash(gui.run.board());
    view::StoryView& story = gui.program->storyView();
    ASSERT_TRUE(story.watchAgain().isEnabled());

    bool sawReplay = false;
    Pace paceSeen = Pace::Instant;
    QTimer::singleShot(150, [&] {
        gui.program->refreshAll();
        QPushButton& stop = gui.program->replayStop()->button();
        sawReplay = gui.run.isReplaying() && stop.isVisible() &&
                    gui.program->mainView().isVisible() && !story.isVisible();
        paceSeen = gui.delay.pacing().pace();
        savePictures(gui.program->mainView(), "replay");
        clickOn(stop);
    });
    clickOn(story.watchAgain());
    gui.settle();
    EXPECT_TRUE(sawReplay);
    EXPECT_EQ(paceSeen, Pace::Fast);
    EXPECT_FALSE(gui.run.isReplaying());
    EXPECT_FALSE(gui.program->replayStop()->button().isVisible());
    EXPECT_TRUE(gui.run.gameEnd().isVisible());
    EXPECT_TRUE(story.isVisible());
    EXPECT_EQ(sim::stateHash(gui.run.board()), end);
    EXPECT_EQ(gui.delay.pacing().pace(), Pace::Instant);  // the chosen pace is back
    EXPECT_EQ(gui.delay.depth(), 0);
}

// The close box during a game watched again ends the program, as it always does, once the
// rest of the game has been played at once.
TEST(StoryViewTest, TheCloseBoxDuringAReplayEndsTheProgram) {
    GuiRun gui(std::make_unique<SeededRandom>(9), 4);
    playThreeComputersToTheEnd(gui);
    ASSERT_TRUE(gui.run.gameEnd().isVisible());
    const std::uint64_t end = sim::stateHash(gui.run.board());
    QTimer::singleShot(150, [&] { gui.program->mainView().close(); });
    clickOn(gui.program->storyView().watchAgain());
    EXPECT_TRUE(gui.exited);
    EXPECT_FALSE(gui.run.isReplaying());
    EXPECT_EQ(sim::stateHash(gui.run.board()), end);
}

}  // namespace
}  // namespace gw::test
