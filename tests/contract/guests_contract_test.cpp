// Other programs that talk with the running copy: what holds for any guests, then the real socket.
#include "adapters/process/local_socket.h"
#include "adapters/process/single_copy_socket.h"
#include "fakes/fake_guests.h"
#include "fakes/recording_console.h"
#include "support/wait_in_loop.h"

#include <QCoreApplication>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <array>

namespace kelvo {
namespace {

using namespace std::chrono_literals;
using Claim = SingleCopy::Claim;
using Id = Guests::Id;

const SingleCopy::Show cNoShow = [](const QByteArray&) {};

/// A guest of the real socket, seen from its own side; nothing here waits.
class Caller {
public:
    explicit Caller(const QString& folder)
        : fSocket(connectedSocket(*copySocketAddress(folder.toStdString()))) {
        EXPECT_TRUE(fSocket);
    }

    void send(const QByteArray& bytes) const {
        EXPECT_EQ(::send(fSocket.get(), bytes.constData(), static_cast<size_t>(bytes.size()),
                         MSG_NOSIGNAL),
                  bytes.size());
    }
    /// Sends what goes; how much that was.
    qsizetype sendSome(const QByteArray& bytes) const {
        return ::send(fSocket.get(), bytes.constData(), static_cast<size_t>(bytes.size()),
                      MSG_NOSIGNAL);
    }
    /// Everything so far.
    const QByteArray& heard() {
        std::array<char, 64 * 1024> bytes;
        for (;;) {
            const ssize_t count = ::recv(fSocket.get(), bytes.data(), bytes.size(), 0);
            fEnded = fEnded || count == 0 || (count < 0 && errno != EAGAIN);
            if (count <= 0)
                return fHeard;
            fHeard.append(bytes.data(), static_cast<qsizetype>(count));
        }
    }
    bool ended() {
        (void)heard();
        return fEnded;
    }

private:
    UniqueFd fSocket;
    QByteArray fHeard;
    bool fEnded = false;
};

// -- what holds for any guests

struct FakePlace {
    FakeGuests guests;
    Id first = 0;

    Guests& host() { return guests; }
    void come(const QByteArray& line) { first = guests.come(line); }
    QByteArray heard() {
        QByteArray all;
        for (const QByteArray& line : guests.guests.at(first).heard)
            all += line;
        return all;
    }
    bool isShownOut() { return guests.guests.at(first).dismissed; }
    void leave() { guests.leave(first); }
};

struct RealPlace {
    QTemporaryDir folder;
    RecordingConsole console;
    SingleCopySocket copy{folder.path().toStdString(), console};
    std::unique_ptr<Caller> caller;

    RealPlace() { EXPECT_EQ(copy.claim({}, cNoShow), Claim::First); }
    Guests& host() { return copy; }
    void come(const QByteArray& line) {
        caller = std::make_unique<Caller>(folder.path());
        caller->send(line + '\n');
    }
    QByteArray heard() { return caller->heard(); }
    bool isShownOut() { return caller->ended(); }
    void leave() { caller.reset(); }
};

template <typename Place>
class GuestsContractTest : public ::testing::Test {
protected:
    GuestsContractTest() {
        place.host().receive(
            {.said = [this](Id guest, const QByteArray& line) { said.emplace_back(guest, line); },
             .left = [this](Id guest) { left.push_back(guest); }});
    }

    Id guestSaying(const QByteArray& line) {
        const std::size_t before = said.size();
        place.come(line);
        EXPECT_TRUE(waitInLoop([&] { return said.size() > before; }));
        return said.back().first;
    }

    Place place;
    std::vector<std::pair<Id, QByteArray>> said;
    std::vector<Id> left;
};
using Places = ::testing::Types<FakePlace, RealPlace>;
TYPED_TEST_SUITE(GuestsContractTest, Places);

TYPED_TEST(GuestsContractTest, LineOfAGuest_IsHeardAndAnswered) {
    const Id guest = this->guestSaying("{\"a\":\"b\"}");
    EXPECT_EQ(this->said.back().second, "{\"a\":\"b\"}");
    EXPECT_TRUE(this->place.host().say(guest, "one\n"));
    EXPECT_TRUE(this->place.host().say(guest, "two\n"));
    EXPECT_TRUE(waitInLoop([&] { return this->place.heard() == "one\ntwo\n"; }));
    EXPECT_FALSE(this->place.isShownOut());
    EXPECT_TRUE(this->left.empty());
}

TYPED_TEST(GuestsContractTest, DismissedGuest_HearsWhatWasSaidAndNothingMore) {
    const Id guest = this->guestSaying("{}");
    EXPECT_TRUE(this->place.host().say(guest, "last\n"));
    this->place.host().dismiss(guest);
    EXPECT_FALSE(this->place.host().say(guest, "more\n"));
    EXPECT_TRUE(waitInLoop([&] { return this->place.isShownOut(); }));
    EXPECT_EQ(this->place.heard(), "last\n");
    EXPECT_TRUE(this->left.empty()) << "it did not leave by itself";
}

TYPED_TEST(GuestsContractTest, GuestThatLeaves_IsTold) {
    const Id guest = this->guestSaying("{}");
    this->place.leave();
    EXPECT_TRUE(waitInLoop([&] { return this->left == std::vector<Id>{guest}; }));
    EXPECT_FALSE(this->place.host().say(guest, "x\n"));
    this->place.host().dismiss(guest);
}

TYPED_TEST(GuestsContractTest, UnknownGuest_IsNoError) {
    EXPECT_FALSE(this->place.host().say(4711, "x\n"));
    this->place.host().dismiss(4711);
}

// -- the socket

class GuestSocketTest : public ::testing::Test {
protected:
    GuestSocketTest() {
        EXPECT_EQ(copy.claim({}, [this](const QByteArray&) { ++shows; }), Claim::First);
    }
    void receive() {
        copy.receive(
            {.said = [this](Id guest, const QByteArray& line) { said.emplace_back(guest, line); },
             .left = [this](Id guest) { left.push_back(guest); }});
    }
    void letIn() {
        for (int i = 0; i < 40; ++i)
            QCoreApplication::processEvents();
    }

    QTemporaryDir folder;
    RecordingConsole console;
    SingleCopySocket copy{folder.path().toStdString(), console};
    int shows = 0;
    std::vector<std::pair<Id, QByteArray>> said;
    std::vector<Id> left;
};

TEST_F(GuestSocketTest, NobodyToHear_ShowsGuestsOut) {
    Caller caller(folder.path());
    caller.send("{}\n");
    EXPECT_TRUE(waitInLoop([&] { return caller.ended(); }));
}

TEST_F(GuestSocketTest, LineInPieces_IsHeardOnceWhole) {
    receive();
    const Caller caller(folder.path());
    for (const char* piece : {"{", "\"a\"", ":1"}) {
        caller.send(piece);
        letIn();
        EXPECT_TRUE(said.empty());
    }
    caller.send("}\n");
    EXPECT_TRUE(waitInLoop([&] { return said.size() == 1; }));
    EXPECT_EQ(said[0].second, "{\"a\":1}");
}

TEST_F(GuestSocketTest, LongestLine_IsHeardAndALongerOneIsToldOf) {
    receive();
    for (const qsizetype size : {Guests::cLongestLine, Guests::cLongestLine + 1}) {
        said.clear();
        const Caller caller(folder.path());
        QByteArray line = '{' + QByteArray(size - 2, 'x') + '\n';
        EXPECT_TRUE(waitInLoop([&] {
            if (const qsizetype sent = line.isEmpty() ? 0 : caller.sendSome(line); sent > 0)
                line.remove(0, sent);
            return !said.empty();
        }));
        ASSERT_EQ(said.size(), 1U);
        EXPECT_EQ(said[0].second.size(), size > Guests::cLongestLine ? 0 : size - 1);
    }
}

TEST_F(GuestSocketTest, EndlessLine_CostsNoMoreThanALine) {
    receive();
    Caller caller(folder.path());
    const QByteArray piece = '{' + QByteArray(16'000, 'x');
    qsizetype sent = 0;
    EXPECT_TRUE(waitInLoop([&] {
        sent += std::max<qsizetype>(caller.sendSome(piece), 0);
        return caller.ended();
    }));
    EXPECT_EQ(said.size(), 1U);
    EXPECT_EQ(said[0].second, "");
    EXPECT_LT(sent, 4'000'000);
}

TEST_F(GuestSocketTest, MoreThanOneLine_EndsTheConnection) {
    receive();
    Caller both(folder.path());
    both.send("{}\n{}\n");
    EXPECT_TRUE(waitInLoop([&] { return both.ended(); }));
    EXPECT_TRUE(said.empty());
    Caller later(folder.path());
    later.send("{}\n");
    EXPECT_TRUE(waitInLoop([&] { return said.size() == 1; }));
    later.send("{}\n");
    EXPECT_TRUE(waitInLoop([&] { return later.ended(); }));
    EXPECT_EQ(left, std::vector<Id>{said[0].first});
}

TEST_F(GuestSocketTest, SlowReader_IsDroppedAndToldWhileOthersHear) {
    receive();
    Caller slow(folder.path());
    slow.send("{}\n");
    ASSERT_TRUE(waitInLoop([&] { return said.size() == 1; }));
    Caller quick(folder.path());
    quick.send("{}\n");
    ASSERT_TRUE(waitInLoop([&] { return said.size() == 2; }));
    const QByteArray line = QByteArray(10'000, 'x') + '\n';
    qsizetype told = 0;
    while (copy.say(said[0].first, line, "too slow\n")) {
        ASSERT_LT(++told, 1000) << "what waits has no bound";
        ASSERT_TRUE(copy.say(said[1].first, line, "too slow\n"));
        ASSERT_TRUE(waitInLoop([&] { return quick.heard().size() == told * line.size(); }));
    }
    EXPECT_GT(told * line.size(), Guests::cMostWaiting - line.size());
    EXPECT_TRUE(left.empty());
    EXPECT_TRUE(waitInLoop([&] { return slow.ended(); }));
    const QByteArray heard = slow.heard();
    EXPECT_TRUE(heard.endsWith("x\ntoo slow\n"));
    EXPECT_EQ((heard.size() - 9) % line.size(), 0) << "whole lines before it";
    EXPECT_FALSE(quick.ended());
}

TEST_F(GuestSocketTest, GuestThatLeavesWithWordsUnread_IsToldOf) {
    receive();
    auto caller = std::make_unique<Caller>(folder.path());
    caller->send("{}\n");
    ASSERT_TRUE(waitInLoop([&] { return said.size() == 1; }));
    ASSERT_TRUE(copy.say(said[0].first, "never read\n"));
    caller.reset(); // for the host that is an error, not an end
    EXPECT_TRUE(waitInLoop([&] { return left == std::vector<Id>{said[0].first}; }));
}

TEST_F(GuestSocketTest, Crowd_LeavesThoseWhoHaveSpokenAndTheNextCopy) {
    receive();
    Caller follower(folder.path());
    follower.send("{}\n");
    ASSERT_TRUE(waitInLoop([&] { return said.size() == 1; }));
    std::vector<std::unique_ptr<Caller>> silent;
    for (int i = 0; i < 100; ++i) {
        silent.push_back(std::make_unique<Caller>(folder.path()));
        if (i % 2 == 0)
            silent.back()->send("{\"half\":");
        letIn();
    }
    EXPECT_FALSE(follower.ended());
    EXPECT_TRUE(copy.say(said[0].first, "well\n"));
    Caller asks(folder.path());
    asks.send("show\n");
    EXPECT_TRUE(waitInLoop([&] { return asks.heard() == "shown\n"; }));
    EXPECT_EQ(shows, 1);
    EXPECT_LE(std::ranges::count_if(silent, [](const auto& each) { return !each->ended(); }), 16);
}

TEST_F(GuestSocketTest, TooManyWhoHaveSpoken_LoseTheOldest) {
    receive();
    std::vector<std::unique_ptr<Caller>> callers;
    for (std::size_t i = 0; i < 17; ++i) {
        callers.push_back(std::make_unique<Caller>(folder.path()));
        callers.back()->send("{}\n");
        ASSERT_TRUE(waitInLoop([&] { return said.size() == i + 1; }));
    }
    EXPECT_TRUE(waitInLoop([&] { return callers[0]->ended(); }));
    EXPECT_EQ(left, std::vector<Id>{said[0].first});
    EXPECT_FALSE(callers[1]->ended());
}

TEST_F(GuestSocketTest, Socket_IsTheUsersAlone) {
    struct stat status {};
    ASSERT_EQ(::stat(folder.filePath(QStringLiteral("kelvo-mirror.socket")).toLocal8Bit(), &status),
              0);
    EXPECT_EQ(status.st_mode & 0777, 0600U);
}

TEST_F(GuestSocketTest, OtherUser_IsShownOutUnheard) {
    constexpr uid_t cNobody = 65534;
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can become another user";
    receive();
    const QByteArray inside = folder.path().toLocal8Bit();
    ASSERT_EQ(::chmod(inside.constData(), 0755), 0);
    const QByteArray socketPath = inside + "/kelvo-mirror.socket";
    ASSERT_EQ(::chmod(socketPath.constData(), 0666), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        // The folders above may be closed to others; from inside they are not asked.
        if (::chdir(inside.constData()) != 0 || ::setresuid(cNobody, cNobody, cNobody) != 0)
            ::_exit(3);
        sockaddr_un address{};
        address.sun_family = AF_UNIX;
        std::ranges::copy(std::string_view("kelvo-mirror.socket"), address.sun_path);
        const int socket = ::socket(AF_UNIX, SOCK_STREAM, 0);
        if (::connect(socket, generic(address), sizeof address) != 0)
            ::_exit(4);
        (void)!::send(socket, "{}\n", 3, MSG_NOSIGNAL);
        char byte = 0;
        ::_exit(::recv(socket, &byte, 1, 0) <= 0 ? 0 : 5);
    }
    int status = 0;
    EXPECT_TRUE(waitInLoop([&] { return ::waitpid(child, &status, WNOHANG) == child; }));
    EXPECT_TRUE(WIFEXITED(status) && WEXITSTATUS(status) == 0) << status;
    letIn();
    EXPECT_TRUE(said.empty());
}

} // namespace
} // namespace kelvo
