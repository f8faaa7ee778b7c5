// The program itself, headless, and each signal from 1 to 15: how it ends, and whether it comes
// back.
#include "support/descendants.h"
#include "support/wait_until.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <signal.h>
#include <spawn.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

#include <array>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace kelvo {
namespace {

const QByteArray cLoaded = "Inside Kelvo_Mirror.ViewController->viewDidLoad().......\n";
const QByteArray cRelaunched = "automatically relaunched due to unexpected termination\n";
const QByteArray cSentinelEnded = "watchdog has terminated with exit code 0\n";

QByteArray contents(const QString& path) {
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QByteArray ofProcess(pid_t pid, const char* what) {
    return contents(QStringLiteral("/proc/%1/%2").arg(pid).arg(QLatin1StringView(what)));
}

class ProgramSignalTest : public ::testing::TestWithParam<int> {
protected:
    void SetUp() override {
        const rlimit none{0, 0};
        ::setrlimit(RLIMIT_CORE, &none);
        adoptOrphans();
    }
    void TearDown() override { endAllDescendants("watchdog"); }

    /// Starts the program by hand, with folders of its own.
    pid_t start() {
        std::vector<std::string> texts{"KELVO_TEST_MARK=a = b\nc"};
        for (const char* name : {"XDG_CONFIG_HOME", "XDG_STATE_HOME", "XDG_RUNTIME_DIR"})
            texts.push_back(std::string(name) + "=" + fFolder.path().toStdString());
        std::vector<char*> environment;
        for (std::string& text : texts)
            environment.push_back(text.data());
        for (char** entry = environ; *entry != nullptr; ++entry) {
            if (!std::string_view(*entry).starts_with("XDG_"))
                environment.push_back(*entry);
        }
        environment.push_back(nullptr);
        std::string program = KELVO_PROGRAM;
        std::string option = "--headless";
        const std::array<char*, 3> arguments = {program.data(), option.data(), nullptr};
        pid_t pid = -1;
        EXPECT_EQ(::posix_spawn(&pid, program.c_str(), nullptr, nullptr, arguments.data(),
                                environment.data()),
                  0);
        return pid;
    }

    qsizetype said(const QByteArray& text) const {
        return contents(fFolder.filePath(QStringLiteral("Kelvo/kelvo-mirror.log"))).count(text);
    }
    bool waitUntilSaid(const QByteArray& text, qsizetype times) const {
        return waitUntil([&] { return said(text) >= times; });
    }
    /// The dates of relaunches in the settings file.
    qsizetype record() const {
        return contents(fFolder.filePath(QStringLiteral("kelvo-mirror/preferences.plist")))
            .count("<real>");
    }

    void endInOrder(pid_t pid) const {
        const qsizetype starts = said(cLoaded);
        ::kill(pid, SIGTERM);
        const auto status = statusOf(pid);
        ASSERT_TRUE(status);
        EXPECT_TRUE(WIFEXITED(*status));
        EXPECT_EQ(WEXITSTATUS(*status), 0);
        EXPECT_TRUE(allEnd()) << "something is left";
        EXPECT_EQ(said(cLoaded), starts) << "it came back";
    }

    const QTemporaryDir fFolder;
};

TEST_P(ProgramSignalTest, HasItsReaction) {
    const int number = GetParam();
    const QByteArray description = ::strsignal(number);
    const QByteArray caught("Caught " + description + " ... ");
    pid_t pid = start();
    ASSERT_TRUE(waitUntilSaid(cLoaded, 1));
    const QByteArray environment = ofProcess(pid, "environ");
    const QByteArray arguments = ofProcess(pid, "cmdline");
    const QByteArray relaunchArguments(arguments + QByteArray("--autorelaunched\0", 17));
    ASSERT_TRUE(environment.contains("KELVO_TEST_MARK=a = b\nc"));

    if (number == SIGHUP) {
        ASSERT_EQ(::kill(pid, number), 0);
        EXPECT_TRUE(waitUntilSaid(caught + "ignoring.", 1));
        EXPECT_EQ(::waitpid(pid, nullptr, WNOHANG), 0) << "it runs on";
        endInOrder(pid);
        EXPECT_EQ(record(), 0);
        return;
    }
    if (number == SIGTERM) {
        endInOrder(pid);
        EXPECT_EQ(said(caught + "terminating."), 1);
        EXPECT_EQ(said(cSentinelEnded), 1);
        EXPECT_EQ(said(cRelaunched), 0);
        EXPECT_EQ(record(), 0);
        return;
    }
    for (qsizetype round = 1; round <= 2; ++round) {
        const auto sentinel = livingChild(pid, "watchdog");
        ASSERT_TRUE(sentinel);
        ASSERT_EQ(::kill(pid, number), 0);
        const auto status = statusOf(pid);
        ASSERT_TRUE(status);
        if (number == SIGKILL)
            EXPECT_TRUE(WIFSIGNALED(*status) && WTERMSIG(*status) == SIGKILL) << *status;
        else
            EXPECT_TRUE(WIFEXITED(*status) && WEXITSTATUS(*status) == number) << *status;
        ASSERT_TRUE(waitUntilSaid(cLoaded, round + 1)) << "not relaunched";
        pid = *sentinel;
        EXPECT_EQ(ofProcess(pid, "cmdline"), relaunchArguments);
        EXPECT_EQ(ofProcess(pid, "environ"), environment);
        EXPECT_EQ(said(cRelaunched), round);
        EXPECT_TRUE(waitUntil([&] { return record() == round; })) << record();
        EXPECT_EQ(said(caught), 0) << "the signal itself is not logged";
    }
    endInOrder(pid);
}

INSTANTIATE_TEST_SUITE_P(Numbers, ProgramSignalTest, ::testing::Range(1, 16));

} // namespace
} // namespace kelvo
