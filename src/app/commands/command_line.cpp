#include "app/commands/command_line.h"

#include "app/commands/setup_options.h"
#include "app/version.h"

#include <QCommandLineParser>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

/// The parser takes the program's name from an application object or says that it has none.
QString helpText(const QCommandLineParser& parser) {
    const QString text = parser.helpText();
    return u"Usage: kelvo-mirror" + text.sliced(text.indexOf(u" [options]"));
}

/// What `parser` could not understand of `arguments`. A word behind a single dash is named as it
/// was typed; the parser would name each of its letters.
QString parsingProblem(const QCommandLineParser& parser, const QStringList& arguments) {
    const QStringList unknown = parser.unknownOptionNames();
    for (const QString& word : arguments.sliced(1)) {
        if (word == u"--")
            break;
        const bool hasUnknownLetter = std::ranges::any_of(
            word, [&](QChar letter) { return unknown.contains(QString(letter)); });
        if (word.size() > 2 && word[0] == u'-' && word[1] != u'-' && hasUnknownLetter)
            return u"Unknown option '" + word.sliced(1) + u"'.";
    }
    return parser.errorText();
}

} // namespace

CommandLine parseCommandLine(const QStringList& arguments) {
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Keeps a local folder supplied with movie files from a remote Mac."));
    const QCommandLineOption headless(
        QStringLiteral("headless"),
        QStringLiteral("Run without display, window or tray; status and alerts go to standard "
                       "output."));
    QCommandLineOption autorelaunched(QStringLiteral("autorelaunched"));
    autorelaunched.setFlags(QCommandLineOption::HiddenFromHelp);
    const QCommandLineOption version({QStringLiteral("V"), QStringLiteral("version")},
                                     QStringLiteral("Print the version and end."));
    const QCommandLineOption help({QStringLiteral("h"), QStringLiteral("help")},
                                  QStringLiteral("Print this help and end."));
    const QCommandLineOption once(
        QStringLiteral("once"),
        QStringLiteral(
            "Run one pass with the stored settings, tell how it went and end with a code "
            "that names the kind of trouble."));
    const QCommandLineOption passes(QStringLiteral("passes"),
                                    QStringLiteral("Print the record of passes, newest last."));
    const QCommandLineOption since(
        QStringLiteral("since"),
        QStringLiteral("With --passes: those since a date, a date-time, or 30min, 2h, 3d ago."),
        QStringLiteral("WHEN"));
    const QCommandLineOption json(
        QStringLiteral("json"),
        QStringLiteral("With --once, --passes: tell each pass as one JSON object on a line."));
    const QCommandLineOption get(QStringLiteral("get"), QStringLiteral("Print a setting."),
                                 QStringLiteral("KEY"));
    const QCommandLineOption set(QStringLiteral("set"), QStringLiteral("Change a setting."),
                                 QStringLiteral("KEY> <VALUE"));
    const QCommandLineOption unset(QStringLiteral("unset"),
                                   QStringLiteral("Give a setting its factory value back."),
                                   QStringLiteral("KEY"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Print all settings as JSON."));
    const QCommandLineOption noSentinel(
        QStringLiteral("no-sentinel"),
        QStringLiteral("With --headless: no sentinel watches over the program, because whoever "
                       "starts it (systemd) starts it again after a crash."));
    parser.addOptions({headless, noSentinel, once, passes, since, json, get, set, unset, settings});
    parser.addOptions(setupOptions());
    parser.addOptions({version, help, autorelaunched});

    const auto refuse = [](const QString& reason) {
        return CommandLine{LaunchKind::Refuse, false,
                           QString(u"kelvo-mirror: " + reason + u"\nTry 'kelvo-mirror --help'.\n")};
    };
    const auto request = settingsRequest(arguments);
    if (const auto* problem = std::get_if<QString>(&request))
        return refuse(*problem);
    if (const auto* complete = std::get_if<SettingsRequest>(&request)) {
        CommandLine line{LaunchKind::Settings, false, {}};
        line.settings = *complete;
        return line;
    }
    WindowOptions window = windowOptions(arguments);
    if (!window.problem.isEmpty())
        return refuse(window.problem);
    if (!parser.parse(window.rest))
        return refuse(parsingProblem(parser, window.rest));
    if (!parser.positionalArguments().isEmpty())
        return refuse(u"unexpected argument '" + parser.positionalArguments().constFirst() + u'\'');
    if (parser.isSet(help))
        return {LaunchKind::PrintHelp, false, helpText(parser)};
    if (parser.isSet(version))
        return {LaunchKind::PrintVersion, false,
                QString(u"kelvo-mirror " + QStringView(cVersion) + u'\n')};
    for (const QCommandLineOption* each : {&get, &set, &unset, &settings}) {
        if (parser.isSet(*each))
            return refuse(u"--" + each->names().constFirst() +
                          u" stands alone, with blanks between its words");
    }
    for (const QCommandLineOption* each : {&headless, &once, &passes}) {
        if (!window.given.isEmpty() && parser.isSet(*each))
            return refuse(u'\'' + window.given.constFirst() + u"' is for the window, and --" +
                          each->names().constFirst() + u" opens none");
    }
    const auto setup = setupRequest(parser);
    if (const auto* problem = std::get_if<QString>(&setup))
        return refuse(*problem);
    if (const auto* wanted = std::get_if<SetupRequest>(&setup)) {
        for (const QCommandLineOption* each : {&headless, &noSentinel, &once, &passes, &json}) {
            if (parser.isSet(*each))
                return refuse(u"--setup and --" + each->names().constFirst() +
                              u" do not go together");
        }
        if (!window.given.isEmpty())
            return refuse(u'\'' + window.given.constFirst() +
                          u"' is for the window, and --setup opens none");
        CommandLine line{LaunchKind::Setup, false, {}};
        line.setup = *wanted;
        return line;
    }
    if (parser.isSet(noSentinel) && !parser.isSet(headless))
        return refuse(QStringLiteral("--no-sentinel goes with --headless"));
    if (parser.isSet(passes)) {
        if (parser.isSet(headless) || parser.isSet(once))
            return refuse(QStringLiteral("--passes goes with --json and --since only"));
        CommandLine line{LaunchKind::Passes, false, {}};
        line.passes.json = parser.isSet(json);
        if (!parser.isSet(since))
            return line;
        line.passes.since = momentFrom(parser.value(since), QDateTime::currentDateTime());
        if (line.passes.since)
            return line;
        return refuse(u'\'' + parser.value(since) +
                      u"' is no time: --since takes a date (2026-11-22), a date-time "
                      u"(2026-11-22T19:02), or 30min, 2h, 3d");
    }
    if (parser.isSet(since))
        return refuse(QStringLiteral("--since goes with --passes"));
    if (parser.isSet(once)) {
        if (parser.isSet(headless))
            return refuse(QStringLiteral("--once and --headless do not go together"));
        CommandLine line{LaunchKind::Once, false, {}};
        line.json = parser.isSet(json);
        return line;
    }
    if (parser.isSet(json))
        return refuse(QStringLiteral("--json goes with --once or --passes"));
    CommandLine line{parser.isSet(headless) ? LaunchKind::Headless : LaunchKind::Window,
                     parser.isSet(autorelaunched),
                     {}};
    line.noSentinel = parser.isSet(noSentinel);
    line.window = std::move(window);
    return line;
}

} // namespace kelvo
