// Commands that print without end, on this side and over there, and what that costs the built
// program.
#include "support/program_profile.h"
#include "support/running_program.h"
#include "support/sanitized.h"

#include <gtest/gtest.h>

#include <unistd.h>

#include <algorithm>

namespace kelvo {
namespace {

const QString cProgram = QStringLiteral(KELVO_PROGRAM);
constexpr qint64 cMostAboveRest = qint64{64} * 1024; // KiB
constexpr double cPatience = 100;                    // seconds; only a broken program takes them

class FloodSystemTest : public ::testing::Test, public ProgramProfile {
protected:
    std::unique_ptr<RunningProgram> start(const QVariantMap& profile) const {
        write(settingsFile(), plistText(profile));
        return std::make_unique<RunningProgram>(cProgram, cArguments, environment());
    }

    /// The same with `script` in the place of ssh. As long as nothing runs in it, it stays the one
    /// process that was started.
    std::unique_ptr<RunningProgram> startWithSsh(const QByteArray& script,
                                                 const QVariantMap& profile) const {
        write(settingsFile(), plistText(profile));
        write(path(QStringLiteral("ssh")), "#!/bin/sh\n" + script);
        QFile::setPermissions(path(QStringLiteral("ssh")),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        const QStringList ownView{::geteuid() == 0 ? QStringLiteral("-m") : QStringLiteral("-rm"),
                                  QStringLiteral("sh"),
                                  QStringLiteral("-c"),
                                  QStringLiteral("mount --bind \"$0\" /usr/bin/ssh && exec \"$@\""),
                                  path(QStringLiteral("ssh")),
                                  cProgram};
        return std::make_unique<RunningProgram>(QStringLiteral("unshare"), ownView + cArguments,
                                                environment());
    }

    /// In KiB, "VmRSS" or "VmHWM"; -1 when it cannot be read.
    static qint64 memory(const RunningProgram& program, const char* figure) {
        const QByteArray status =
            contents(QStringLiteral("/proc/%1/status").arg(program.processId()));
        const qsizetype at = status.indexOf(figure);
        if (at < 0)
            return -1;
        const QByteArray line = status.mid(at, status.indexOf('\n', at) - at);
        return line.simplified().split(' ').value(1).toLongLong();
    }

    static void expectLittleMemory(const RunningProgram& program, qint64 rest) {
        const qint64 peak = memory(program, "VmHWM");
        ASSERT_GT(peak, 0);
        if (!cSanitized) {
            EXPECT_LE(peak - rest, cMostAboveRest);
        }
    }

    /// Whether a file comes to be while the program runs.
    bool waitForFile(RunningProgram& program, const QString& name) const {
        for (int i = 0; i < 1000 && !QFile::exists(path(name)); ++i)
            program.waitForLine(QStringLiteral("never"), cPatience / 1000);
        return QFile::exists(path(name));
    }

    /// Whether all whose numbers stand there have ended, reaped or not.
    bool areGone(const QString& pidFile) const {
        const QList<QByteArray> pids = contents(path(pidFile)).simplified().split(' ');
        return !pids.first().isEmpty() && std::ranges::all_of(pids, [](const QByteArray& pid) {
            const QByteArray state =
                contents(QStringLiteral("/proc/%1/stat").arg(QLatin1StringView(pid)));
            return state.isEmpty() || state.contains(") Z ");
        });
    }

    const QStringList cArguments{QStringLiteral("--headless")};
};

TEST_F(FloodSystemTest, PullThatPrintsWithoutEnd_TakesLittleMemoryAndEndsWithTheProgram) {
    write(path(QStringLiteral("Camera/a.mov")), "movie");
    QVariantMap profile = plainProfile();
    profile[QStringLiteral("prefRsyncCommandString1")] =
        QStringLiteral("cd '%1'; if [ -e first ]; then echo $$ >pid; exec yes; fi; touch first; "
                       "head -c 300000000 /dev/zero | tr '\\0' x; yes many lines | head -c "
                       "30000000; echo; echo the end")
            .arg(folder.path());
    const auto program = start(profile);
    ASSERT_TRUE(program->waitForLine(QStringLiteral("cmd to send = "), 30));
    const qint64 rest = memory(*program, "VmRSS");
    ASSERT_TRUE(program->waitForLine(QStringLiteral("result from shell command ="), cPatience));
    ASSERT_TRUE(program->waitForLine(QStringLiteral("the end"), 30));
    ASSERT_TRUE(waitForFile(*program, QStringLiteral("pid")));
    expectLittleMemory(*program, rest);
    EXPECT_EQ(program->stop(), 0);
    EXPECT_TRUE(areGone(QStringLiteral("pid")));
    EXPECT_TRUE(program->transcript().contains(QStringLiteral(" more bytes than kept: cd ")));
}

TEST_F(FloodSystemTest, MacWhoseLoginPrintsWithoutEnd_FailsTheCheckAndTakesLittleMemory) {
    const QByteArray pidFile = path(QStringLiteral("pid")).toUtf8();
    const auto program =
        startWithSsh("echo $$ >>'" + pidFile + "'; exec yes Welcome\n",
                     {{QStringLiteral("prefAutoStartScanOnLaunch"), true},
                      {QStringLiteral("prefRsyncWithSSH"), true},
                      {QStringLiteral("prefRemoteUsername"), QStringLiteral("ann")},
                      {QStringLiteral("prefRemoteBonjourName"), QStringLiteral("Remote-Mac.local")},
                      {QStringLiteral("prefRemotePath"), QStringLiteral("Movies")},
                      {QStringLiteral("prefDelayBetweenScans"), 0.1},
                      {QStringLiteral("prefPath2"), folder.path()}});
    if (!program->waitForLine(QStringLiteral("cmd to check valid user"), 30))
        GTEST_SKIP() << "no mount namespace to put a stand-in for ssh into: "
                     << program->transcript().toStdString();
    const qint64 rest = memory(*program, "VmRSS");
    for (const char* count : {"[1]", "[2]"}) {
        EXPECT_TRUE(program->waitForLine(
            QStringLiteral("status red: something went wrong - waiting to retry again... ") +
                QString::fromLatin1(count),
            cPatience))
            << program->transcript().right(2000).toStdString();
    }
    expectLittleMemory(*program, rest);
    EXPECT_EQ(program->stop(), 0);
    EXPECT_TRUE(areGone(QStringLiteral("pid")));
    EXPECT_TRUE(program->transcript().contains(
        QStringLiteral("A shell command was ended after 1048576 bytes of output: /usr/bin/ssh")));
    const Ended passes = runToEnd(cProgram, {QStringLiteral("--passes"), QStringLiteral("--json")});
    EXPECT_TRUE(passes.output.contains("\"login-talks\"")) << passes.output.left(2000).constData();
}

} // namespace
} // namespace kelvo
