// One pass and the settings from a terminal: the built program, real rsync between two folders.
#include "support/failing_file.h"
#include "support/partial_option.h"
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/sanitized.h"
#include "support/wait_until.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QProcess>

#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstring>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr auto cEverything = QDir::AllEntries | QDir::System | QDir::Hidden | QDir::NoDotAndDotDot;

class OnceSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    Ended run(const QStringList& arguments) const { return runToEnd(cProgram, arguments); }

    Ended once() const { return run({QStringLiteral("--once"), QStringLiteral("--json")}); }

    static QJsonObject object(const Ended& ended) {
        return QJsonDocument::fromJson(ended.output).object();
    }

    void writeProfile(const QString& key = {}, const QVariant& value = {}) const {
        QVariantMap profile = plainProfile();
        if (!key.isEmpty())
            profile[key] = value;
        write(settingsFile(), plistText(profile));
    }
};

TEST_F(OnceSystemTest, OnePass_BringsTheFilesAndTellsSo) {
    writeProfile();
    write(path(QStringLiteral("Camera/a.mov")), QByteArray(5000, 'a'));
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    const QByteArray settings = contents(settingsFile());
    const Ended ended = once();
    EXPECT_EQ(ended.code, 0) << ended.errors.constData();
    EXPECT_EQ(ended.errors, "");
    EXPECT_EQ(object(ended).value(u"cause"), QStringLiteral("well"));
    EXPECT_EQ(object(ended).value(u"files"), 1);
    EXPECT_EQ(object(ended).value(u"bytes"), 5000);
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))).size(), 5000);
    EXPECT_EQ(contents(settingsFile()), settings) << "flags and texts stay in the process";
    EXPECT_TRUE(QFile::exists(path(QStringLiteral("state/kelvo-mirror/passes.sqlite"))));
}

TEST_F(OnceSystemTest, Passes_ArePrintedFromTheRecordAlone) {
    const QStringList json{QStringLiteral("--passes"), QStringLiteral("--json")};
    const Ended none = run(json);
    EXPECT_EQ(none.code, 0);
    EXPECT_EQ(none.output, "");
    EXPECT_TRUE(none.errors.contains("no record of passes")) << none.errors.constData();
    writeProfile(QStringLiteral("prefPath1"), path(QStringLiteral("unplugged")));
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    (void)once();
    writeProfile();
    write(path(QStringLiteral("Camera/a.mov")), QByteArray(5000, 'a'));
    (void)once();
    const QString record = path(QStringLiteral("state/kelvo-mirror/passes.sqlite"));
    const QByteArray before = contents(record);
    const Ended all = run(json);
    EXPECT_EQ(all.code, 0) << all.errors.constData();
    const auto lines = all.output.trimmed().split('\n');
    ASSERT_EQ(lines.size(), 2);
    const QJsonObject newest = QJsonDocument::fromJson(lines[1]).object();
    EXPECT_EQ(newest.value(u"number"), 2);
    EXPECT_EQ(newest.value(u"files"), 1);
    EXPECT_EQ(run(json + QStringList{QStringLiteral("--since"), QStringLiteral("1h")}).output,
              all.output);
    EXPECT_EQ(
        run(json + QStringList{QStringLiteral("--since"), QStringLiteral("2999-01-01")}).output,
        "");
    EXPECT_TRUE(
        run({QStringLiteral("--passes")}).output.contains("  All is well. (1 file, 5.0 kB, "));
    EXPECT_EQ(contents(record), before);
    write(record, "no database");
    EXPECT_EQ(run(json).code, 6);
    EXPECT_EQ(contents(record), "no database") << "nothing is set aside";
}

TEST_F(OnceSystemTest, PassThatIsNotRecorded_IsToldAndEndsAsItWent) {
    writeProfile();
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    write(path(QStringLiteral("state/kelvo-mirror")), "a file where a folder should be");
    const Ended ended = once();
    EXPECT_EQ(ended.code, 0) << ended.output.constData();
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
    EXPECT_EQ(object(ended).value(u"cause"), QStringLiteral("well"));
    EXPECT_TRUE(
        ended.errors.startsWith("kelvo-mirror: the record of passes does not hold this pass: "))
        << ended.errors.constData();
    EXPECT_EQ(ended.errors.count('\n'), 1);
}

TEST_F(OnceSystemTest, FolderForHalfFiles_IsLeftOutWhenTheRunBeforeLeftNone) {
    const QString told = path(QStringLiteral("told"));
    const QString broken = path(QStringLiteral("broken"));
    writeProfile(QStringLiteral("prefRsyncCommandString1"),
                 QString(u": \"%@1\" \"%@2\"; echo \"[" + cPartialOption + u"]\" >>'" + told +
                         u"'; test ! -e '" + broken + u'\''));
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    const auto toldBy = [&] {
        (void)once();
        const QByteArray line = contents(told);
        QFile::remove(told);
        return line;
    };
    const QByteArray with = "[--partial-dir=.kelvo-partial]\n";
    EXPECT_EQ(toldBy(), with) << "nobody knows what lies there";
    EXPECT_EQ(toldBy(), "[]\n");
    write(broken, "");
    EXPECT_EQ(toldBy(), "[]\n");
    EXPECT_EQ(toldBy(), with) << "a half may lie there";
    QFile::remove(broken);
    EXPECT_EQ(toldBy(), with);
    EXPECT_EQ(toldBy(), "[]\n");
}

TEST_F(OnceSystemTest, MissingSource_IsNamed) {
    writeProfile(QStringLiteral("prefPath1"), path(QStringLiteral("unplugged")));
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    const Ended ended = once();
    EXPECT_EQ(ended.code, 13);
    EXPECT_EQ(object(ended).value(u"cause"), QStringLiteral("source-missing"));
    EXPECT_FALSE(object(ended).value(u"nextStep").toString().isEmpty());
}

TEST_F(OnceSystemTest, FolderThatAnotherProgramPullsInto_IsNamedAndLeftAlone) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    write(path(QStringLiteral("Incoming/kept.txt")), "mine");
    const QString goOn = path(QStringLiteral("go-on"));
    writeProfile(QStringLiteral("prefRsyncCommandString1"),
                 QStringLiteral("echo begun > '%1'; read line < '%2'")
                     .arg(path(QStringLiteral("mark")), goOn));
    ASSERT_EQ(::mkfifo(goOn.toLocal8Bit().constData(), 0600), 0);
    QProcess first;
    first.setProcessEnvironment(environment());
    first.start(cProgram, {QStringLiteral("--once")});
    ASSERT_TRUE(waitUntil([&] { return contents(path(QStringLiteral("mark"))) == "begun\n"; }));

    const ProgramProfile other;
    write(other.settingsFile(), plistText(plainProfile()));
    const Ended taken =
        other.runToEnd(cProgram, {QStringLiteral("--once"), QStringLiteral("--json")});
    EXPECT_EQ(taken.code, 14);
    EXPECT_EQ(object(taken).value(u"cause"), QStringLiteral("destination-taken"));
    EXPECT_FALSE(object(taken).value(u"nextStep").toString().isEmpty());
    EXPECT_EQ(QDir(path(QStringLiteral("Incoming"))).entryList(cEverything),
              QStringList{QStringLiteral("kept.txt")});

    write(goOn, "well\n");
    ASSERT_TRUE(first.waitForFinished());
    EXPECT_EQ(first.exitCode(), 0);
    EXPECT_EQ(other.runToEnd(cProgram, {QStringLiteral("--once")}).code, 0);
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
}

TEST_F(OnceSystemTest, NothingSet_IsNamedForPeople) {
    const Ended ended = run({QStringLiteral("--once")});
    EXPECT_EQ(ended.code, 17);
    EXPECT_TRUE(ended.output.contains("\nNext step: ")) << ended.output.constData();
}

TEST_F(OnceSystemTest, TagThatDoesNotExist_IsNoCrash) {
    writeProfile(QStringLiteral("prefRsyncCommandOptionTag"), 7);
    EXPECT_EQ(once().code, 17);
}

TEST_F(OnceSystemTest, AskedToEnd_EndsItsCommandsAndSaysInterrupted) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    writeProfile(QStringLiteral("prefRsyncCommandString1"),
                 QStringLiteral("echo begun > '%1'; sleep 60").arg(path(QStringLiteral("mark"))));
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(cProgram, {QStringLiteral("--once"), QStringLiteral("--json")});
    for (int i = 0; i < 600 && !QFile::exists(path(QStringLiteral("mark"))); ++i)
        process.waitForFinished(50);
    process.terminate();
    ASSERT_TRUE(process.waitForFinished(20000));
    EXPECT_EQ(process.exitStatus(), QProcess::NormalExit);
    EXPECT_EQ(process.exitCode(), 18);
    EXPECT_TRUE(process.readAllStandardOutput().contains("\"interrupted\""));
}

TEST_F(OnceSystemTest, Settings_AreChangedAndReadFromATerminal) {
    const QString key = QStringLiteral("prefDelayBetweenScans");
    EXPECT_EQ(run({QStringLiteral("--get"), key}).output, "30\n") << "the factory value";
    EXPECT_EQ(run({QStringLiteral("--set"), key, QStringLiteral("-1.5")}).code, 0);
    EXPECT_EQ(run({QStringLiteral("--get"), key}).output, "-1.5\n");
    EXPECT_EQ(run({QStringLiteral("--set"), key, QStringLiteral("often")}).code, 2);
    EXPECT_EQ(run({QStringLiteral("--get"), key}).output, "-1.5\n");
    EXPECT_EQ(object(run({QStringLiteral("--settings")})).value(key), -1.5);
    EXPECT_EQ(run({QStringLiteral("--unset"), key}).code, 0);
    EXPECT_EQ(run({QStringLiteral("--get"), key}).output, "30\n");
    const Ended unset = run({QStringLiteral("--get"), QStringLiteral("prefPath1")});
    EXPECT_EQ(unset.code, 1);
    EXPECT_EQ(unset.output, "");
    EXPECT_TRUE(unset.errors.contains("prefPath1 is not set"));
}

TEST_F(OnceSystemTest, SettingsThatCannotBeStored_AreAnError) {
    write(path(QStringLiteral("config")), "a file where the folder should be");
    const Ended ended =
        run({QStringLiteral("--set"), QStringLiteral("prefPath1"), QStringLiteral("/a")});
    EXPECT_EQ(ended.code, 1);
    EXPECT_TRUE(ended.errors.contains("could not be stored")) << ended.errors.constData();
}

// -- settings that are not known

class FailingSettingsSystemTest : public OnceSystemTest {
protected:
    FailingSettingsSystemTest() {
        writeProfile();
        write(path(QStringLiteral("Camera/a.mov")), "movie");
        fSettings = contents(settingsFile());
    }

    /// Each command that reads settings, run through `launcher`, ends with code 5 and a reason.
    void expectLeftAlone(const QStringList& launcher, const QByteArray& reason) const {
        const QString key = QStringLiteral("prefPath1");
        for (const QStringList& command :
             {QStringList{QStringLiteral("--get"), key}, QStringList{QStringLiteral("--settings")},
              QStringList{QStringLiteral("--set"), key, QStringLiteral("/x")},
              QStringList{QStringLiteral("--unset"), key}, QStringList{QStringLiteral("--once")},
              QStringList{QStringLiteral("--once"), QStringLiteral("--json")}}) {
            const QStringList all = launcher + QStringList{cProgram} + command;
            const Ended ended = runToEnd(all.first(), all.mid(1));
            EXPECT_EQ(ended.code, 5) << all.join(u' ').toStdString();
            EXPECT_EQ(ended.output, "") << all.join(u' ').toStdString();
            EXPECT_TRUE(ended.errors.startsWith("kelvo-mirror: The settings in ") &&
                        ended.errors.contains(reason))
                << ended.errors.constData();
        }
        expectUntouched();
    }
    void expectUntouched() const {
        EXPECT_EQ(contents(settingsFile()), fSettings);
        EXPECT_EQ(QFileInfo(settingsFile()).dir().entryList(QDir::Files),
                  (QStringList{QStringLiteral("preferences.plist"),
                               QStringLiteral("preferences.plist.lock")}));
        EXPECT_FALSE(QFile::exists(path(QStringLiteral("Incoming/a.mov")))) << "no pass on guesses";
    }

    QByteArray fSettings;
};

class FailingSettingsFileSystemTest : public FailingSettingsSystemTest,
                                      public ::testing::WithParamInterface<FileFailure> {
protected:
    QStringList failing() const {
        return {QStringLiteral("env"), QStringLiteral("LD_PRELOAD=" KELVO_FAILING_FILE),
                u"FAILING_FILE=" + settingsFile(),
                u"FAILING_CALL=" + QString::fromLatin1(GetParam().call),
                u"FAILING_ERRNO=" + QString::number(GetParam().error)};
    }
};

TEST_P(FailingSettingsFileSystemTest, Commands_SaySoAndLeaveItAlone) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer's library must be the first one that is loaded";
    expectLeftAlone(failing(), std::strerror(GetParam().error));
}

INSTANTIATE_TEST_SUITE_P(Errors, FailingSettingsFileSystemTest, ::testing::ValuesIn(fileFailures()),
                         [](const auto& tested) { return tested.param.text(); });

TEST_F(FailingSettingsSystemTest, DamagedSettings_AreLeftAloneByCommands) {
    fSettings.truncate(fSettings.size() / 2);
    write(settingsFile(), fSettings);
    expectLeftAlone({}, "its end is missing");
}

TEST_F(FailingSettingsSystemTest, FewDescriptors_CostNoSettings) {
    for (int limit = 4; limit <= 40; ++limit) {
        const Ended ended = runToEnd(
            QStringLiteral("/bin/sh"),
            {QStringLiteral("-c"), QStringLiteral("ulimit -n \"$1\"; exec \"$0\" --get prefPath1"),
             cProgram, QString::number(limit)});
        EXPECT_TRUE(ended.code != 0 ||
                    ended.output == QString(path(QStringLiteral("Camera")) + u'\n').toUtf8())
            << limit << ": " << ended.output.constData();
        ASSERT_EQ(contents(settingsFile()), fSettings) << limit;
    }
    ASSERT_EQ(run({QStringLiteral("--get"), QStringLiteral("prefPath1")}).code, 0);
    expectUntouched();
}

TEST_F(FailingSettingsSystemTest, RunningProgram_BeginsOnceTheFileCanBeRead) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer's library must be the first one that is loaded";
    const QString condition = path(QStringLiteral("failing"));
    write(condition, "");
    QProcessEnvironment failing = environment();
    failing.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KELVO_FAILING_FILE));
    failing.insert(QStringLiteral("FAILING_FILE"), settingsFile());
    failing.insert(QStringLiteral("FAILING_CALL"), QStringLiteral("open"));
    failing.insert(QStringLiteral("FAILING_ERRNO"), QString::number(EIO));
    failing.insert(QStringLiteral("FAILING_WHILE"), condition);
    RunningProgram program(cProgram, {QStringLiteral("--headless")}, failing);
    ASSERT_TRUE(program.waitForLine(QStringLiteral("Got version = "), 30));
    expectUntouched();
    ASSERT_TRUE(QFile::remove(condition));
    ASSERT_TRUE(program.waitForLine(QStringLiteral("result from shell command ="), 60))
        << program.transcript().toStdString();
    EXPECT_EQ(program.stop(), 0);
    EXPECT_EQ(contents(path(QStringLiteral("Incoming/a.mov"))), "movie");
    const QStringList told = program.transcript().split(u'\n').filter(
        QStringLiteral("are not known: Input/output error"));
    EXPECT_EQ(told.size(), 2) << "once in the log, once as the health";
    EXPECT_EQ(told.filter(QStringLiteral("health: ")).size(), 1);
    EXPECT_EQ(run({QStringLiteral("--get"), QStringLiteral("prefPath1")}).output,
              QString(path(QStringLiteral("Camera")) + u'\n').toUtf8());
}

TEST_F(OnceSystemTest, CrowdedCommandLines_AreRefused) {
    for (const QStringList& arguments :
         {QStringList{QStringLiteral("--once"), QStringLiteral("--headless")},
          QStringList{QStringLiteral("--json")}, QStringList{QStringLiteral("--set=a")},
          QStringList{QStringLiteral("--once"), QStringLiteral("--get"), QStringLiteral("a")},
          QStringList{QStringLiteral("--get")}})
        EXPECT_EQ(run(arguments).code, 2) << arguments.join(u' ').toStdString();
    EXPECT_FALSE(QFile::exists(settingsFile()));
}

} // namespace
} // namespace kelvo
