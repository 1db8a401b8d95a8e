// Gildenway: the desktop program. Makes the real sound, waits and message boxes, one run
// of the game and its windows, and opens the set-up window.
#include <QApplication>
#include <QElapsedTimer>
#include <QTimer>
#include <cstdio>

#include "app/Autoplay.h"
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

namespace {

std::unique_ptr<gw::Random> randomSource(const gw::app::Options& options) {
    if (options.seed) return std::make_unique<gw::SeededRandom>(*options.seed);
    return std::make_unique<gw::ClockRandom>();
}

// Prints the window's title and the time since main() began once it has been painted,
// then ends the event loop.
class QuitWhenShown : public QObject {
public:
    explicit QuitWhenShown(const QElapsedTimer& sinceStart) : sinceStart_(sinceStart) {}
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Paint && !done_) {
            done_ = true;
            auto* window = static_cast<QWidget*>(watched);
            std::printf("shown: %s\nfirst paint after %lld ms\n", qPrintable(window->windowTitle()),
                        static_cast<long long>(sinceStart_.elapsed()));
            std::fflush(stdout);
            QTimer::singleShot(0, [] { QCoreApplication::exit(0); });
        }
        return false;
    }

private:
    const QElapsedTimer& sinceStart_;
    bool done_ = false;
};

}  // namespace

int main(int argc, char** argv) {
    QElapsedTimer sinceStart;
    sinceStart.start();
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
    gw::app::QtMessageBox messages;
    gw::GameRun run(sound, delay, messages, randomSource(options));
    run.setOnExit([] { QCoreApplication::exit(0); });
    gw::app::QtQuestion questions;
    run.setQuestion(questions);
    gw::app::QtVoice voice;
    run.setVoice(voice);

    run.start();
    gw::app::Program program(run, &delay);
    messages.setParent([&program] { return &program.startView(); });
    questions.setParent([&program] { return &program.mainView(); });
    program.refreshAll();

    QuitWhenShown quitWhenShown(sinceStart);
    if (options.quitWhenShown) program.startView().installEventFilter(&quitWhenShown);
    if (options.computers > 0) {
        program.setOnRefreshed([&] {
            if (run.gameEnd().isVisible()) {
                program.dispatch().click([&] { run.gameEnd().Command2_Click(); });
            }
        });
        QTimer::singleShot(
            0, [&] { gw::app::seatComputers(program.dispatch(), run, options.computers); });
    }
    if (options.closeAfterMs > 0) {
        QTimer::singleShot(options.closeAfterMs, [&] {
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
