#include "app/commands/command_line.h"

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

CommandLine refusal(const QString& reason) {
    return {LaunchKind::Refuse, false,
            QString(u"kelvo-mirror: " + reason + u"\nTry 'kelvo-mirror --help'.\n")};
}

/// `arguments` without the profile that they name.
CommandLine parsedWithoutProfile(const QStringList& arguments, const Profile& named) {
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
        QStringLiteral(
            "With --once, --passes, --profiles: tell each as one JSON object on a line."));
    const QCommandLineOption get(QStringLiteral("get"), QStringLiteral("Print a setting."),
                                 QStringLiteral("KEY"));
    const QCommandLineOption set(QStringLiteral("set"), QStringLiteral("Change a setting."),
                                 QStringLiteral("KEY> <VALUE"));
    const QCommandLineOption unset(QStringLiteral("unset"),
                                   QStringLiteral("Give a setting its factory value back."),
                                   QStringLiteral("KEY"));
    const QCommandLineOption settings(QStringLiteral("settings"),
                                      QStringLiteral("Print all settings as JSON."));
    // It has been taken out before; it stands here for the help.
    const QCommandLineOption profile(
        QStringLiteral("profile"),
        QStringLiteral("Work with settings, record, log and window of this name: one for each "
                       "Mac."),
        QStringLiteral("NAME"));
    const QCommandLineOption profiles(
        QStringLiteral("profiles"),
        QStringLiteral("List the profiles, with Mac, state and last success."));
    const QCommandLineOption exportProfile(
        QStringLiteral("export-profile"),
        QStringLiteral("Write the settings for another machine, without folders and secrets."),
        QStringLiteral("FILE"));
    const QCommandLineOption importProfile(
        QStringLiteral("import-profile"),
        QStringLiteral("With --profile: show what such a file will run, ask, and take it over."),
        QStringLiteral("FILE"));
    const QCommandLineOption accept(QStringLiteral("accept"),
                                    QStringLiteral("With --import-profile: take it over unasked."));
    parser.addOptions({headless, once, passes, since, json, get, set, unset, settings, profile,
                       profiles, exportProfile, importProfile, accept, version, help,
                       autorelaunched});

    const auto refuse = refusal;
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
    for (const QCommandLineOption* each :
         {&headless, &once, &passes, &profiles, &exportProfile, &importProfile}) {
        if (!window.given.isEmpty() && parser.isSet(*each))
            return refuse(u'\'' + window.given.constFirst() + u"' is for the window, and --" +
                          each->names().constFirst() + u" opens none");
    }
    if (parser.isSet(accept) && !parser.isSet(importProfile))
        return refuse(QStringLiteral("--accept goes with --import-profile"));
    const QStringList given = parser.optionNames();
    if (parser.isSet(profiles)) {
        if (named.isNamed() || given.size() > (parser.isSet(json) ? 2 : 1))
            return refuse(QStringLiteral("--profiles goes with --json only"));
        CommandLine line{LaunchKind::Profiles, false, {}};
        line.json = parser.isSet(json);
        return line;
    }
    if (parser.isSet(exportProfile) || parser.isSet(importProfile)) {
        const bool imports = parser.isSet(importProfile);
        if (given.size() > (parser.isSet(accept) ? 2 : 1))
            return refuse(imports
                              ? QStringLiteral("--import-profile goes with --profile and --accept "
                                               "only")
                              : QStringLiteral("--export-profile goes with --profile only"));
        if (imports && !named.isNamed())
            return refuse(QStringLiteral("--import-profile takes --profile NAME too"));
        CommandLine line{imports ? LaunchKind::Import : LaunchKind::Export, false, {}};
        line.transfer = {.file = parser.value(imports ? importProfile : exportProfile),
                         .accept = parser.isSet(accept)};
        return line;
    }
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
        return refuse(QStringLiteral("--json goes with --once, --passes or --profiles"));
    CommandLine line{parser.isSet(headless) ? LaunchKind::Headless : LaunchKind::Window,
                     parser.isSet(autorelaunched),
                     {}};
    line.window = std::move(window);
    return line;
}

} // namespace

CommandLine parseCommandLine(const QStringList& given) {
    QStringList arguments = given;
    const TakenProfile taken = takeProfile(arguments);
    if (!taken.problem.isEmpty())
        return refusal(taken.problem);
    CommandLine line = parsedWithoutProfile(arguments, taken.profile);
    line.profile = taken.profile;
    return line;
}

bool needsProfile(const CommandLine& line) {
    switch (line.kind) {
    case LaunchKind::Once:
    case LaunchKind::Passes:
    case LaunchKind::Export:
        return true;
    case LaunchKind::Settings:
        return line.settings.verb != SettingsVerb::Set;
    default:
        return false;
    }
}

} // namespace kelvo
