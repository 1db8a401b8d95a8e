// The real delay, the sound files and volumes, the command line, and the text entries'
// filters as a person types into them.
#include <gtest/gtest.h>

#include <QElapsedTimer>
#include <QFile>
#include <QLineEdit>
#include <QTemporaryDir>
#include <QTimer>

#include "GuiRun.h"
#include "app/Options.h"
#include "app/QtSound.h"
#include "game/Board.h"

namespace gw::test {
namespace {

TEST(QtDelayTest, AWaitStartedInsideAnotherKeepsItsOwnDeadline) {
    app::QtDelay delay(10);
    QElapsedTimer outer;
    qint64 innerMs = -1;
    QTimer::singleShot(5, [&] {
        QElapsedTimer inner;
        inner.start();
        delay.wait(10);  // 100 ms, started 5 ms into the outer 30 ms
        innerMs = inner.elapsed();
    });
    outer.start();
    delay.wait(3);
    // The outer wait cannot end before the inner one started inside it has ended.
    EXPECT_GE(innerMs, 95);
    EXPECT_GE(outer.elapsed(), innerMs);
    EXPECT_EQ(delay.depth(), 0);
}

TEST(QtDelayTest, CutShortEndsEveryRunningWait) {
    app::QtDelay delay(1000);
    QTimer::singleShot(0, [&] {
        QTimer::singleShot(0, [&] { delay.cutShort(); });
        delay.wait(60);
    });
    QElapsedTimer clock;
    clock.start();
    delay.wait(60);
    EXPECT_LT(clock.elapsed(), 30000);
    EXPECT_EQ(delay.depth(), 0);
}

TEST(QtSoundTest, FindsFilesByNameInAnyCaseAndStartsAtMinusSixDecibels) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    QFile file(dir.filePath("diceroll.WAV"));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.close();
    app::QtSound sound({dir.path() + "/missing", dir.path()}, false);
    EXPECT_EQ(sound.filesFound(), 1);
    EXPECT_TRUE(sound.file(SoundEffect::DiceRoll).toLocalFile().endsWith("diceroll.WAV"));
    EXPECT_TRUE(sound.file(SoundEffect::Buy).isEmpty());
    EXPECT_NEAR(sound.volume(MediaPlayer::Main1), 0.501, 0.001);
    sound.setVolume(MediaPlayer::Main1, kMutedVolume);
    EXPECT_NEAR(sound.volume(MediaPlayer::Main1), 0.0316, 0.0001);
    EXPECT_NEAR(sound.volume(MediaPlayer::Main2), 0.501, 0.001);
    sound.play(MediaPlayer::Main1, SoundEffect::Buy);  // a missing file is silence
}

TEST(OptionsTest, ReadsTheBenchOptionsAndRefusesWrongOnes) {
    const app::Options ok = app::parseOptions(
        {"gildenway", "--computers", "6", "--tick-ms", "0", "--seed", "42", "--quit-when-shown"});
    EXPECT_TRUE(ok.error.isEmpty());
    EXPECT_EQ(ok.computers, 6);
    EXPECT_EQ(ok.tickMs, 0);
    EXPECT_EQ(ok.seed, 42u);
    EXPECT_TRUE(ok.quitWhenShown);
    EXPECT_FALSE(app::parseOptions({"gildenway", "--computers", "7"}).error.isEmpty());
    EXPECT_FALSE(app::parseOptions({"gildenway", "--computers"}).error.isEmpty());
    EXPECT_FALSE(app::parseOptions({"gildenway", "--fast"}).error.isEmpty());
}

// The amount box of the trading card keeps digits only, five at most, and typing after
// the box gets the focus replaces the old sum.
TEST(TradingCardEntry, KeepsDigitsAndReplacesTheOldSumOnFocus) {
    GuiRun gui(std::make_unique<SeededRandom>(5));
    player* ann = gui.run.board().addPlayer("Ann", false, 0);
    ASSERT_NE(ann, nullptr);
    gui.program->dispatch().click(
        [&] { gui.run.windows().trading.proposeTrade(1, *ann, "Saint-Antoine", "Bob"); });
    gui.settle();
    view::TradingCardView& card = gui.program->tradingCard();
    ASSERT_TRUE(card.isVisible());
    QApplication::setActiveWindow(&card);  // focus events come only to the active window
    QLineEdit& amount = *card.controls().entry("amount");
    amount.setFocus();
    gui.settle();
    QTest::keyClicks(&amount, "12a3-");
    QTest::keyClick(&amount, Qt::Key_Backspace);
    EXPECT_EQ(gui.run.windows().trading.amountText(), "123");
    EXPECT_EQ(amount.text(), "123");
    QTest::keyClicks(&amount, "4567");
    EXPECT_EQ(gui.run.windows().trading.amountText(), "12345");

    amount.clearFocus();
    amount.setFocus();
    gui.settle();
    EXPECT_TRUE(gui.run.windows().trading.amountSelected());
    QTest::keyClicks(&amount, "9");
    EXPECT_EQ(gui.run.windows().trading.amountText(), "9");
    EXPECT_EQ(amount.text(), "9");
}

}  // namespace
}  // namespace gw::test
