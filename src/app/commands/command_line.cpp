#include "app/commands/command_line.h"

#include "app/commands/options.h"
#include "app/commands/setup_options.h"
#include "app/version.h"

#include <QCommandLineParser>

#include <algorithm>
#include <utility>

namespace kelvo {

namespace {

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

void addTable(QCommandLineParser& parser) {
    for (const Option& each : optionTable()) {
        QStringList names{each.name.toString()};
        if (!each.letter.isEmpty())
            names.prepend(each.letter.toString());
        parser.addOption(QCommandLineOption(names, {}, each.values.toString()));
    }
}

/// The ways to run the program of which one command line names one at most.
QStringList waysIn(const QCommandLineParser& parser) {
    QStringList ways{QStringLiteral("setup"),         QStringLiteral("passes"),
                     QStringLiteral("once"),          QStringLiteral("headless"),
                     QStringLiteral("profiles"),      QStringLiteral("export-profile"),
                     QStringLiteral("import-profile")};
    for (const CopyVerbName& each : copyVerbs())
        ways.append(each.name.toString());
    ways.removeIf([&](const QString& way) { return !parser.isSet(way); });
    return ways;
}

const CopyVerbName* copyVerbNamed(QStringView name) {
    const auto verbs = copyVerbs();
    const auto found = std::ranges::find(verbs, name, &CopyVerbName::name);
    return found == verbs.end() ? nullptr : &*found;
}

/// Why `way` does not go with what else there is; empty when it does.
QString companyFault(const QCommandLineParser& parser, const QString& way) {
    struct Companion {
        QString option;
        QStringList ways;
    };
    const QString status = QStringLiteral("status");
    const QString passes = QStringLiteral("passes");
    const QString once = QStringLiteral("once");
    const Companion companions[] = {
        {QStringLiteral("json"),
         {once, passes, status, QStringLiteral("follow"), QStringLiteral("profiles")}},
        {QStringLiteral("since"), {passes}},
        {QStringLiteral("max-age"), {status}},
        {QStringLiteral("no-sentinel"), {QStringLiteral("headless")}},
        {QStringLiteral("accept"), {QStringLiteral("import-profile")}},
    };
    for (const Companion& each : companions) {
        if (!parser.isSet(each.option) || each.ways.contains(way))
            continue;
        QString ways = u"--" + each.ways.join(QStringLiteral(", --"));
        if (const qsizetype last = ways.lastIndexOf(u", "); last >= 0)
            ways.replace(last, 2, QStringLiteral(" or "));
        return u"--" + each.option + u" goes with " + ways;
    }
    return {};
}

CommandLine refuse(const QString& reason) {
    return {LaunchKind::Refuse, false,
            QString(u"kelvo-mirror: " + reason + u"\nTry 'kelvo-mirror --help'.\n")};
}

/// `arguments` without the profile `named` that was given with them.
CommandLine parsedWithoutProfile(const QStringList& arguments, const Profile& named) {
    QCommandLineParser parser;
    addTable(parser);
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
    if (parser.isSet(QStringLiteral("help")))
        return {LaunchKind::PrintHelp, false, optionHelp()};
    if (parser.isSet(QStringLiteral("version")))
        return {LaunchKind::PrintVersion, false,
                QString(u"kelvo-mirror " + QStringView(cVersion) + u'\n')};
    for (const char* each : {"get", "set", "unset", "settings"}) {
        const QString verb = QString::fromLatin1(each);
        if (parser.isSet(verb))
            return refuse(u"--" + verb + u" stands alone, with blanks between its words");
    }
    const QStringList ways = waysIn(parser);
    const QString way = ways.value(0);
    if (!window.given.isEmpty() && !ways.isEmpty())
        return refuse(u'\'' + window.given.constFirst() + u"' is for the window, and --" + way +
                      u" opens none");
    if (ways.size() > 1 && way == u"passes")
        return refuse(QStringLiteral("--passes goes with --json and --since only"));
    if (ways.size() > 1)
        return refuse(u"--" + ways[0] + u" and --" + ways[1] + u" do not go together");
    if (const QString fault = companyFault(parser, way); !fault.isEmpty())
        return refuse(fault);
    const bool json = parser.isSet(QStringLiteral("json"));
    const auto setup = setupRequest(parser);
    if (const auto* problem = std::get_if<QString>(&setup))
        return refuse(*problem);
    if (const auto* wanted = std::get_if<SetupRequest>(&setup)) {
        CommandLine line{LaunchKind::Setup, false, {}};
        line.setup = *wanted;
        return line;
    }
    if (way == u"passes") {
        CommandLine line{LaunchKind::Passes, false, {}};
        line.passes.json = json;
        const QString since = parser.value(QStringLiteral("since"));
        if (!parser.isSet(QStringLiteral("since")))
            return line;
        line.passes.since = momentFrom(since, QDateTime::currentDateTime());
        if (line.passes.since)
            return line;
        return refuse(u'\'' + since +
                      u"' is no time: --since takes a date (2026-11-22), a date-time "
                      u"(2026-11-22T19:02), or 30min, 2h, 3d");
    }
    if (way == u"profiles") {
        if (named.isNamed())
            return refuse(QStringLiteral("--profile and --profiles do not go together"));
        CommandLine line{LaunchKind::Profiles, false, {}};
        line.json = json;
        return line;
    }
    if (way == u"export-profile" || way == u"import-profile") {
        const bool imports = way == u"import-profile";
        if (imports && !named.isNamed())
            return refuse(QStringLiteral("--import-profile takes --profile NAME too"));
        CommandLine line{imports ? LaunchKind::Import : LaunchKind::Export, false, {}};
        line.transfer = {.file = parser.value(way),
                         .accept = parser.isSet(QStringLiteral("accept"))};
        return line;
    }
    if (way == u"once") {
        CommandLine line{LaunchKind::Once, false, {}};
        line.json = json;
        return line;
    }
    if (const CopyVerbName* verb = copyVerbNamed(way)) {
        CommandLine line{LaunchKind::Ask, false, {}};
        line.copy = {verb->verb, json, {}};
        if (!parser.isSet(QStringLiteral("max-age")))
            return line;
        const QString age = parser.value(QStringLiteral("max-age"));
        line.copy.maxAge = spanFrom(age);
        if (line.copy.maxAge)
            return line;
        return refuse(u'\'' + age + u"' is no age: --max-age takes 30min, 2h, 3d");
    }
    CommandLine line{way == u"headless" ? LaunchKind::Headless : LaunchKind::Window,
                     parser.isSet(QStringLiteral("autorelaunched")),
                     {}};
    line.noSentinel = parser.isSet(QStringLiteral("no-sentinel"));
    line.window = std::move(window);
    return line;
}

} // namespace

CommandLine parseCommandLine(const QStringList& given) {
    QStringList arguments = given;
    const TakenProfile taken = takeProfile(arguments);
    if (!taken.problem.isEmpty())
        return refuse(taken.problem);
    CommandLine line = parsedWithoutProfile(arguments, taken.profile);
    line.profile = taken.profile;
    return line;
}

bool needsProfile(const CommandLine& line) {
    switch (line.kind) {
    case LaunchKind::Once:
    case LaunchKind::Ask:
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
