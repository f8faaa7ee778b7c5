#include "adapters/process/copy_starter.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <sys/wait.h>

#include <cerrno>

namespace kelvo {
namespace {

class CopyStarterTest : public ::testing::Test {
protected:
    /// A stand-in for the program that writes its words down and ends as told.
    QString program(int exitCode) const {
        const QString path = folder.filePath(QStringLiteral("program"));
        QFile file(path);
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("#!/bin/sh\nprintf '%s,' \"$@\" >'" +
                   folder.filePath(QStringLiteral("new")).toUtf8() + "'\nmv '" +
                   folder.filePath(QStringLiteral("new")).toUtf8() + "' '" + report().toUtf8() +
                   "'\nexit " + QByteArray::number(exitCode) + "\n");
        file.close();
        EXPECT_EQ(::chmod(QFile::encodeName(path).constData(), 0700), 0);
        return path;
    }
    QString report() const { return folder.filePath(QStringLiteral("report")); }
    QByteArray words() const {
        QFile file(report());
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(none)");
    }
    static bool allAreReaped() { return ::waitpid(-1, nullptr, WNOHANG) < 0 && errno == ECHILD; }

    QTemporaryDir folder;
    RecordingConsole console;
};

TEST_F(CopyStarterTest, Copy_GetsItsProfileAndIsReapedAtItsEnd) {
    CopyStarter starter(program(0), console);
    EXPECT_EQ(starter.start({.name = QStringLiteral("East")}), QString());
    EXPECT_TRUE(waitInLoop([this] { return QFile::exists(report()); }));
    EXPECT_EQ(words(), "--profile,East,");
    // Looked at without reaping: the starter does that.
    EXPECT_TRUE(waitInLoop([] {
        siginfo_t found{};
        return ::waitid(P_ALL, 0, &found, WEXITED | WNOHANG | WNOWAIT) < 0 && errno == ECHILD;
    }));
    EXPECT_TRUE(console.logged().isEmpty()) << console.logged().join(u'\n').toStdString();
}

TEST_F(CopyStarterTest, CopyWithoutAProfile_GetsNoWords) {
    CopyStarter starter(program(0), console);
    EXPECT_EQ(starter.start({}), QString());
    EXPECT_TRUE(waitInLoop([this] { return QFile::exists(report()); }));
    EXPECT_EQ(words(), ",") << "what printf makes of nothing";
    EXPECT_TRUE(waitInLoop([] { return allAreReaped(); }));
}

TEST_F(CopyStarterTest, CopyThatEndsBadly_LeavesALine) {
    CopyStarter starter(program(4), console);
    EXPECT_EQ(starter.start({.name = QStringLiteral("East")}), QString());
    EXPECT_TRUE(waitInLoop([this] { return !console.logged().isEmpty(); }));
    EXPECT_TRUE(console.logged().join(u'\n').contains(u"Kelvo Mirror – East"));
}

TEST_F(CopyStarterTest, ProgramThatIsGone_IsSaid) {
    CopyStarter starter(folder.filePath(QStringLiteral("nowhere")), console);
    EXPECT_FALSE(starter.start({.name = QStringLiteral("East")}).isEmpty());
}

} // namespace
} // namespace kelvo
