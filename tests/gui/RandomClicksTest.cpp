// SPDX-License-Identifier: GPL-3.0-or-later
// A careless person at the real windows, offscreen, with real (short) waits: seeded random
// clicks on whatever is shown and open, typing into the entries, cards closed by their
// frames, menu entries, and clicks that land while dice roll, tokens walk and computers'
// cards wait. The game's invariants and the books of its money are checked after every step.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QKeyEvent>
#include <QLineEdit>
#include <QTimer>
#include <functional>
#include <random>
#include <vector>

#include "GuiRun.h"
#include "Invariants.h"
#include "MoneyBooks.h"
#include "view/BoardWidget.h"
#include "view/PictureWidget.h"
#include "windows/JFLCardWindow.h"
#include "windows/taxCellWindow.h"

namespace gw::test {
namespace {

class RandomPerson {
public:
    RandomPerson(GuiRun& gui, monkey::MoneyBooks& books, std::uint64_t seed)
        : gui_(gui), books_(books), pick_(seed) {}

    // One thing a person could do now; false when nothing at all can be clicked.
    bool act() {
        std::vector<std::function<void()>> choices;
        for (QWidget* window : windows()) {
            if (!window->isVisible()) continue;
            offerWidgets(*window, choices);
            // The frame's close box of a card or the About box; those of the main, set-up
            // and end windows leave the program.
            if (window != &program().mainView() && window != &program().startView() &&
                window != &program().endView()) {
                choices.push_back([window] { window->close(); });
            }
        }
        if (program().mainView().isVisible() && program().mainView().isEnabled()) {
            for (const char* name : {"Mute", "Enable", "Mute1", "Enable1", "About"}) {
                choices.push_back([this, name] { program().mainView().action(name).trigger(); });
            }
        }
        if (choices.empty()) return false;
        choices[below(choices.size())]();
        return true;
    }

    // Now and then a second action, due a few milliseconds later: inside a wait if one runs.
    void maybeActInsideAWait() {
        if (below(3) != 0) return;
        QTimer::singleShot(static_cast<int>(1 + below(40)), &program().mainView(), [this] {
            if (gui_.run.hasExited()) return;
            books_.readApart([this] { act(); });
        });
    }

private:
    app::Program& program() { return *gui_.program; }

    std::vector<QWidget*> windows() {
        return {&program().startView(),   &program().mainView(), &program().propertyCard(),
                &program().tradingCard(), &program().jflCard(),  &program().taxCard(),
                &program().endView(),     &program().aboutView()};
    }

    std::size_t below(std::size_t n) {
        return std::uniform_int_distribution<std::size_t>(0, n - 1)(pick_);
    }

    QString randomText() {
        static const QStringList pieces = {"a", "Z", "7", " ", "0", "é", "Ann", "-", "42"};
        if (below(5) == 0) return {};
        if (below(5) == 0) return QString::number(100000 + below(900000));  // a pasted number
        QString text;
        for (std::size_t i = 0, n = 1 + below(40); i < n; ++i) text += pieces[below(pieces.size())];
        return text;
    }

    void offerWidgets(QWidget& window, std::vector<std::function<void()>>& choices) {
        QAbstractButton* exitGame = program().endView().controls().button("Command2");
        for (QWidget* w : window.findChildren<QWidget*>()) {
            if (!w->isVisible() || !w->isEnabled()) continue;
            if (auto* button = qobject_cast<QAbstractButton*>(w)) {
                if (button != exitGame) choices.push_back([button] { clickOn(*button); });
            } else if (auto* entry = qobject_cast<QLineEdit*>(w)) {
                choices.push_back([this, entry] {
                    entry->setFocus();
                    entry->selectAll();
                    // Key by key with their text, as a keyboard of any layout sends them.
                    for (const QChar ch : randomText()) {
                        QKeyEvent press(QEvent::KeyPress, 0, Qt::NoModifier, QString(ch));
                        QCoreApplication::sendEvent(entry, &press);
                    }
                });
            } else if (auto* board = qobject_cast<view::BoardWidget*>(w)) {
                for (int i = 0; i < 4; ++i) {
                    choices.push_back([this, board] {
                        const QPoint at(
                            static_cast<int>(below(static_cast<std::size_t>(board->width()))),
                            static_cast<int>(below(static_cast<std::size_t>(board->height()))));
                        QTest::mouseClick(board, Qt::LeftButton, {}, at);
                    });
                }
            } else if (auto* picture = qobject_cast<view::PictureWidget*>(w)) {
                choices.push_back([picture] { clickOn(*picture); });
            }
        }
    }

    GuiRun& gui_;
    monkey::MoneyBooks& books_;
    std::mt19937_64 pick_;
};

TEST(RandomClicks, ThroughTheRealWindowsKeepEveryInvariant) {
    for (std::uint64_t seed : {1u, 2u}) {
        monkey::MoneyBooks books;
        GuiRun gui(std::make_unique<SeededRandom>(seed), 1);
        gui.run.watchMainWindow(books.window(), [&] { books.begin(gui.run.board()); });
        RandomPerson person(gui, books, seed);
        int step = 0;
        int stepsInAGame = 0;
        for (; step < 400 && !gui.run.hasExited(); ++step) {
            if (gui.run.mainWindow().isVisible()) ++stepsInAGame;
            person.maybeActInsideAWait();
            ASSERT_TRUE(person.act())
                << "seed " << seed << ", step " << step << ": nothing to click";
            gui.settle();
            const std::string broken = monkey::brokenInvariant(gui.run);
            ASSERT_EQ(broken, "") << "seed " << seed << ", step " << step;
            if (!gui.run.gameStart().isVisible()) {
                ASSERT_EQ(books.check(), "") << "seed " << seed << ", step " << step;
            }
        }
        EXPECT_EQ(step, 400) << "seed " << seed;
        EXPECT_GT(stepsInAGame, 100) << "seed " << seed;  // most of the run is play, not set-up
        EXPECT_EQ(gui.delay.depth(), 0);
    }
}

}  // namespace
}  // namespace gw::test
