// SPDX-License-Identifier: GPL-3.0-or-later
// The program's options read by QCommandLineParser, with the numbers read the same way as
// the tools read theirs.
#include "app/Options.h"

#include <QCommandLineParser>
#include <functional>
#include <limits>
#include <vector>

#include "cli/CommandLine.h"

namespace gw::app {

namespace {

// Reads an option's value into the options, or says what is wrong with it.
using Reader = std::function<QString(Options&, const QString&)>;

struct Row {
    QString name;
    QString valueName;  // empty for a switch
    QString description;
    Reader read;
};

Reader number(const QString& name, std::uint64_t low, std::uint64_t high,
              std::function<void(Options&, std::uint64_t)> set) {
    return [=](Options& options, const QString& text) {
        const auto value = cli::readWholeNumber(text.toStdString(), low, high);
        if (!value) {
            return QStringLiteral("--%1 takes %2, not '%3'")
                .arg(name, QString::fromStdString(cli::wholeNumberRange(low, high)), text);
        }
        set(options, *value);
        return QString();
    };
}

Reader whole(const QString& name, int low, int high, int Options::*field) {
    return number(name, static_cast<std::uint64_t>(low), static_cast<std::uint64_t>(high),
                  [field](Options& o, std::uint64_t v) { o.*field = static_cast<int>(v); });
}

const std::vector<Row>& rows() {
    static const std::vector<Row> table{
        {QStringLiteral("quit-when-shown"),
         {},
         QStringLiteral("Print the first window's title and quit once it is painted."),
         [](Options& o, const QString&) {
             o.quitWhenShown = true;
             return QString();
         }},
        {QStringLiteral("screenshot"), QStringLiteral("FILE"),
         QStringLiteral("Save a picture to FILE: of the first window once it is painted, and "
                        "quit; with --close-after-ms, of the main window as the program leaves."),
         [](Options& o, const QString& file) {
             o.screenshot = file;
             return QString();
         }},
        {QStringLiteral("computers"), QStringLiteral("N"),
         QStringLiteral("Seat N computer players (2 to 6), play, and quit at the end."),
         whole(QStringLiteral("computers"), 2, 6, &Options::computers)},
        {QStringLiteral("tick-ms"), QStringLiteral("MS"),
         QStringLiteral("Length of the game's tick, 0 to 1000 ms (default 80)."),
         whole(QStringLiteral("tick-ms"), 0, 1000, &Options::tickMs)},
        {QStringLiteral("seed"), QStringLiteral("S"),
         QStringLiteral("Fix the chance with seed S instead of the clock."),
         number(QStringLiteral("seed"), 0, std::numeric_limits<std::int64_t>::max(),
                [](Options& o, std::uint64_t v) { o.seed = v; })},
        {QStringLiteral("pace"), QStringLiteral("designed|fast|instant"),
         QStringLiteral("The pace the game starts at; Game > Pace changes it later."),
         [](Options& o, const QString& name) {
             const std::optional<Pace> pace = paceFromName(name.toStdString());
             if (!pace) return QStringLiteral("--pace takes designed, fast or instant");
             o.pace = *pace;
             return QString();
         }},
        {QStringLiteral("close-after-ms"), QStringLiteral("MS"),
         QStringLiteral("Leave after MS ms (1 to 600000), by the way --leave-by names."),
         whole(QStringLiteral("close-after-ms"), 1, 600000, &Options::closeAfterMs)},
        {QStringLiteral("leave-by"), QStringLiteral("close|exit"),
         QStringLiteral("Leave by the main window's close box or by File > Exit."),
         [](Options& o, const QString& by) {
             if (by == QLatin1String("close")) {
                 o.leaveBy = Options::Leave::CloseBox;
             } else if (by == QLatin1String("exit")) {
                 o.leaveBy = Options::Leave::FileExit;
             } else {
                 return QStringLiteral("--leave-by takes close or exit");
             }
             return QString();
         }},
    };
    return table;
}

QString helpText(const QCommandLineParser& parser) {
    // Qt names the program by the path it was started by, or not at all before the
    // application object exists; the help names it as it is installed.
    QString text = parser.helpText();
    const qsizetype usageEnd = text.indexOf(QLatin1String(" [options]"));
    if (text.startsWith(QLatin1String("Usage: ")) && usageEnd > 0) {
        text.replace(0, usageEnd, QStringLiteral("Usage: gildenway"));
    }
    return text;
}

}  // namespace

Options parseOptions(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Gildenway: trade the streets of Kestrovia with friends or the computer."));
    parser.setSingleDashWordOptionMode(QCommandLineParser::ParseAsLongOptions);
    const QCommandLineOption help = parser.addHelpOption();
    const QCommandLineOption version = parser.addVersionOption();
    for (const Row& row : rows()) {
        parser.addOption(QCommandLineOption(row.name, row.description, row.valueName));
    }

    Options options;
    const bool read = parser.parse(arguments);
    if (parser.isSet(help) || parser.isSet(QStringLiteral("help-all"))) {
        options.help = true;
        options.answer = helpText(parser);
        return options;
    }
    if (parser.isSet(version)) {
        options.version = true;
        options.answer = QStringLiteral("gildenway " GILDENWAY_VERSION "\n");
        return options;
    }
    if (!read) {
        options.error = parser.errorText();
        return options;
    }
    if (!parser.positionalArguments().isEmpty()) {
        options.error =
            QStringLiteral("'%1' is not an option").arg(parser.positionalArguments().first());
        return options;
    }
    for (const Row& row : rows()) {
        if (!parser.isSet(row.name)) continue;
        const QStringList values = parser.values(row.name);
        if (values.size() > 1) {
            options.error = QStringLiteral("--%1 is given twice").arg(row.name);
            return options;
        }
        options.error = row.read(options, values.value(0));
        if (!options.error.isEmpty()) return options;
    }
    return options;
}

}  // namespace gw::app
