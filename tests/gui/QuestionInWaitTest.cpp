// SPDX-License-Identifier: GPL-3.0-or-later
// A question box opened and answered inside a wait leaves the waits as they were: the one
// it was opened in ends on time and the next one waits its full length.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QElapsedTimer>
#include <QMessageBox>
#include <QTimer>
#include <QWidget>

#include "app/QtDelay.h"
#include "app/QtQuestion.h"

namespace gw::test {
namespace {

TEST(QuestionInAWait, NoLeavesTheWaitChainWhole) {
    const bool quitOnClose = QApplication::quitOnLastWindowClosed();
    QApplication::setQuitOnLastWindowClosed(false);  // as the program runs
    QWidget window;
    window.show();
    app::QtDelay delay(10);
    app::QtQuestion question;
    question.setParent([&] { return &window; });
    bool answer = true;
    QTimer press;
    QObject::connect(&press, &QTimer::timeout, [&] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (box != nullptr) box->button(QMessageBox::No)->click();
    });
    press.start(5);
    QTimer::singleShot(20,
                       [&] { answer = question.ask("Gildenway", "Leave the game in progress?"); });
    QElapsedTimer clock;
    clock.start();
    delay.wait(10);  // the question comes up and is answered inside this 100 ms wait
    EXPECT_FALSE(answer);
    EXPECT_GE(clock.elapsed(), 95);
    clock.restart();
    delay.wait(10);
    EXPECT_GE(clock.elapsed(), 95);
    QApplication::setQuitOnLastWindowClosed(quitOnClose);
}

}  // namespace
}  // namespace gw::test
