// The conversation with Avahi's daemon on a poll whose time stands still: no bus, and the pauses
// between the attempts to find one.
#include "adapters/network/avahi_session.h"
#include "fakes/recording_console.h"
#include "support/private_mounts.h"

#include <gtest/gtest.h>

#include <fcntl.h>
#include <sys/time.h>

#include <avahi-common/watch.h>
#include <optional>
#include <vector>

struct AvahiTimeout {
    AvahiTimeoutCallback callback = nullptr;
    void* user = nullptr;
    std::optional<double> due; ///< seconds of the clock on the wall
    int* freed = nullptr;
};

namespace kelvo {
namespace {

double now() {
    timeval time{};
    ::gettimeofday(&time, nullptr);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_usec) / 1e6;
}

/// Holds one timeout, which goes off when told. Nothing gets as far as watching a descriptor.
class StillPoll {
public:
    StillPoll() {
        fApi.userdata = this;
        fApi.timeout_new = [](const AvahiPoll* api, const timeval* due, AvahiTimeoutCallback called,
                              void* user) {
            auto& poll = *static_cast<StillPoll*>(api->userdata);
            poll.fTimeout = {.callback = called, .user = user, .due = {}, .freed = &poll.freed};
            set(&poll.fTimeout, due);
            return &poll.fTimeout;
        };
        fApi.timeout_update = set;
        fApi.timeout_free = [](AvahiTimeout* timeout) { ++*timeout->freed; };
    }

    const AvahiPoll& get() const { return fApi; }
    std::optional<double> due() const { return fTimeout.due; }
    void goOff() { fTimeout.callback(&fTimeout, fTimeout.user); }

    int freed = 0;

private:
    static void set(AvahiTimeout* timeout, const timeval* due) {
        timeout->due.reset();
        if (due)
            timeout->due =
                static_cast<double>(due->tv_sec) + static_cast<double>(due->tv_usec) / 1e6;
    }

    AvahiPoll fApi{};
    AvahiTimeout fTimeout;
};

class AvahiSessionTest : public ::testing::Test {
protected:
    AvahiSessionTest() { table.startSearch(QStringLiteral("_smb._tcp")); }

    /// Whether what `work` does makes the session wait for `seconds`.
    template <typename Work>
    ::testing::AssertionResult waits(double seconds, Work work) {
        constexpr double cRounding = 2e-6;
        const double before = now();
        work();
        const double after = now();
        const auto due = poll.due();
        if (due && *due >= before + seconds - cRounding && *due <= after + seconds + cRounding)
            return ::testing::AssertionSuccess();
        return ::testing::AssertionFailure()
               << "expected " << seconds << " s, got " << (due ? *due - after : -1.0);
    }

    StillPoll poll;
    ServiceTable table;
    RecordingConsole console;
    std::vector<DiscoveryState> states;
    std::optional<AvahiSession> session{std::in_place, poll.get(), table, console,
                                        [this](DiscoveryState state) { states.push_back(state); }};
};

TEST_F(AvahiSessionTest, WithoutABus_ItIsTriedAgainAfterLongerAndLongerPauses) {
    EXPECT_FALSE(poll.due()) << "nobody has asked for anything";
    EXPECT_TRUE(waits(0, [this] { session->searchAfresh(); }));
    for (const double seconds : {0.25, 0.5, 1.0, 2.0, 4.0, 8.0, 8.0})
        EXPECT_TRUE(waits(seconds, [this] { poll.goOff(); }));
    EXPECT_EQ(states.size(), 7U);
    EXPECT_EQ(console.logged(),
              QStringList{QStringLiteral("Inside AvahiBrowser->browseForType:.......no message "
                                         "bus to reach the discovery service by")});
    // Somebody who asks does not wait for that.
    table.startSearch(QStringLiteral("_smb._tcp"));
    EXPECT_TRUE(waits(0, [this] { session->searchAfresh(); }));
    EXPECT_TRUE(waits(0.25, [this] { poll.goOff(); }));
}

TEST_F(AvahiSessionTest, Session_GivesItsTimeoutBack) {
    session.reset();
    EXPECT_EQ(poll.freed, 1);
}

TEST_F(AvahiSessionTest, Daemon_IsInstalledWhereItsProgramLies) {
    const auto stateWith = [this](const std::string& program) {
        for (const char* folder : {"/usr/sbin", "/usr/local/sbin"}) {
            if (::mount("none", folder, "tmpfs", 0, nullptr) != 0)
                return DiscoveryState::Unknown;
        }
        ::close(::open(program.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0755));
        session->searchAfresh();
        poll.goOff();
        return states.back();
    };
    const std::vector<std::pair<std::string, DiscoveryState>> cases{
        {"/usr/sbin/avahi-daemon", DiscoveryState::NotRunning},
        {"/usr/local/sbin/avahi-daemon", DiscoveryState::NotRunning},
        {"/usr/sbin/another", DiscoveryState::NotInstalled}};
    for (const auto& each : cases) {
        if (!withPrivateMounts([] { return 0; },
                               [&] { EXPECT_EQ(stateWith(each.first), each.second); }))
            return;
    }
}

} // namespace
} // namespace kelvo
