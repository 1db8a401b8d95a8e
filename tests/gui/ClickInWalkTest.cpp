// SPDX-License-Identifier: GPL-3.0-or-later
// A click that the window system queues while a token walks is served inside the walk's
// waits, as the program always served events while it waited, not held back until the
// throw is over.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QMouseEvent>
#include <QTimer>
#include <memory>

#include "GuiRun.h"
#include "game/Board.h"
#include "players/player.h"
#include "windows/CellInfoWindow.h"

namespace gw::test {
namespace {

// Queues a press and release on a widget, to be delivered when the event loop next runs.
void queueClick(QWidget& widget, QPoint at) {
    const QPointF local(at);
    const QPointF global(widget.mapToGlobal(at));
    for (QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        const Qt::MouseButtons held =
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton;
        // The event loop takes the event and deletes it once delivered.
        QCoreApplication::postEvent(
            &widget,
            std::make_unique<QMouseEvent>(type, local, global, Qt::LeftButton, held, Qt::NoModifier)
                .release());
    }
}

TEST(ClickDuringAWalk, IsServedInsideTheWaitAndTheLandingStillFollows) {
    auto random = std::make_unique<ScriptedRandom>(std::vector<double>{}, 7);
    ScriptedRandom& scripted = *random;
    GuiRun gui(std::move(random), 5);
    gui.seatAnnAndAComputer();
    view::MainWindowView& main = gui.program->mainView();
    const player& ann = gui.run.board().getCurrPlayer();
    ASSERT_FALSE(ann.isComputer2());
    const CellInfoWindow& card = gui.run.windows().cellInfo;

    // A throw of 1 and 2 walks three cells onto a free street; a click on the far corner's
    // street is queued before the throw starts.
    const Integer landing = static_cast<Integer>((ann.getPosition() + 3) % 40);
    scripted.pushFaces({1, 2});
    queueClick(main.board(), main.board().cellArea(39).center());

    bool seenWhileWalking = false;
    QTimer watch;
    QObject::connect(&watch, &QTimer::timeout, [&] {
        if (card.isVisible() && card.cardId() == 39 && ann.isWalking()) seenWhileWalking = true;
    });
    watch.start(0);
    QAbstractButton* rollDice = main.controls().button("rollDice");
    ASSERT_TRUE(rollDice != nullptr && rollDice->isEnabled());
    clickOn(*rollDice);
    watch.stop();
    gui.settle();

    EXPECT_TRUE(seenWhileWalking);
    // The landing replaced the information card with the offer of the street reached.
    EXPECT_EQ(ann.getPosition(), landing);
    EXPECT_TRUE(card.isVisible());
    EXPECT_EQ(card.cardId(), landing);
    EXPECT_TRUE(card.buy().isOpen());
}

}  // namespace
}  // namespace gw::test
