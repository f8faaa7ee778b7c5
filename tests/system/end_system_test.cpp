// The built program ends when asked, and loses nothing, whatever it was started with.
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/sanitized.h"
#include "support/virtual_display.h"
#include "support/wait_until.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
const QString cStarted = QStringLiteral("Got version = ");
const QString cPassDone = QStringLiteral("result from shell command =");

class EndSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    EndSystemTest() {
        write(settingsFile(), fSettings);
        write(path(QStringLiteral("Camera/a.mov")), "movie");
        QDir().mkpath(path(QStringLiteral("Incoming")));
    }

    /// The shell runs `script`, in which "$@" is the program with its arguments.
    std::unique_ptr<RunningProgram> start(const QString& script,
                                          const QStringList& arguments) const {
        return std::make_unique<RunningProgram>(
            QStringLiteral("/bin/sh"),
            QStringList{QStringLiteral("-c"), script, QStringLiteral("sh"), cProgram} + arguments,
            fEnvironment);
    }
    Ended runToEnd(const QString& script, const QStringList& arguments) const {
        return ProgramProfile::runToEnd(
            QStringLiteral("/bin/sh"),
            QStringList{QStringLiteral("-c"), script, QStringLiteral("sh"), cProgram} + arguments);
    }

    /// From now on the program has a window; false without a display.
    bool useDisplay() {
        const QString name = fDisplay.start();
        fEnvironment.insert(QStringLiteral("DISPLAY"), name);
        fEnvironment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("xcb"));
        return !name.isEmpty();
    }

    QString setting(const char* key) const {
        return QString::fromUtf8(ProgramProfile::runToEnd(
                                     cProgram, {QStringLiteral("--get"), QString::fromLatin1(key)})
                                     .output)
            .trimmed();
    }
    void expectSettings() const {
        EXPECT_EQ(setting("prefPath1"), path(QStringLiteral("Camera")));
        EXPECT_EQ(setting("prefPath2"), path(QStringLiteral("Incoming")));
        EXPECT_EQ(QFileInfo(settingsFile()).dir().entryList({QStringLiteral("*.corrupt-*")}),
                  QStringList());
    }

    const QByteArray fSettings = plistText(plainProfile());
    VirtualDisplay fDisplay;
    QProcessEnvironment fEnvironment = environment();
};

const QString cBlocked =
    QStringLiteral("exec env --block-signal=TERM,INT,HUP --ignore-signal=XFSZ \"$@\"");

TEST_F(EndSystemTest, BlockedSignals_EndItAllTheSame) {
    const auto program = start(cBlocked, {QStringLiteral("--headless")});
    ASSERT_TRUE(program->waitForLine(cPassDone, 30)) << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
    expectSettings();
}

TEST_F(EndSystemTest, BlockedSignals_EndTheWindow) {
    if (!useDisplay())
        GTEST_SKIP() << "no Xvfb on this machine to open a window on";
    const auto program = start(cBlocked, {});
    ASSERT_TRUE(program->waitForLine(cPassDone, 60)) << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
}

TEST_F(EndSystemTest, BlockedSignals_EndOnePass) {
    QVariantMap profile = plainProfile();
    const QString mark = path(QStringLiteral("mark"));
    profile[QStringLiteral("prefRsyncCommandString1")] =
        QString(u"echo begun > '" + mark + u"'; sleep 600");
    write(settingsFile(), plistText(profile));
    const auto program = start(cBlocked, {QStringLiteral("--once"), QStringLiteral("--json")});
    ASSERT_TRUE(waitUntil([&] { return QFile::exists(mark); }, std::chrono::seconds(30)));
    EXPECT_EQ(program->stop(), 18) << program->transcript().toStdString();
    EXPECT_TRUE(program->transcript().contains(QStringLiteral("interrupted")));
}

TEST_F(EndSystemTest, LogThatIsAPipe_IsSaidAndNotWaitedFor) {
    QDir().mkpath(QFileInfo(logFile()).path());
    ASSERT_EQ(::mkfifo(QFile::encodeName(logFile()).constData(), 0600), 0);
    for (const bool withWindow : {false, true}) {
        if (withWindow && !useDisplay())
            break;
        const auto program =
            start(QStringLiteral("exec \"$@\""),
                  withWindow ? QStringList() : QStringList{QStringLiteral("--headless")});
        ASSERT_TRUE(program->waitForLine(cPassDone, 60)) << program->transcript().toStdString();
        EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
        EXPECT_TRUE(program->transcript().contains(u"Cannot write the log file " + logFile()));
    }
}

TEST_F(EndSystemTest, FullPipesAsStandardStreams_HoldUpNothing) {
    const QString pipe = path(QStringLiteral("full"));
    ASSERT_EQ(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
    const int end = ::open(QFile::encodeName(pipe).constData(), O_RDWR | O_NONBLOCK | O_CLOEXEC);
    ASSERT_GE(end, 0);
    while (::write(end, "x", 1) == 1) {
    }
    const QString script = u"exec \"$@\" >'" + pipe + u"' 2>&1";
    for (const bool withWindow : {false, true}) {
        if (withWindow && !useDisplay())
            break;
        QFile::remove(path(QStringLiteral("Incoming/a.mov")));
        const auto program =
            start(script, withWindow ? QStringList() : QStringList{QStringLiteral("--headless")});
        ASSERT_TRUE(waitUntil([&] { return QFile::exists(path(QStringLiteral("Incoming/a.mov"))); },
                              std::chrono::seconds(60)));
        EXPECT_EQ(program->stop(), 0) << withWindow;
    }
    // What only prints waits for its reader, until it is told to end.
    for (const char* option : {"--help", "--once", "--passes", "--settings"}) {
        const auto program = start(script, {QString::fromLatin1(option)});
        (void)program->waitForLine(QStringLiteral("never said"), 2);
        (void)program->stop();
        EXPECT_FALSE(program->isRunning()) << option;
    }
    ::close(end);
    expectSettings();
}

class FileSizeTest : public EndSystemTest, public ::testing::WithParamInterface<int> {
protected:
    QString limited() const { return QStringLiteral("ulimit -f %1; exec \"$@\"").arg(GetParam()); }
};

TEST_P(FileSizeTest, FilesThatMayNotGrow_EndAndCostNothing) {
    const QString home = QStringLiteral("home");
    for (const bool withWindow : {false, true}) {
        if (withWindow && !useDisplay())
            break;
        const auto program = start(
            limited(), withWindow ? QStringList() : QStringList{QStringLiteral("--headless")});
        ASSERT_TRUE(program->waitForLine(cPassDone, 60)) << program->transcript().toStdString();
        EXPECT_EQ(program->stop(), 0) << program->transcript().toStdString();
        EXPECT_FALSE(program->transcript().contains(QStringLiteral("--autorelaunched")));
    }
    expectSettings();
    for (const QStringList& command :
         {QStringList{QStringLiteral("--once"), QStringLiteral("--json")},
          QStringList{QStringLiteral("--set"), QStringLiteral("prefPath1"), path(home)},
          QStringList{QStringLiteral("--settings")}, QStringList{QStringLiteral("--passes")}}) {
        const Ended ended = runToEnd(limited(), command);
        EXPECT_NE(ended.code, -1) << command.join(u' ').toStdString() << ended.errors.constData();
        if (command.constFirst() == u"--set") {
            EXPECT_EQ(setting("prefPath1"),
                      ended.code == 0 ? path(home) : path(QStringLiteral("Camera")));
        }
    }
}

// In blocks of 512 bytes: nothing at all, less than a page of the record, less than the log.
INSTANTIATE_TEST_SUITE_P(Blocks, FileSizeTest, ::testing::Values(0, 4, 16));

TEST_F(EndSystemTest, FewDescriptors_AreSaidBeforeAnythingIsDone) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer needs descriptors of its own";
    const bool withWindow = useDisplay();
    for (int limit = 12; limit <= 64; limit += limit < 60 ? 6 : 1) {
        const QString script = QStringLiteral("ulimit -n %1; exec \"$@\"").arg(limit);
        for (const char* option : {"--headless", "--once", ""}) {
            if (*option == '\0' && !withWindow)
                continue;
            const QByteArray name = QByteArray(option) + ' ' + QByteArray::number(limit);
            const auto program = start(
                script, *option != '\0' ? QStringList{QString::fromLatin1(option)} : QStringList());
            if (limit >= 64) {
                const bool once = QLatin1StringView(option) == u"--once";
                (void)program->waitForLine(once ? QStringLiteral("never said") : cPassDone, 60);
                EXPECT_EQ(program->stop(), 0)
                    << name.constData() << program->transcript().toStdString();
                continue;
            }
            (void)program->waitForLine(QStringLiteral("never said"), 60);
            EXPECT_FALSE(program->isRunning()) << name.constData();
            EXPECT_EQ(program->stop(), 7) << name.constData();
            EXPECT_TRUE(program->transcript().contains(QStringLiteral("ulimit -n 64")))
                << program->transcript().toStdString();
            ASSERT_EQ(contents(settingsFile()), fSettings) << name.constData();
        }
        for (const char* command : {"--get", "--passes", "--settings", "--set", "--version"}) {
            QStringList arguments{QString::fromLatin1(command)};
            if (arguments.constFirst() == u"--get" || arguments.constFirst() == u"--set")
                arguments << QStringLiteral("prefPath1");
            if (arguments.constFirst() == u"--set")
                arguments << path(QStringLiteral("Camera"));
            const Ended ended = runToEnd(script, arguments);
            EXPECT_TRUE(ended.code == 0 || (ended.code > 0 && !ended.errors.isEmpty()))
                << command << ' ' << limit << ' ' << ended.code;
        }
    }
    expectSettings();
}

TEST_F(EndSystemTest, LimitThatMayBeRaised_IsRaised) {
    const auto program =
        start(QStringLiteral("ulimit -S -n 16; exec \"$@\""), {QStringLiteral("--headless")});
    EXPECT_TRUE(program->waitForLine(cPassDone, 60)) << program->transcript().toStdString();
    EXPECT_EQ(program->stop(), 0);
}

} // namespace
} // namespace kelvo
