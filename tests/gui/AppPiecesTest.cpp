// SPDX-License-Identifier: GPL-3.0-or-later
// The real delay and a question inside it, the sound files and volumes, and the command line.
#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QElapsedTimer>
#include <QFile>
#include <QMessageBox>
#include <QTemporaryDir>
#include <QTimer>

#include "GuiRun.h"
#include "app/Options.h"
#include "app/QtQuestion.h"
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

// A question box opened and answered inside a wait leaves the waits as they were: the one
// it was opened in ends on time and the next one waits its full length.
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

// A short mono 16-bit sound, cut after `keep` bytes when asked.
QByteArray wav(qsizetype keep = -1) {
    const quint32 samples = 400;
    QByteArray data(static_cast<qsizetype>(samples * 2), '\x10');
    QByteArray out;
    auto u32 = [&](quint32 v) {
        for (int i = 0; i < 4; ++i) out.append(char((v >> (8 * i)) & 0xff));
    };
    auto u16 = [&](quint16 v) { out.append(char(v & 0xff)).append(char(v >> 8)); };
    out.append("RIFF");
    u32(36 + static_cast<quint32>(data.size()));
    out.append("WAVEfmt ");
    u32(16);
    u16(1);
    u16(1);
    u32(22050);
    u32(44100);
    u16(2);
    u16(16);
    out.append("data");
    u32(static_cast<quint32>(data.size()));
    out.append(data);
    return keep < 0 ? out : out.left(keep);
}

void writeFile(const QString& path, const QByteArray& bytes) {
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

// The effects load their files ahead on a worker of Qt's; a test that ends at once lets those
// loads finish and their objects go, as the program's event loop would.
void letSoundLoadsFinish() {
    QTest::qWait(200);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

TEST(QtSoundTest, FindsFilesByNameInAnyCaseAndStartsAtMinusSixDecibels) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    writeFile(dir.filePath("diceroll.WAV"), wav());
    app::QtSound sound({dir.path() + "/missing", dir.path()}, false);
    EXPECT_EQ(sound.filesFound(), 1);
    EXPECT_TRUE(sound.file(SoundEffect::DiceRoll).toLocalFile().endsWith("diceroll.WAV"));
    EXPECT_TRUE(sound.file(SoundEffect::Buy).isEmpty());
    EXPECT_NEAR(sound.volume(MediaPlayer::Main1), 0.501, 0.001);
    sound.setVolume(MediaPlayer::Main1, kMutedVolume);
    EXPECT_NEAR(sound.volume(MediaPlayer::Main1), 0.0316, 0.0001);
    EXPECT_NEAR(sound.volume(MediaPlayer::Main2), 0.501, 0.001);
    sound.play(MediaPlayer::Main1, SoundEffect::Buy);  // a missing file is silence
    letSoundLoadsFinish();
}

// Damaged files are found, judged once and left silent; one line says so.
TEST(QtSoundTest, EmptyTruncatedOrForeignFilesAreSilentWithOneWarning) {
    QTemporaryDir dir;
    ASSERT_TRUE(dir.isValid());
    writeFile(dir.filePath("Pay.wav"), wav());
    writeFile(dir.filePath("Buy.wav"), QByteArray());
    writeFile(dir.filePath("Jail.wav"), wav(30));
    writeFile(dir.filePath("Police.wav"), wav(600));  // the data chunk is cut short
    writeFile(dir.filePath("Bankrupt.wav"), QByteArray("this is not a sound at all"));
    app::QtSound sound({dir.path()}, false);
    EXPECT_EQ(sound.filesFound(), 1);
    for (SoundEffect e :
         {SoundEffect::Buy, SoundEffect::Jail, SoundEffect::Police, SoundEffect::Bankrupt}) {
        EXPECT_TRUE(sound.file(e).isEmpty());
        sound.play(MediaPlayer::Main1, e);
    }
    EXPECT_EQ(sound.startupWarning(),
              "17 of 18 sound files missing or damaged; those sounds are silent");
    EXPECT_EQ(app::QtSound({dir.path() + "/none"}, false).startupWarning(),
              "no sound files found; playing without sound");
    letSoundLoadsFinish();
}

TEST(OptionsTest, ReadsTheBenchOptionsAndRefusesWrongOnes) {
    const app::Options ok = app::parseOptions(
        {"gildenway", "--computers", "6", "--tick-ms", "0", "--seed", "42", "--quit-when-shown"});
    EXPECT_TRUE(ok.error.isEmpty());
    EXPECT_EQ(ok.computers, 6);
    EXPECT_EQ(ok.tickMs, 0);
    EXPECT_EQ(ok.seed, 42u);
    EXPECT_TRUE(ok.quitWhenShown);
    EXPECT_EQ(ok.closeAfterMs, 0);
    EXPECT_EQ(app::parseOptions({"gildenway", "--close-after-ms", "700"}).closeAfterMs, 700);
    EXPECT_FALSE(app::parseOptions({"gildenway", "--close-after-ms", "0"}).error.isEmpty());
    EXPECT_EQ(ok.leaveBy, app::Options::Leave::CloseBox);
    EXPECT_EQ(ok.pace, Pace::Designed);
    EXPECT_EQ(app::parseOptions({"gildenway", "--pace", "fast"}).pace, Pace::Fast);
    EXPECT_EQ(app::parseOptions({"gildenway", "--pace", "instant"}).pace, Pace::Instant);
    EXPECT_EQ(app::parseOptions({"gildenway", "--leave-by", "exit"}).leaveBy,
              app::Options::Leave::FileExit);
}

TEST(OptionsTest, EachBadLineGetsOneLineNamingWhatIsWrong) {
    const std::vector<std::pair<QStringList, QString>> cases = {
        {{"--computers", "7"}, "--computers takes a whole number from 2 to 6, not '7'"},
        {{"--tick-ms", "-1"}, "--tick-ms takes a whole number from 0 to 1000, not '-1'"},
        {{"--seed", "12x"}, "--seed takes a whole number from 0 to 9223372036854775807, not '12x'"},
        {{"--seed", "1", "--seed", "2"}, "--seed is given twice"},
        {{"--fast"}, "Unknown option 'fast'."},
        {{"--computers"}, "Missing value after '--computers'."},
        {{"stray"}, "'stray' is not an option"},
        {{"--leave-by", "door"}, "--leave-by takes close or exit"},
        {{"--pace", "slow"}, "--pace takes designed, fast or instant"},
    };
    for (const auto& [words, error] : cases) {
        const app::Options options = app::parseOptions(QStringList{"gildenway"} + words);
        EXPECT_EQ(options.error, error) << qPrintable(words.join(' '));
        EXPECT_FALSE(options.error.contains('\n'));
    }
}

TEST(OptionsTest, HelpListsEveryOptionAndVersionNamesTheRelease) {
    const app::Options help = app::parseOptions({"gildenway", "--computers", "9", "--help"});
    EXPECT_TRUE(help.help);
    EXPECT_TRUE(help.error.isEmpty());
    EXPECT_TRUE(help.answer.startsWith("Usage: gildenway [options]\n")) << qPrintable(help.answer);
    for (const char* option :
         {"--help", "--version", "--quit-when-shown", "--screenshot <FILE>", "--computers <N>",
          "--tick-ms <MS>", "--seed <S>", "--close-after-ms <MS>", "--leave-by <close|exit>"}) {
        EXPECT_TRUE(help.answer.contains(option)) << option;
    }
    const app::Options version = app::parseOptions({"gildenway", "--version"});
    EXPECT_TRUE(version.version);
    EXPECT_EQ(version.answer, "gildenway 1.0\n");
    const app::Options screenshot = app::parseOptions({"gildenway", "--screenshot", "/tmp/a.png"});
    EXPECT_EQ(screenshot.screenshot, "/tmp/a.png");
}

}  // namespace
}  // namespace gw::test
