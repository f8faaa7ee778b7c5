// The one table of options, and what else speaks of them: the manual and the shells' completions.
#include "app/commands/options.h"
#include "settings/preferences.h"

#include <QFile>
#include <QProcess>
#include <QStandardPaths>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QString contentOf(const QString& path) {
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << path.toStdString();
    return QString::fromUtf8(file.readAll());
}

const QString cBash = QStringLiteral(KELVO_COMPLETIONS "/kelvo-mirror.bash");
const QString cZsh = QStringLiteral(KELVO_COMPLETIONS "/_kelvo-mirror");
const QString cFish = QStringLiteral(KELVO_COMPLETIONS "/kelvo-mirror.fish");

std::vector<Option> shownOptions() {
    std::vector<Option> shown;
    for (const Option& each : optionTable()) {
        if (each.group != OptionGroup::Hidden)
            shown.push_back(each);
    }
    return shown;
}

QStringList allOptions() {
    QStringList all;
    for (const Option& each : shownOptions())
        all.append(u"--" + each.name.toString());
    return all;
}

bool takesTime(const Option& option) {
    return option.values == u"AGE" || option.values == u"WHEN";
}

QStringList keysOf(PreferenceKind kind) {
    QStringList keys;
    for (const Preference& each : preferenceTable()) {
        if (each.kind == kind)
            keys.append(each.key.toString());
    }
    return keys;
}

/// What stands between `begin` and `end`, as words.
QStringList wordsIn(const QString& text, const QString& begin, const QString& end) {
    QString part = text.section(begin, 1, 1).section(end, 0, 0);
    return part.replace(u'\\', u' ').simplified().split(u' ');
}

QString outputOf(const QString& program, const QStringList& arguments) {
    QProcess process;
    process.start(program, arguments);
    EXPECT_TRUE(process.waitForFinished()) << program.toStdString();
    EXPECT_EQ(process.exitCode(), 0) << process.readAllStandardError().constData();
    return QString::fromUtf8(process.readAllStandardOutput());
}

bool isMissing(const QString& program) {
    return QStandardPaths::findExecutable(program).isEmpty();
}

/// What bash offers once `words` are typed, the last of them in part.
QStringList offeredByBash(const QStringList& words) {
    const QString script =
        QStringLiteral("source \"$1\"; shift; COMP_WORDS=(\"$@\"); COMP_CWORD=$(($# - 1)); "
                       "_kelvo_mirror; printf '%s\\n' \"${COMPREPLY[@]}\"");
    return outputOf(QStringLiteral("bash"),
                    QStringList{QStringLiteral("-c"), script, QStringLiteral("bash"), cBash,
                                QStringLiteral("kelvo-mirror")} +
                        words)
        .split(u'\n', Qt::SkipEmptyParts);
}

TEST(OptionsTest, Manual_ExplainsEveryOption) {
    const QString manual = contentOf(QStringLiteral(KELVO_MANUAL));
    const QString options = manual.section(QStringLiteral(".SH OPTIONS\n"), 1)
                                .section(QStringLiteral(".SH EXIT STATUS\n"), 0, 0);
    for (const Option& each : shownOptions()) {
        const QString roff = u"\\-\\-" + each.name.toString().replace(u'-', QStringLiteral("\\-"));
        const QStringList lines = options.split(u'\n');
        bool isEntry = false;
        for (qsizetype i = 1; i < lines.size(); ++i)
            isEntry = isEntry || (lines[i - 1] == u".TP" && lines[i].split(u' ').contains(roff));
        EXPECT_TRUE(isEntry) << each.name.toString().toStdString();
    }
}

TEST(OptionsTest, Bash_OffersOptionsAndSettings) {
    EXPECT_EQ(offeredByBash({QStringLiteral("--")}), allOptions());
    EXPECT_EQ(offeredByBash({QStringLiteral("--sy")}), QStringList{QStringLiteral("--sync-now")});
    EXPECT_EQ(offeredByBash({QStringLiteral("--get"), {}}),
              keysOf(PreferenceKind::Setting) + keysOf(PreferenceKind::State));
    for (const char* option : {"--set", "--unset"})
        EXPECT_EQ(offeredByBash({QString::fromLatin1(option), {}}),
                  keysOf(PreferenceKind::Setting));
    for (const Option& each : shownOptions()) {
        const QString option = u"--" + each.name.toString();
        if (takesTime(each)) {
            EXPECT_EQ(offeredByBash({option, QStringLiteral("2")}),
                      QStringList{QStringLiteral("2h")});
        } else if (each.values == u"FILE") {
            EXPECT_EQ(offeredByBash({option, cFish.chopped(3)}), QStringList{cFish});
        } else if (!each.values.isEmpty() && !each.values.startsWith(u"KEY")) {
            EXPECT_EQ(offeredByBash({option, {}}), QStringList()) << option.toStdString();
        }
    }
}

TEST(OptionsTest, Fish_OffersOptionsAndSettings) {
    const QString script = contentOf(cFish);
    EXPECT_EQ(wordsIn(script, QStringLiteral("set -l settings "), QStringLiteral("\nset ")),
              keysOf(PreferenceKind::Setting));
    EXPECT_EQ(wordsIn(script, QStringLiteral("set -l state "), QStringLiteral("\ncomplete ")),
              keysOf(PreferenceKind::State));
    QStringList expected{QStringLiteral("complete -c kelvo-mirror -f")};
    for (const Option& each : shownOptions()) {
        QString line = QStringLiteral("complete -c kelvo-mirror");
        if (!each.letter.isEmpty())
            line += u" -s " + each.letter;
        line += u" -l " + each.name;
        if (each.name == u"get")
            line += u" -x -a \"$settings $state\"";
        else if (each.values.startsWith(u"KEY"))
            line += u" -x -a \"$settings\"";
        else if (takesTime(each))
            line += u" -x -a '30min 2h 3d'";
        else if (each.values == u"FILE")
            line += u" -r -F";
        else if (!each.values.isEmpty())
            line += u" -x";
        expected +=
            line + u" -d '" + each.help.toString().replace(u'\'', QStringLiteral("\\'")) + u'\'';
    }
    QStringList found = script.split(u'\n', Qt::SkipEmptyParts);
    found.removeIf([](const QString& line) { return !line.startsWith(u"complete "); });
    EXPECT_EQ(found, expected);
    if (isMissing(QStringLiteral("fish")))
        GTEST_SKIP() << "fish is not installed on this machine";
    const QString offered = outputOf(QStringLiteral("fish"),
                                     {QStringLiteral("--no-config"), QStringLiteral("-c"),
                                      QString(u"source '" + cFish +
                                              u"'; complete -C 'kelvo-mirror --sy'; complete -C "
                                              u"'kelvo-mirror --unset showD'")});
    EXPECT_TRUE(offered.contains(u"--sync-now\tBegin the next pass now.\n"))
        << offered.toStdString();
    EXPECT_TRUE(offered.contains(u"\nshowDiagnostics")) << offered.toStdString();
}

TEST(OptionsTest, Zsh_OffersOptionsAndSettings) {
    const QString script = contentOf(cZsh);
    EXPECT_EQ(wordsIn(script, QStringLiteral("local -a settings=("), QStringLiteral(")")),
              keysOf(PreferenceKind::Setting));
    EXPECT_EQ(wordsIn(script, QStringLiteral("local -a state=("), QStringLiteral(")")),
              keysOf(PreferenceKind::State));
    QStringList expected;
    for (const Option& each : shownOptions()) {
        const QString option = u"--" + each.name.toString();
        const QString letter = u'-' + each.letter.toString();
        QString line =
            each.letter.isEmpty()
                ? QString(u'\'' + option)
                : QString(u"'(" + letter + u' ' + option + u")'{" + letter + u',' + option + u"}'");
        line += u'[' + each.help.toString().replace(u'\'', QStringLiteral("'\\''")) + u']';
        if (each.name == u"get")
            line += u":KEY:{compadd -a settings state}";
        else if (each.values.startsWith(u"KEY"))
            line += u":KEY:{compadd -a settings}";
        else if (takesTime(each))
            line += u':' + each.values + u":(30min 2h 3d)";
        else if (each.values == u"FILE")
            line += u":FILE:_files";
        else if (!each.values.isEmpty())
            line += u':' + each.values + u": ";
        if (each.values.endsWith(u" VALUE"))
            line += u":VALUE: ";
        expected += line + u'\'';
    }
    QStringList found =
        script.section(QStringLiteral("_arguments \\\n"), 1).split(u'\n', Qt::SkipEmptyParts);
    for (QString& line : found)
        line = (line.endsWith(u" \\") ? line.chopped(2) : line).trimmed();
    EXPECT_EQ(found, expected);
    if (isMissing(QStringLiteral("zsh")))
        GTEST_SKIP() << "zsh is not installed on this machine";
    (void)outputOf(QStringLiteral("zsh"), {QStringLiteral("-n"), cZsh});
}

} // namespace
} // namespace kelvo
