// The factory settings as they are delivered, and their rsync template run with the real rsync.
#include "adapters/settings/file_bundle.h"
#include "passes/progress_line.h"
#include "settings/preferences.h"
#include "support/partial_option.h"
#include "support/stored_value.h"
#include "ui/movie_kinds.h"

#include <QDateTime>
#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QProcess>
#include <QSet>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QVariantMap factoryDefaults() {
    return FileBundle(QStringLiteral(KELVO_RESOURCES))
        .propertyList(QStringLiteral("FactoryDefaults"))
        .value_or(QVariantMap());
}

TEST(FactoryDefaultsTest, Values_HaveTheirTypes) {
    QVariantMap values = factoryDefaults();
    EXPECT_TRUE(
        values.take("prefRsyncCommandString1").toString().startsWith("/usr/bin/rsync 2>&1 "));
    const QVariantMap expected{
        {"prefRsyncCommandOptionTag", qlonglong{100}},
        {"prefRsyncWithSSH", true},
        {"prefDelayBetweenScans", 30.0},
        {"prefRemotePath", "Movies"},
        {"prefAutoStartScanOnLaunch", false},
        {"prefHideOnLaunch", false},
        {"showNotices", true},
        {"showArrivals", true},
        {"keepConnection", true},
        {"quitWithoutAsking", false},
        {"showDiagnostics", false},
    };
    EXPECT_TRUE(sameStoredValue(values, expected)) << ::testing::PrintToString(QVariant(values));
}

TEST(FactoryDefaultsTest, Values_AreThoseOfTheTable) {
    QVariantMap expected;
    for (const Preference& each : preferenceTable()) {
        if (const QVariant value = factoryValue(each); value.isValid())
            expected.insert(each.key.toString(), value);
    }
    const QVariantMap values = factoryDefaults();
    EXPECT_TRUE(sameStoredValue(values, expected))
        << ::testing::PrintToString(QVariant(values)) << "\nin the table:\n"
        << ::testing::PrintToString(QVariant(expected));
}

TEST(FactoryDefaultsTest, Info_NamesTheProgramAndItsVersion) {
    const auto info = FileBundle(QStringLiteral(KELVO_RESOURCES)).propertyList("Info");
    ASSERT_TRUE(info);
    EXPECT_EQ(info->value("CFBundleName"), QVariant("Kelvo Mirror"));
    EXPECT_FALSE(info->value("CFBundleIdentifier").toString().isEmpty());
    EXPECT_EQ(info->value("CFBundleShortVersionString"), QVariant(KELVO_VERSION));
    EXPECT_EQ(info->value("CFBundleVersion"), QVariant(KELVO_VERSION));
    EXPECT_TRUE(sameStoredValue(info->value("LSUIElement"), true));
}

class FactoryTemplateTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!QFileInfo(QStringLiteral("/usr/bin/rsync")).isExecutable())
            GTEST_SKIP() << "there is no /usr/bin/rsync";
        ASSERT_TRUE(QDir().mkpath(fSource));
        ASSERT_TRUE(QDir().mkpath(fDestination));
    }

    void make(const QString& name) {
        const QString path = fSource + u'/' + name;
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write("film of " + name.toUtf8());
        ASSERT_TRUE(file.flush());
        ASSERT_TRUE(file.setFileTime(fTime, QFile::FileModificationTime));
    }

    /// The template with its placeholders filled, run by the shell: what it printed.
    QString run(const QString& source, const QString& sshPart, const QString& option) {
        QString command = fTemplate;
        command.replace("%@1", source).replace("%@2", fDestination + u'/');
        command.replace("%@98", sshPart).replace("%@99", option);
        EXPECT_FALSE(command.contains("%@")) << command.toStdString();
        QProcess shell;
        shell.start("/bin/sh", {"-c", command});
        EXPECT_TRUE(shell.waitForFinished(60'000));
        EXPECT_EQ(shell.readAllStandardError(), QByteArray()) << "all goes into the captured text";
        return QString::fromUtf8(shell.readAllStandardOutput());
    }

    /// Everything below `folder`, folders with a closing slash, by relative names.
    static QSet<QString> contentOf(const QString& folder) {
        QSet<QString> names;
        QDirIterator entries(folder, QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot,
                             QDirIterator::Subdirectories);
        while (entries.hasNext()) {
            const QString path = entries.next();
            names.insert(path.mid(folder.size() + 1) + (entries.fileInfo().isDir() ? "/" : ""));
        }
        return names;
    }

    QString fTemplate = factoryDefaults().value("prefRsyncCommandString1").toString();
    const QDateTime fTime{QDate(2020, 2, 3), QTime(4, 5, 6), Qt::UTC};
    QTemporaryDir fRoot;
    const QString fSource = fRoot.filePath("the source");
    const QString fDestination = fRoot.filePath("the destination");
};

TEST_F(FactoryTemplateTest, Pull_BringsTheMoviesAndNothingElse) {
    const QStringList movies{"a.mov",      "b.MOV",          "c.mp4",     "d.Mp4",
                             "e.m4v",      "f.M4V",          "g.mkv",     "h.avi",
                             "i.mpg",      "j.MPEG",         "k.WebM",    "l.mts",
                             "m.MTS",      "a film.one.mov", "sub/n.mov", "sub/deeper/o.mkv",
                             ".hidden.mp4"};
    for (const QString& name : movies)
        make(name);
    for (const char* other : {"a.mov.bak", "notes.txt", "mov", "x.mpv", "y.mp3", "z.movie",
                              "q.mp4~", "texts/only.txt", ".kelvo-partial/half.mov"})
        make(QString::fromLatin1(other));
    ASSERT_TRUE(QDir().mkpath(fSource + "/empty/nothing"));

    const QString output = run(fSource + u'/', QString(), QString());

    QSet<QString> expected(movies.begin(), movies.end());
    expected |= {"sub/", "sub/deeper/"};
    EXPECT_EQ(contentOf(fDestination), expected) << output.toStdString();
    const QStringList lines = withoutProgress(output).split(u'\n');
    for (const QString& name : movies) {
        const qsizetype size = 8 + name.toUtf8().size();
        EXPECT_EQ(lines.count(QString::number(size) + u' ' + name), 1)
            << name.toStdString() << " in\n"
            << output.toStdString();
        EXPECT_EQ(QFileInfo(fDestination + u'/' + name).lastModified(), fTime);
        QFile copy(fDestination + u'/' + name);
        ASSERT_TRUE(copy.open(QFile::ReadOnly));
        EXPECT_EQ(copy.readAll(), "film of " + name.toUtf8());
    }
    EXPECT_TRUE(output.contains("Number of files")) << output.toStdString();
    EXPECT_TRUE(output.contains("Total transferred file size")) << output.toStdString();
}

TEST_F(FactoryTemplateTest, OtherKinds_BringThemAndNothingElse) {
    for (const char* name : {"a.mov", "b.mkv", "c.MXF", "d.m2ts", "e.mts", "f.wmv", "g.WEBM"})
        make(QString::fromLatin1(name));
    MovieKinds kinds;
    for (std::size_t i = 0; i < cMovieKinds.size(); ++i) {
        const QStringView suffix = cMovieKinds[i].suffix;
        kinds[i] = suffix == u"mxf" || suffix == u"m2ts" || suffix == u"webm";
    }
    fTemplate = templateWithKinds(kinds);
    const QString output = run(fSource + u'/', QString(), QString());
    EXPECT_EQ(contentOf(fDestination), (QSet<QString>{"c.MXF", "d.m2ts", "g.WEBM"}))
        << output.toStdString();
}

TEST_F(FactoryTemplateTest, FolderForHalfFiles_IsThereUnlessItIsTakenAway) {
    const QString half = fDestination + "/.kelvo-partial/a.mov";
    const auto leaveHalf = [&] {
        ASSERT_TRUE(QDir().mkpath(QFileInfo(half).path()));
        QFile file(half);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    };
    make("a.mov");
    run(fSource + u'/', QString(), QString());
    leaveHalf();
    run(fSource + u'/', QString(), QString());
    EXPECT_FALSE(QFile::exists(half)) << "rsync has not looked there";
    leaveHalf();
    fTemplate.prepend(QString::fromLatin1(cPartialVariable) + "=; ");
    run(fSource + u'/', QString(), QString());
    EXPECT_TRUE(QFile::exists(half)) << "rsync has looked there";
}

TEST_F(FactoryTemplateTest, SecondPull_NamesNoFile) {
    make("a.mov");
    run(fSource + u'/', QString(), QString());
    const QString output = run(fSource + u'/', QString(), QString());
    EXPECT_FALSE(output.contains("a.mov")) << output.toStdString();
    EXPECT_TRUE(output.contains("Number of files")) << output.toStdString();
}

TEST_F(FactoryTemplateTest, IgnoreExisting_LeavesTheLocalFile) {
    make("a.mov");
    QFile local(fDestination + "/a.mov");
    ASSERT_TRUE(local.open(QFile::WriteOnly));
    local.write("mine");
    local.close();
    run(fSource + u'/', QString(), "--ignore-existing");
    ASSERT_TRUE(local.open(QFile::ReadOnly));
    EXPECT_EQ(local.readAll(), "mine");
}

TEST_F(FactoryTemplateTest, Failure_IsInTheCapturedText) {
    const QString output = run(fRoot.filePath("absent/"), QString(), QString());
    EXPECT_TRUE(output.contains("rsync")) << output.toStdString();
    EXPECT_TRUE(output.contains("absent")) << output.toStdString();
}

// What rsync 2.6.9 takes as a server that sends, from its manual.
const QString cOldLetters = QStringLiteral("vqcarRbulLkKpEogDtOSnWxBITzCFfhHimPyd0468");
const QSet<QString> cOldOptions{"--server",          "--sender",
                                "--timeout",         "--stats",
                                "--log-format",      "--out-format",
                                "--partial",         "--partial-dir",
                                "--update",          "--ignore-existing",
                                "--existing",        "--recursive",
                                "--times",           "--whole-file",
                                "--no-whole-file",   "--prune-empty-dirs",
                                "--verbose",         "--inplace",
                                "--numeric-ids",     "--max-size",
                                "--min-size",        "--bwlimit",
                                "--size-only",       "--modify-window",
                                "--block-size",      "--checksum-seed",
                                "--no-implied-dirs", "--safe-links",
                                "--delete",          "--from0"};

class OldRemoteTest : public FactoryTemplateTest,
                      public ::testing::WithParamInterface<const char*> {};

TEST_P(OldRemoteTest, Pull_AsksOnlyWhatTheOldRsyncKnows) {
    const QString record = fRoot.filePath("arguments");
    const QString remoteShell = fRoot.filePath("remote-shell");
    QFile script(remoteShell);
    ASSERT_TRUE(script.open(QFile::WriteOnly));
    script.write("#!/bin/sh\nprintf '%s\\n' \"$@\" > '" + record.toUtf8() + "'\nexit 1\n");
    script.setPermissions(QFile::ReadOwner | QFile::ExeOwner);
    script.close();

    run("mediauser@RemoteMac.local:My Movies/", "2>&1 --timeout=5  -e '" + remoteShell + u'\'',
        QString::fromLatin1(GetParam()));

    QFile recorded(record);
    ASSERT_TRUE(recorded.open(QFile::ReadOnly)) << "the remote shell was not started";
    QStringList arguments = QString::fromUtf8(recorded.readAll()).split(u'\n', Qt::SkipEmptyParts);
    const qsizetype server = arguments.indexOf("--server");
    ASSERT_GE(server, 0) << arguments.join(u' ').toStdString();
    const QString all = arguments.join(u' ');
    int clusters = 0;
    for (const QString& argument : arguments.mid(server)) {
        if (argument == ".")
            break;
        if (argument.startsWith("--")) {
            EXPECT_TRUE(cOldOptions.contains(argument.section(u'=', 0, 0))) << all.toStdString();
        } else if (argument.startsWith(u'-')) {
            ++clusters;
            for (const QChar letter : argument.mid(1).section("e.", 0, 0))
                EXPECT_TRUE(cOldLetters.contains(letter)) << all.toStdString();
        } else {
            ADD_FAILURE() << "not expected: " << argument.toStdString();
        }
    }
    EXPECT_EQ(clusters, 1) << all.toStdString();
    EXPECT_TRUE(arguments.contains("--sender")) << all.toStdString();
}

INSTANTIATE_TEST_SUITE_P(Options, OldRemoteTest,
                         ::testing::Values("", "--update", "--ignore-existing"));

} // namespace
} // namespace kelvo
