#include "app/commands/command_line.h"
#include "app/commands/options.h"
#include "app/commands/passes.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>
#include <QScopeGuard>

#include <gtest/gtest.h>

#include <time.h>

namespace kelvo {
namespace {

const QDateTime cNow(QDate(2026, 11, 22), QTime(19, 2));

QString momentText(const QString& text) {
    const auto moment = momentFrom(text, cNow);
    return moment ? moment->toLocalTime().toString(Qt::ISODate) : QStringLiteral("none");
}

PassRecord passWith(std::vector<Arrival> arrivals) {
    PassRecord pass;
    pass.id = 7;
    pass.began = QDateTime(QDate(2026, 11, 21), QTime(8, 30), Qt::UTC);
    pass.seconds = 4;
    pass.kind = PassKind::Remote;
    pass.verdict = HostVerdict::Valid;
    pass.cause = PassCause::Unknown;
    pass.lastLine = QStringLiteral("gone\x1b[2J");
    pass.transfer = {TransferSource::Lines, 2, std::nullopt};
    pass.arrivals = std::move(arrivals);
    return pass;
}

QStringList linesOf(const std::vector<PassRecord>& passes, bool json) {
    QStringList lines = passesText(passes, json).split(u'\n');
    EXPECT_EQ(lines.takeLast(), QString());
    return lines;
}

TEST(MomentTest, DatesAndTimesBefore_AreRead) {
    EXPECT_EQ(momentText(QStringLiteral("2026-11-20")), QStringLiteral("2026-11-20T00:00:00"));
    EXPECT_EQ(momentText(QStringLiteral("2026-11-20T07:05")),
              QStringLiteral("2026-11-20T07:05:00"));
    EXPECT_EQ(momentText(QStringLiteral("2026-11-20 07:05:09")),
              QStringLiteral("2026-11-20T07:05:09"));
    EXPECT_EQ(momentFrom(QStringLiteral("2026-11-20T07:05:00+02:00"), cNow),
              QDateTime(QDate(2026, 11, 20), QTime(5, 5), Qt::UTC));
    EXPECT_EQ(momentFrom(QStringLiteral("2026-11-20T05:05:00Z"), cNow),
              QDateTime(QDate(2026, 11, 20), QTime(5, 5), Qt::UTC));
    EXPECT_EQ(momentText(QStringLiteral("30min")), QStringLiteral("2026-11-22T18:32:00"));
    EXPECT_EQ(momentText(QStringLiteral("2h")), QStringLiteral("2026-11-22T17:02:00"));
    EXPECT_EQ(momentText(QStringLiteral("3d")), QStringLiteral("2026-11-19T19:02:00"));
}

TEST(MomentTest, Spans_AreCountedInSeconds) {
    EXPECT_EQ(spanFrom(QStringLiteral("30min")), 1800);
    EXPECT_EQ(spanFrom(QStringLiteral("2h")), 7200);
    EXPECT_EQ(spanFrom(QStringLiteral("3d")), 259'200);
    EXPECT_EQ(spanFrom(QStringLiteral("3")), std::nullopt);
    EXPECT_EQ(momentFrom(QStringLiteral("999999d"), cNow), cNow.addDays(-999'999));
}

TEST(MomentTest, PrintedMoment_IsLocalNamesItsZoneAndCanBeReadAgain) {
    const QByteArray before = qgetenv("TZ");
    const bool isSet = qEnvironmentVariableIsSet("TZ");
    const auto putBack = qScopeGuard([&] {
        isSet ? qputenv("TZ", before) : qunsetenv("TZ");
        ::tzset();
    });
    qputenv("TZ", "<+0530>-5:30");
    ::tzset();
    const QDateTime moment(QDate(2026, 11, 20), QTime(22, 5, 9), Qt::UTC);
    EXPECT_EQ(localTimeText(moment), u"2026-11-21T03:35:09+05:30");
    EXPECT_EQ(momentFrom(localTimeText(moment), cNow), moment);
}

TEST(MomentTest, OtherTexts_AreNone) {
    for (const QString& text :
         {QString(), QStringLiteral("yesterday"), QStringLiteral("2026-11-31"),
          QStringLiteral("2026-1-1"), QStringLiteral("-2h"), QStringLiteral("2 h"),
          QStringLiteral("h"), QStringLiteral("2h\n"), QStringLiteral("9999999d"),
          QStringLiteral("2026-11-20T25:00"), QStringLiteral("22.11.2026")})
        EXPECT_EQ(momentText(text), QStringLiteral("none")) << qPrintable(text);
}

TEST(PassesTextTest, Json_IsOneObjectALineWithEveryArrival) {
    const QDateTime arrived(QDate(2026, 11, 21), QTime(8, 31), Qt::UTC);
    const QStringList lines = linesOf(
        {passWith({{"/in/caf\xc3\xa9\n.mov", 5LL << 40, arrived}, {"/in/\xff.mov", 1, arrived}}),
         passWith({})},
        true);
    ASSERT_EQ(lines.size(), 2);
    const QJsonObject first = QJsonDocument::fromJson(lines[0].toUtf8()).object();
    EXPECT_EQ(first.value(u"number"), 7);
    EXPECT_EQ(first.value(u"began"), QStringLiteral("2026-11-21T08:30:00.000Z"));
    EXPECT_EQ(first.value(u"cause"), QStringLiteral("unknown"));
    EXPECT_EQ(first.value(u"files"), 2);
    EXPECT_TRUE(first.value(u"bytes").isNull());
    const QJsonArray arrivals = first.value(u"arrivals").toArray();
    ASSERT_EQ(arrivals.size(), 2);
    EXPECT_EQ(arrivals[0], (QJsonObject{{QStringLiteral("path"), QStringLiteral("/in/café\n.mov")},
                                        {QStringLiteral("size"), 5LL << 40},
                                        {QStringLiteral("arrived"),
                                         QStringLiteral("2026-11-21T08:31:00.000Z")}}));
    EXPECT_EQ(arrivals[1].toObject().value(u"path"), QStringLiteral("/in/\ufffd.mov"));
    EXPECT_EQ(
        QByteArray::fromBase64(arrivals[1].toObject().value(u"pathBytes").toString().toLatin1()),
        "/in/\xff.mov");
    EXPECT_TRUE(QJsonDocument::fromJson(lines[1].toUtf8()).object().contains(u"arrivals"));
}

TEST(PassesTextTest, Line_TellsWhenAndHowWithControlsSpelledOut) {
    const QString line = linesOf({passWith({})}, false).value(0);
    EXPECT_EQ(QDateTime::fromString(line.section(u' ', 0, 0), Qt::ISODate), passWith({}).began);
    EXPECT_TRUE(line.endsWith(
        QStringLiteral("  Something went wrong. The last line was: gone\\x1b[2J (2 files, 4 s)")))
        << qPrintable(line);
    PassRecord crowded = passWith({});
    crowded.lastLine = QStringLiteral("one\ntwo");
    EXPECT_EQ(linesOf({crowded}, false).size(), 1);
}

TEST(CommandLineTest, Passes_AreAskedForWithTimeAndForm) {
    const auto read = [](const QString& words) {
        return parseCommandLine(QString(u"kelvo-mirror " + words).split(u' '));
    };
    EXPECT_EQ(read(QStringLiteral("--passes")).kind, LaunchKind::Passes);
    EXPECT_FALSE(read(QStringLiteral("--passes")).passes.since.has_value());
    const CommandLine line = read(QStringLiteral("--passes --json --since 2026-11-20"));
    EXPECT_EQ(line.kind, LaunchKind::Passes);
    EXPECT_TRUE(line.passes.json);
    EXPECT_EQ(line.passes.since, QDate(2026, 11, 20).startOfDay());
    const CommandLine bare = read(QStringLiteral("--passes"));
    EXPECT_FALSE(bare.passes.json);
    for (const QString& words :
         {QStringLiteral("--passes --since soon"), QStringLiteral("--since 2h"),
          QStringLiteral("--passes --once"), QStringLiteral("--passes --headless"),
          QStringLiteral("--once --since 2h"), QStringLiteral("--json"),
          QStringLiteral("--passes --since"), QStringLiteral("--passes 2h")})
        EXPECT_EQ(read(words).kind, LaunchKind::Refuse) << qPrintable(words);
}

TEST(CommandLineTest, WayToStart_IsReadFromTheWords) {
    const auto read = [](const QString& words) {
        return parseCommandLine(QString(u"kelvo-mirror" + words).split(u' '));
    };
    EXPECT_EQ(read({}).kind, LaunchKind::Window);
    EXPECT_FALSE(read({}).autorelaunched);
    EXPECT_TRUE(read(QStringLiteral(" --autorelaunched")).autorelaunched);
    EXPECT_EQ(read(QStringLiteral(" --headless")).kind, LaunchKind::Headless);
    EXPECT_EQ(read(QStringLiteral(" --once")).kind, LaunchKind::Once);
    EXPECT_FALSE(read(QStringLiteral(" --once")).json);
    EXPECT_TRUE(read(QStringLiteral(" --once --json")).json);
    EXPECT_EQ(read(QStringLiteral(" --get prefPath1")).kind, LaunchKind::Settings);
    EXPECT_EQ(read(QStringLiteral(" --get prefPath1")).settings.key, QStringLiteral("prefPath1"));
    for (const QString& words : {QStringLiteral(" -V"), QStringLiteral(" --version")}) {
        EXPECT_EQ(read(words).kind, LaunchKind::PrintVersion);
        EXPECT_TRUE(QRegularExpression(QStringLiteral("\\Akelvo-mirror [0-9.]+[^ ~]*\n\\z"))
                        .match(read(words).message)
                        .hasMatch())
            << read(words).message.toStdString();
    }
}

TEST(CommandLineTest, EachRefusal_SaysWhy) {
    struct Case {
        const char* words;
        const char* reason;
    };
    for (const Case& c :
         {Case{"here", "unexpected argument 'here'"},
          Case{"--headless --settings", "--settings stands alone, with blanks between its words"},
          Case{"--headless --get a", "--get stands alone, with blanks between its words"},
          Case{"--set=a b", "unexpected argument 'b'"},
          Case{"--unset=a", "--unset stands alone, with blanks between its words"},
          Case{"--passes --once", "--passes goes with --json and --since only"},
          Case{"--passes --headless", "--passes goes with --json and --since only"},
          Case{"--passes --since soon",
               "'soon' is no time: --since takes a date (2026-11-22), a date-time "
               "(2026-11-22T19:02), or 30min, 2h, 3d"},
          Case{"--since 2h", "--since goes with --passes"},
          Case{"--once --headless", "--once and --headless do not go together"},
          Case{"--json", "--json goes with --once, --passes, --status, --follow or --profiles"},
          Case{"--start --json",
               "--json goes with --once, --passes, --status, --follow or --profiles"},
          Case{"--follow --max-age 2h", "--max-age goes with --status"},
          Case{"--status --max-age soon", "'soon' is no age: --max-age takes 30min, 2h, 3d"},
          Case{"--status --max-age 2026-11-22",
               "'2026-11-22' is no age: --max-age takes 30min, 2h, 3d"},
          Case{"--start --stop", "--start and --stop do not go together"},
          Case{"--headless --status", "--headless and --status do not go together"},
          Case{"--cancel --since 2h", "--since goes with --passes"},
          Case{"--status -reverse", "'-reverse' is for the window, and --status opens none"},
          Case{"--get", "it is '--get KEY', and nothing else with it"},
          Case{"--set a", "it is '--set KEY VALUE', and nothing else with it"},
          Case{"--unset", "it is '--unset KEY', and nothing else with it"},
          Case{"--settings --json", "it is '--settings', and nothing else with it"},
          Case{"-revers", "Unknown option 'revers'."},
          Case{"-z", "Unknown option 'z'."},
          Case{"-Vz", "Unknown option 'Vz'."},
          Case{"--frobnicate", "Unknown option 'frobnicate'."},
          Case{"-hV --frobnicate", "Unknown option 'frobnicate'."},
          Case{"-reverse=yes", "Unknown option 'reverse=yes'."},
          Case{"-- -reverse", "unexpected argument '-reverse'"},
          Case{"-style", "the option '-style' lacks its value"},
          Case{"--headless -reverse", "'-reverse' is for the window, and --headless opens none"},
          Case{"--platform=xcb --once", "'-platform' is for the window, and --once opens none"},
          Case{"--passes -name x", "'-name' is for the window, and --passes opens none"}}) {
        const CommandLine line =
            parseCommandLine(QString(u"m " + QString::fromLatin1(c.words)).split(u' '));
        EXPECT_EQ(line.kind, LaunchKind::Refuse) << c.words;
        EXPECT_EQ(line.message, QStringLiteral("kelvo-mirror: %1\nTry 'kelvo-mirror --help'.\n")
                                    .arg(QString::fromLatin1(c.reason)))
            << c.words;
    }
}

TEST(CommandLineTest, OptionsOfTheToolkit_AreHandedOnAsItTakesThem) {
    struct Case {
        const char* words;
        const char* given;
    };
    for (const Case& c :
         {Case{"-reverse", "-reverse"}, Case{"--reverse", "-reverse"},
          Case{"-platform wayland", "-platform wayland"}, Case{"-platform=xcb", "-platform xcb"},
          Case{"--style=Fusion", "-style Fusion"},
          Case{"-stylesheet /a=b.qss", "-stylesheet /a=b.qss"},
          Case{"-geometry -5-5", "-geometry -5-5"}, Case{"-title --once", "-title --once"},
          Case{"-session= --autorelaunched -name=x", "-session  -name x"}}) {
        const CommandLine line =
            parseCommandLine(QString(u"m " + QString::fromLatin1(c.words)).split(u' '));
        EXPECT_EQ(line.kind, LaunchKind::Window) << c.words << line.message.toStdString();
        EXPECT_EQ(line.window.given, QString::fromLatin1(c.given).split(u' ')) << c.words;
        EXPECT_EQ(line.autorelaunched, QByteArray(c.words).contains("--autorelaunched"));
    }
    const CommandLine twice = parseCommandLine(
        QStringLiteral("m -platform xcb -display :1 -platform wayland").split(u' '));
    EXPECT_EQ(twice.window.valueOf(u"platform"), u"wayland");
    EXPECT_EQ(twice.window.valueOf(u"display"), u":1");
    EXPECT_EQ(twice.window.valueOf(u"style"), QString());
    EXPECT_EQ(parseCommandLine(QStringLiteral("m -reverse").split(u' ')).window.valueOf(u"reverse"),
              QString())
        << "a switch has no value";
    EXPECT_EQ(parseCommandLine(QStringLiteral("m --set prefPath1 -reverse").split(u' ')).kind,
              LaunchKind::Settings);
    EXPECT_EQ(parseCommandLine(QStringLiteral("m -reverse --help").split(u' ')).kind,
              LaunchKind::PrintHelp);
}

TEST(CommandLineTest, EachOptionOfTheToolkit_IsKnown) {
    const auto given = [](const QStringList& words) {
        return parseCommandLine(QStringList{QStringLiteral("m")} + words).window.given;
    };
    for (const char* name : {"reverse", "widgetcount", "nograb", "dograb"}) {
        const QString option = u'-' + QString::fromLatin1(name);
        EXPECT_EQ(given({option}), QStringList{option});
    }
    for (const char* name : {"platform", "platformpluginpath", "platformtheme", "plugin", "session",
                             "style", "stylesheet", "display", "geometry", "qwindowgeometry",
                             "qwindowicon", "qwindowtitle", "icon", "title", "name"}) {
        const QString option = u'-' + QString::fromLatin1(name);
        EXPECT_EQ(given({option, QStringLiteral("x")}), (QStringList{option, QStringLiteral("x")}));
    }
}

TEST(CommandLineTest, RunningCopy_IsAskedByTheNamesOfItsRequests) {
    for (const CopyVerbName& each : copyVerbs()) {
        const CommandLine line =
            parseCommandLine({QStringLiteral("m"), u"--" + each.name.toString()});
        EXPECT_EQ(line.kind, LaunchKind::Ask) << line.message.toStdString();
        EXPECT_EQ(line.copy.verb, each.verb);
        EXPECT_FALSE(line.copy.json);
    }
    const CommandLine line =
        parseCommandLine(QStringLiteral("m --json --status --max-age 2h").split(u' '));
    EXPECT_EQ(line.kind, LaunchKind::Ask);
    EXPECT_TRUE(line.copy.json);
    EXPECT_EQ(line.copy.maxAge, 7200);
}

TEST(CommandLineTest, Help_NamesEveryOptionForPeople) {
    for (const QString& word : {QStringLiteral("-h"), QStringLiteral("--help")}) {
        const CommandLine line = parseCommandLine({QStringLiteral("m"), word});
        EXPECT_EQ(line.kind, LaunchKind::PrintHelp);
        EXPECT_TRUE(line.message.startsWith(
            u"Usage: kelvo-mirror [options]\n"
            u"Keeps a local folder supplied with movie files from a remote Mac.\n"));
        EXPECT_TRUE(line.message.contains(
            u"  --since <WHEN>       With --passes: those since a date, a date-time, or 30min,\n"
            u"                       2h, 3d ago.\n"))
            << line.message.toStdString();
        EXPECT_TRUE(line.message.contains(u"\n\nSettings:\n  --get <KEY>          Print a "
                                          u"setting.\n  --set <KEY> <VALUE>  Change a setting.\n"))
            << line.message.toStdString();
        QStringList titles = line.message.split(u'\n').mid(2);
        titles.removeIf([](const QString& each) { return each.isEmpty() || each[0] == u' '; });
        EXPECT_EQ(
            titles,
            (QStringList{QStringLiteral("Without an option the window is shown. Other ways "
                                        "to run passes:"),
                         QStringLiteral("Ask and tell the copy that runs:"),
                         QStringLiteral("The record:"), QStringLiteral("Settings:"),
                         QStringLiteral("Set a Mac up:"), QStringLiteral("Several Macs:"),
                         QStringLiteral("Form of the answers:"), QStringLiteral("The program:")}));
        EXPECT_TRUE(line.message.contains(u"\n  -V, --version"));
        const QString plain = line.message.simplified();
        for (const Option& each : optionTable()) {
            const bool isShown = each.group != OptionGroup::Hidden;
            EXPECT_EQ(plain.contains(QString(u"--" + each.name + u' ')), isShown)
                << qPrintable(each.name.toString());
            EXPECT_TRUE(plain.contains(each.help)) << qPrintable(each.name.toString());
        }
        const QStringList lines = line.message.split(u'\n');
        for (qsizetype i = 1; i < lines.size(); ++i) {
            if (!lines[i].startsWith(QString(23, u' ')) || lines[i - 1].size() < 24 ||
                lines[i - 1][22] != u' ')
                continue;
            EXPECT_NE(lines[i][23], u' ');
            EXPECT_GT(lines[i - 1].size() + 1 + lines[i].sliced(23).section(u' ', 0, 0).size(), 80)
                << "there was room for more: " << lines[i - 1].toStdString();
        }
        for (const QString& each : lines) {
            EXPECT_LE(each.size(), 80) << each.toStdString();
            EXPECT_FALSE(each.endsWith(u' ')) << each.toStdString();
        }
    }
}

} // namespace
} // namespace kelvo
