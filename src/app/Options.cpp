#include "app/Options.h"

namespace gw::app {

namespace {

bool readNumber(const QStringList& args, qsizetype& i, long long low, long long high,
                long long& out) {
    if (i + 1 >= args.size()) return false;
    bool ok = false;
    out = args[++i].toLongLong(&ok);
    return ok && out >= low && out <= high;
}

}  // namespace

Options parseOptions(const QStringList& args) {
    Options options;
    for (qsizetype i = 1; i < args.size(); ++i) {
        const QString& arg = args[i];
        long long value = 0;
        if (arg == QLatin1String("--quit-when-shown")) {
            options.quitWhenShown = true;
        } else if (arg == QLatin1String("--computers")) {
            if (!readNumber(args, i, 2, 6, value)) options.error = "--computers takes 2 to 6";
            options.computers = static_cast<int>(value);
        } else if (arg == QLatin1String("--tick-ms")) {
            if (!readNumber(args, i, 0, 1000, value)) options.error = "--tick-ms takes 0 to 1000";
            options.tickMs = static_cast<int>(value);
        } else if (arg == QLatin1String("--close-after-ms")) {
            if (!readNumber(args, i, 1, 600000, value)) {
                options.error = "--close-after-ms takes 1 to 600000";
            }
            options.closeAfterMs = static_cast<int>(value);
        } else if (arg == QLatin1String("--leave-by")) {
            const QString by = i + 1 < args.size() ? args[++i] : QString();
            if (by == QLatin1String("close")) {
                options.leaveBy = Options::Leave::CloseBox;
            } else if (by == QLatin1String("exit")) {
                options.leaveBy = Options::Leave::FileExit;
            } else {
                options.error = "--leave-by takes close or exit";
            }
        } else if (arg == QLatin1String("--pace")) {
            const QString name = i + 1 < args.size() ? args[++i] : QString();
            const std::optional<Pace> pace = paceFromName(name.toStdString());
            if (!pace) options.error = "--pace takes designed, fast or instant";
            options.pace = pace.value_or(Pace::Designed);
        } else if (arg == QLatin1String("--seed")) {
            if (!readNumber(args, i, 0, LLONG_MAX, value)) options.error = "--seed takes a number";
            options.seed = static_cast<std::uint64_t>(value);
        } else {
            options.error = "unknown option " + arg;
        }
        if (!options.error.isEmpty()) break;
    }
    return options;
}

}  // namespace gw::app
