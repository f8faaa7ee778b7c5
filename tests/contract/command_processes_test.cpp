#include "adapters/process/command_processes.h"
#include "adapters/system/clean_attributes.h"
#include "adapters/system/unique_fd.h"
#include "support/wait_until.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <signal.h>
#include <spawn.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <time.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <set>
#include <string>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

/// Stays without becoming another program: in the middle of that nobody sees its variables.
const std::string cStays = "kill -STOP $$";

/// A shell with a session and variables of its own.
class Shell {
public:
    explicit Shell(std::string text, std::string variable = "NOTHING=1") {
        std::string name = "sh";
        std::string option = "-c";
        const std::array<char*, 4> arguments{name.data(), option.data(), text.data(), nullptr};
        std::string path = "PATH=/usr/bin:/bin";
        const std::array<char*, 3> variables{path.data(), variable.data(), nullptr};
        EXPECT_EQ(::posix_spawn(&fPid, "/bin/sh", nullptr, CleanAttributes().get(),
                                arguments.data(), variables.data()),
                  0);
    }
    ~Shell() {
        ::kill(-fPid, SIGKILL);
        ::waitpid(fPid, nullptr, 0);
    }
    Shell(const Shell&) = delete;
    Shell& operator=(const Shell&) = delete;

    pid_t pid() const { return fPid; }

    /// A little after a start nobody sees the variables yet.
    bool comesToShow(const std::string& variable) const {
        return waitUntil([&] {
            return std::ranges::count(livingProcesses({{}, variable}), fPid) == 1;
        });
    }

    CommandProcesses session() const { return {{&fPid, 1}, {}}; }

    /// Waits for its end without reaping it; returns the signal that ended it, or 0.
    int end() const {
        siginfo_t ended{};
        EXPECT_EQ(::waitid(P_PID, static_cast<id_t>(fPid), &ended, WEXITED | WNOWAIT), 0);
        return ended.si_code == CLD_KILLED ? ended.si_status : 0;
    }

private:
    pid_t fPid = -1;
};

TEST(CommandProcessesTest, LookFromANumberOn_SeesWhatCameLater) {
    const Shell first(cStays, "KELVO_TEST_MARK=78");
    const Shell second(cStays, "KELVO_TEST_MARK=78");
    if (second.pid() < first.pid())
        GTEST_SKIP() << "the numbers of processes have come round just now";
    EXPECT_TRUE(first.comesToShow("KELVO_TEST_MARK=78"));
    EXPECT_TRUE(second.comesToShow("KELVO_TEST_MARK=78"));
    EXPECT_EQ(livingProcesses({{}, "KELVO_TEST_MARK=78"}, second.pid()), std::vector{second.pid()});
    EXPECT_TRUE(numbersStillRise(second.pid()));
    EXPECT_FALSE(numbersStillRise(1 << 30)) << "they have come round";
}

TEST(CommandProcessesTest, MarkOrSession_MakesAProcessOneOfThem) {
    const Shell ours(cStays, "KELVO_TEST_MARK=77");
    const Shell longer(cStays, "KELVO_TEST_MARK=777");
    const Shell other(cStays, "AKELVO_TEST_MARK=77");
    const Shell unmarked(cStays);
    const pid_t sessions = unmarked.pid();
    ASSERT_TRUE(ours.comesToShow("KELVO_TEST_MARK=77"));
    ASSERT_TRUE(longer.comesToShow("KELVO_TEST_MARK=777"));
    ASSERT_TRUE(other.comesToShow("AKELVO_TEST_MARK=77"));
    EXPECT_EQ(livingProcesses({{}, "KELVO_TEST_MARK=77"}), std::vector{ours.pid()});
    EXPECT_EQ(livingProcesses(unmarked.session()), std::vector{unmarked.pid()});
    EXPECT_EQ(livingProcesses({{&sessions, 1}, "KELVO_TEST_MARK=777"}).size(), 2U);
    EXPECT_EQ(livingProcesses({}), std::vector<pid_t>());
}

TEST(CommandProcessesTest, MarkBeforeAllOtherVariables_IsSeen) {
    const Shell ours("exec env -i KELVO_TEST_MARK=78 PATH=/usr/bin:/bin sleep 600");
    EXPECT_TRUE(waitUntil([&] {
        return livingProcesses({{}, "KELVO_TEST_MARK=78"}) == std::vector{ours.pid()};
    }));
}

TEST(CommandProcessesTest, OneStreamIntoAPipe_MakesAProcessOneOfThem) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
    const UniqueFd reading(ends[0]);
    const UniqueFd writing(ends[1]);
    struct stat status {};
    ASSERT_EQ(::fstat(ends[0], &status), 0);
    const std::string pipe =
        "/proc/" + std::to_string(::getpid()) + "/fd/" + std::to_string(ends[1]);
    const Shell output("exec sleep 600 >" + pipe + " 2>/dev/null");
    const Shell errors("exec sleep 600 2>" + pipe + " >/dev/null");
    const std::array pipes{status.st_ino};
    EXPECT_TRUE(waitUntil([&] {
        const std::vector<pid_t> found =
            livingProcesses({.sessions = {}, .mark = {}, .pipes = pipes});
        return std::set(found.begin(), found.end()) == std::set{output.pid(), errors.pid()};
    }));
}

TEST(CommandProcessesTest, ThisProcess_IsNoneOfThem) {
    const pid_t session = ::getsid(0);
    EXPECT_EQ(std::ranges::count(livingProcesses({{&session, 1}, {}}), ::getpid()), 0);
}

TEST(CommandProcessesTest, ProcessThatIsNot_HasNoStart) {
    EXPECT_GT(startOf(::getpid()), 0U);
    EXPECT_EQ(startOf(1 << 30), 0U);
}

TEST(CommandProcessesTest, ProcessThatWaitsToBeReaped_IsNotLiving) {
    const Shell shell("exit 3");
    EXPECT_EQ(shell.end(), 0);
    EXPECT_EQ(livingProcesses(shell.session()), std::vector<pid_t>());
    EXPECT_TRUE(endProcesses(shell.session(), SIGTERM, 0ms));
}

TEST(CommandProcessesTest, End_IsAskedForAndWaitedFor) {
    const Shell shell("exec sleep 600");
    EXPECT_TRUE(endProcesses(shell.session(), SIGTERM, 60s));
    EXPECT_EQ(shell.end(), SIGTERM);
}

TEST(CommandProcessesTest, OneThatStays_IsWaitedForInItsSleep) {
    const Shell shell("kill -STOP $$");
    siginfo_t stopped{};
    ASSERT_EQ(::waitid(P_PID, static_cast<id_t>(shell.pid()), &stopped, WSTOPPED | WNOWAIT), 0);
    timespec before{};
    timespec after{};
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &before);
    EXPECT_FALSE(endProcesses(shell.session(), SIGTERM, 2s)) << "it cannot hear";
    ::clock_gettime(CLOCK_THREAD_CPUTIME_ID, &after);
    const auto worked = static_cast<double>(after.tv_sec - before.tv_sec) +
                        static_cast<double>(after.tv_nsec - before.tv_nsec) / 1e9;
    EXPECT_LT(worked, 0.1) << "seconds";
    EXPECT_TRUE(endProcesses(shell.session(), SIGKILL, 60s));
    EXPECT_EQ(shell.end(), SIGKILL);
}

} // namespace
} // namespace kelvo
