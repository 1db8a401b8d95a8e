// SPDX-License-Identifier: GPL-3.0-or-later
// Gildenway: the desktop program. Makes the real sound, waits and message boxes, one run
// of the game and its windows, and opens the set-up window.
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <algorithm>
#include <cstdio>

#include "app/Autoplay.h"
#include "app/EndLine.h"
#include "app/MessageFilter.h"
#include "app/Options.h"
#include "app/Program.h"
#include "app/QtDelay.h"
#include "app/QtMessageBox.h"
#include "app/QtQuestion.h"
#include "app/QtSound.h"
#include "app/QtVoice.h"
#include "view/Style.h"
#include "windows/GameRun.h"
#include "windows/PacedSound.h"

namespace {

std::unique_ptr<gw::Random> randomSource(const gw::app::Options& options) {
    if (options.seed) return std::make_unique<gw::SeededRandom>(*options.seed);
    return std::make_unique<gw::ClockRandom>();
}

// Prints the window's title and the time since main() began once it has been painted,
// saves its picture if asked, then ends the event loop.
class QuitWhenShown : public QObject {
public:
    QuitWhenShown(const QElapsedTimer& sinceStart, QString screenshot)
        : sinceStart_(sinceStart), screenshot_(std::move(screenshot)) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !done_) {
            done_ = true;
            auto* window = static_cast<QWidget*>(watched);
            std::printf("shown: %s\nfirst paint after %lld ms\n", qPrintable(window->windowTitle()),
                        static_cast<long long>(sinceStart_.elapsed()));
            std::fflush(stdout);
            QTimer::singleShot(0, [this, window] {
                const bool saved = screenshot_.isEmpty() || window->grab().save(screenshot_);
                if (!saved)
                    std::fprintf(stderr, "gildenway: cannot write %s\n", qPrintable(screenshot_));
                QCoreApplication::exit(saved ? 0 : 1);
            });
        }
        return false;
    }

private:
    const QElapsedTimer& sinceStart_;
    QString screenshot_;
    bool done_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
    // --help, --version and a bad option answer before the application object exists, so
    // they work without a display. Words of one dash may be Qt's own (-platform ...): they
    // are read once Qt has taken its share.
    QStringList words;
    for (int i = 0; i < argc; ++i) words << QString::fromLocal8Bit(argv[i]);
    const gw::app::Options asked = gw::app::parseOptions(words);
    if (asked.help || asked.version) {
        std::fputs(qPrintable(asked.answer), stdout);
        return 0;
    }
    const bool qtMayTakeSome = std::any_of(words.begin() + 1, words.end(), [](const QString& w) {
        return w.startsWith(QLatin1Char('-')) && !w.startsWith(QLatin1String("--"));
    });
    if (!asked.error.isEmpty() && !qtMayTakeSome) {
        std::fprintf(stderr, "gildenway: %s\n", qPrintable(asked.error));
        return 2;
    }
    gw::app::installMessageFilter();
    QApplication app(argc, argv);
    QApplication::setApplicationName(QStringLiteral("Gildenway"));
    QApplication::setQuitOnLastWindowClosed(false);  // the models decide when the program ends
    app.setStyleSheet(gw::view::styleSheet());

    const gw::app::Options options = gw::app::parseOptions(QApplication::arguments());
    if (!options.error.isEmpty()) {
        std::fprintf(stderr, "gildenway: %s\n", qPrintable(options.error));
        return 2;
    }

    gw::app::QtSound sound(gw::app::QtSound::defaultFolders());
    if (const QString warning = sound.startupWarning(); !warning.isEmpty()) {
        std::fprintf(stderr, "gildenway: %s\n", qPrintable(warning));
    }
    gw::app::QtDelay delay(options.tickMs);
    delay.pacing().setPace(options.pace);
    gw::PacedSound pacedSound(sound, delay.pacing());
    gw::app::QtMessageBox messages;
    gw::GameRun run(pacedSound, delay, messages, randomSource(options));
    run.setOnExit([] { QCoreApplication::exit(0); });
    gw::app::QtQuestion questions;
    run.setQuestion(questions);
    gw::app::QtVoice voice;
    run.setVoice(voice);

    run.start();
    gw::app::Program program(run, &delay);
    messages.setParent([&program] { return &program.startView(); });
    // The board opens at the largest size at which it shows whole on the screen.
    program.mainView().zoomTo(program.mainView().screenFit());
    questions.setParent([&program] { return &program.mainView(); });
    program.refreshAll();

    const bool leaveLater = options.closeAfterMs > 0;
    QuitWhenShown quitWhenShown(sinceStart, leaveLater ? QString() : options.screenshot);
    if (options.quitWhenShown || (!options.screenshot.isEmpty() && !leaveLater)) {
        program.startView().installEventFilter(&quitWhenShown);
    }
    bool endPrinted = false;
    if (options.computers > 0) {
        program.setOnRefreshed([&] {
            if (run.gameEnd().isVisible() && !endPrinted) {
                endPrinted = true;
                std::printf("%s\n", gw::app::endLine(run).c_str());
                std::fflush(stdout);
                program.dispatch().click([&] { run.gameEnd().Command2_Click(); });
            }
        });
        QTimer::singleShot(
            0, [&] { gw::app::seatComputers(program.dispatch(), run, options.computers); });
    }
    if (options.closeAfterMs > 0) {
        QTimer::singleShot(options.closeAfterMs, [&] {
            if (!options.screenshot.isEmpty() &&
                !program.mainView().grab().save(options.screenshot)) {
                std::fprintf(stderr, "gildenway: cannot write %s\n",
                             qPrintable(options.screenshot));
            }
            if (options.leaveBy == gw::app::Options::Leave::FileExit) {
                program.mainView().action("Exit").trigger();
            } else {
                // The close box asks during a game: the answer is Yes, given by pressing
                // the box's button once it is up.
                auto* answer = new QTimer(&app);
                QObject::connect(answer, &QTimer::timeout, answer, [answer] {
                    if (gw::app::answerYesToQuestion()) answer->deleteLater();
                });
                answer->start(10);
                program.mainView().close();
            }
        });
    }
    return QApplication::exec();
}
