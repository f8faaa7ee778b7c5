// Remote passes against rsyncs of another age, and against a login that talks: the real rsync on
// both sides, joined by a stand-in for ssh.
#include "adapters/process/posix_shell_runner.h"
#include "fakes/memory_whole_pull.h"
#include "fakes/recording_console.h"
#include "passes/running_pass.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"
#include "sync/rsync_command.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class FarEndTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (!QFileInfo(QStringLiteral("/usr/bin/rsync")).isExecutable())
            GTEST_SKIP() << "there is no /usr/bin/rsync";
        for (const char* name : {"there/one.mov", "there/two.mp4", "there/sub/three.mov", "here/"})
            make(QString::fromLatin1(name));
    }

    void make(const QString& name) {
        const QString path = fRoot.filePath(name);
        ASSERT_TRUE(QDir().mkpath(QFileInfo(path).path()));
        QFile file(path);
        if (!name.endsWith(u'/')) {
            ASSERT_TRUE(file.open(QFile::WriteOnly));
            file.write("movie");
        }
    }

    /// The other side from now on: what its login prints, and the options of its rsync. Another
    /// rsync takes its place with KELVO_RSYNC_THERE=/path.
    void setFarEnd(const QByteArray& says, const QByteArray& options) {
        QFile script(fSsh);
        ASSERT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\nwhile [ \"${1#-}\" != \"$1\" ]; do shift 2; done\nshift\n"
                     "printf '" +
                     says + "'\nrsync() { '" + fRsync + "' " + options +
                     " \"$@\"; }\neval \"$*\"\n");
        script.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }

    static QString factory() {
        return factoryValue(*preference(prefRsyncCommandString1)).toString();
    }
    static QString withoutPruning() {
        return factory().remove(QStringLiteral(" --prune-empty-dirs"));
    }

    QString filled(const QString& command) const {
        const QString source = u"ann@Mac.local:" + fRoot.filePath(QStringLiteral("there"));
        return filledCommand(command, {source, fRoot.filePath(QStringLiteral("here")), fKey}, u"")
            .value_or(QString())
            .replace(QStringLiteral("'ssh -i "), u"'" + fSsh + u" -i ");
    }

    PassRecord passWith(const QString& rsyncTemplate) {
        {
            RunningPass pass(fPasses, PassKind::Remote);
            pass.judged(HostVerdict::Valid);
            (void)pass.run(PassStep::Pull, {.text = filled(rsyncTemplate)});
            (void)pass.run(PassStep::Movies, {.text = filled(cMovieCommandTemplate.toString())});
        }
        return fRecords.back();
    }

    QStringList brought() const {
        return QDir(fRoot.filePath(QStringLiteral("here"))).entryList(QDir::Files, QDir::Name);
    }

    static std::string textOf(const PassRecord& record) {
        QString text;
        for (const CommandRecord& command : record.commands)
            text += u"$ " + command.command + u'\n' + command.text.head;
        return text.toStdString();
    }

    const QByteArray fRsync =
        qEnvironmentVariable("KELVO_RSYNC_THERE", QStringLiteral("/usr/bin/rsync")).toUtf8();
    QTemporaryDir fRoot;
    const QString fSsh = fRoot.filePath(QStringLiteral("ssh"));
    const QString fKey = QStringLiteral("/home/ann/.ssh/id_kelvoRsync");
    RecordingConsole fConsole;
    PosixShellRunner fRunner{fConsole};
    std::vector<PassRecord> fRecords;
    RunningPasses fPasses{fRunner,
                          {&QDateTime::currentDateTimeUtc, [] { return 0.0; }},
                          memoryWholePull(),
                          [this](const PassRecord& record) { fRecords.push_back(record); }};
};

const QStringList cUppermost{QStringLiteral("one.mov"), QStringLiteral("two.mp4")};

class ProtocolTest : public FarEndTest, public ::testing::WithParamInterface<int> {
protected:
    void SetUp() override {
        FarEndTest::SetUp();
        setFarEnd("", "--protocol=" + QByteArray::number(GetParam()));
    }
};

class SpokenProtocolTest : public ProtocolTest {};
class OldProtocolTest : public ProtocolTest {};

TEST_P(SpokenProtocolTest, BothCommands_AreUnderstood) {
    const PassRecord record = passWith(factory());
    EXPECT_EQ(record.cause, PassCause::Well) << textOf(record);
    EXPECT_EQ(record.commands.at(1).exitStatus, 0) << textOf(record);
    EXPECT_EQ(record.transfer.files, 3) << textOf(record);
    EXPECT_EQ(brought(), cUppermost);
}

INSTANTIATE_TEST_SUITE_P(From29On, SpokenProtocolTest, ::testing::Values(29, 30, 31, 32),
                         ::testing::PrintToStringParamName());

TEST_P(OldProtocolTest, Template_IsRefusedAndBringsNothing) {
    for (const QString& rsyncTemplate :
         {factory(), QStringLiteral("/usr/bin/rsync %@98 -rvm \"%@1\" \"%@2\""),
          QStringLiteral("/usr/bin/rsync %@98 -rm \"%@1\" \"%@2\"")}) {
        const PassRecord record = passWith(rsyncTemplate);
        EXPECT_EQ(record.cause, PassCause::RsyncTooOldThere) << textOf(record);
        EXPECT_EQ(record.transfer.files, 0) << textOf(record);
        EXPECT_EQ(record.transfer.bytes, 0) << textOf(record);
    }
    EXPECT_EQ(brought(), QStringList());
}

TEST_P(OldProtocolTest, TemplateWithoutTheOption_BringsEverythingAndThatIsWell) {
    for (const QString& rsyncTemplate :
         {withoutPruning(), QStringLiteral("/usr/bin/rsync %@98 -rt \"%@1\" \"%@2\"")}) {
        const PassRecord record = passWith(rsyncTemplate);
        EXPECT_EQ(record.cause, PassCause::Well) << textOf(record);
        EXPECT_EQ(record.commands.at(1).exitStatus, 2) << textOf(record);
    }
    EXPECT_EQ(fRecords.front().transfer.files, 3);
    EXPECT_EQ(brought(), cUppermost);
}

TEST_P(OldProtocolTest, TemplateThatLeavesMoviesOut_IsSaidToBeAlone) {
    const PassRecord record =
        passWith(QStringLiteral("/usr/bin/rsync %@98 -rtv -f '- *.mp4' \"%@1\" \"%@2\""));
    EXPECT_EQ(record.cause, PassCause::MovieCommandRefused) << textOf(record);
    EXPECT_EQ(record.transfer.files, 2) << textOf(record);
    EXPECT_EQ(brought(), QStringList(QStringLiteral("one.mov")));
}

INSTANTIATE_TEST_SUITE_P(Before29, OldProtocolTest, ::testing::Values(27, 28),
                         ::testing::PrintToStringParamName());

TEST_F(FarEndTest, LoginThatTalksBeforeRsync_IsNamedAndBringsNothing) {
    for (const char* says : {"Welcome to the projection room\n", "Hi", "\033[1mHello\033[0m\n",
                             "You have mail.\nLast login: today\n"}) {
        setFarEnd(says, "");
        for (const QString& rsyncTemplate :
             {factory(), QStringLiteral("/usr/bin/rsync %@98 -rv \"%@1\" \"%@2\"")}) {
            const PassRecord record = passWith(rsyncTemplate);
            EXPECT_EQ(record.cause, PassCause::LoginTalks) << says << textOf(record);
            EXPECT_EQ(record.transfer.files, 0) << says << textOf(record);
        }
    }
    EXPECT_EQ(brought(), QStringList());
}

TEST_F(FarEndTest, LoginThatTalksToTheErrorsOnly_HarmsNothing) {
    setFarEnd("Welcome there\\n' >&2; printf '", "");
    EXPECT_EQ(passWith(factory()).cause, PassCause::Well);
}

TEST_F(FarEndTest, FilterThatIsTooModern_IsAnOptionToTakeOut) {
    setFarEnd("", "--protocol=28");
    const PassRecord record =
        passWith(QStringLiteral("/usr/bin/rsync %@98 -rv -f ': .rules' \"%@1\" \"%@2\""));
    EXPECT_EQ(record.cause, PassCause::RsyncTooOldThere) << textOf(record);
    EXPECT_EQ(record.transfer.files, 0) << textOf(record);
}

} // namespace
} // namespace kelvo
