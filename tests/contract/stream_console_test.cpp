#include "adapters/console/line_stream.h"
#include "adapters/console/stream_console.h"
#include "adapters/system/unique_fd.h"
#include "fakes/memory_log_file.h"
#include "support/failing_syscall.h"

#include <QDateTime>
#include <QFile>

#include <gtest/gtest.h>

#include <fcntl.h>
#include <poll.h>
#include <signal.h>
#include <sys/ioctl.h>
#include <sys/resource.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cerrno>
#include <chrono>
#include <climits>
#include <cstdlib>
#include <memory>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class StreamConsoleTest : public testing::Test {
protected:
    StreamConsoleTest() {
        std::array<int, 2> ends{};
        EXPECT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        fRead = UniqueFd(ends[0]);
        fWrite = UniqueFd(ends[1]);
        fFile.setLogFile(cPath);
    }

    std::unique_ptr<StreamConsole> console() {
        return std::make_unique<StreamConsole>(fWrite.get(), fNull.get(), fFile);
    }
    QByteArray readOnce() const {
        QByteArray bytes(65536, '\0');
        const ssize_t size = ::read(fRead.get(), bytes.data(), 65536);
        bytes.truncate(std::max<ssize_t>(size, 0));
        return bytes;
    }
    /// Reads to the end while the console ends.
    QByteArray readToEnd(std::unique_ptr<StreamConsole>& console) {
        std::thread ending([&] {
            console->flush(30s);
            fWrite.reset();
            console.reset();
        });
        QByteArray all;
        for (QByteArray some = readOnce(); !some.isEmpty(); some = readOnce())
            all += some;
        ending.join();
        return all;
    }

    const QString cPath = QStringLiteral("/x.log");
    MemoryLogFile fFile;
    UniqueFd fRead;
    UniqueFd fWrite;
    UniqueFd fNull{::open("/dev/null", O_WRONLY | O_CLOEXEC)};
};

TEST_F(StreamConsoleTest, Journal_GetsEachLineWithItsPriorityAndNoForgedOnes) {
    struct stat status {};
    ASSERT_EQ(::fstat(fWrite.get(), &status), 0);
    qputenv("JOURNAL_STREAM", QByteArray(QByteArray::number(quint64{status.st_dev}) + ':' +
                                         QByteArray::number(quint64{status.st_ino})));
    auto journal = console();
    journal->print(QStringList{QStringLiteral("<0>captured\n<0>next"), QStringLiteral("\n<0>"),
                               QString(QChar(u'\0')) + u"<0>cut"});
    journal->printAll({{QStringLiteral("status red: away")}, {QStringLiteral("resting")}});
    qunsetenv("JOURNAL_STREAM");
    EXPECT_EQ(readToEnd(journal), "<6><0>captured\n<6><0>next\n<6><0>\n<6><0>cut\n"
                                  "<3>status red: away\n<6>resting\n");
    EXPECT_FALSE(fFile.lines(cPath).join(QString()).contains(u"<6>")) << "the file is no journal";
}

TEST_F(StreamConsoleTest, OtherStreams_HaveNoPriorities) {
    qputenv("JOURNAL_STREAM", "1:1");
    auto plain = console();
    plain->print(QStringLiteral("status red: away"));
    qunsetenv("JOURNAL_STREAM");
    EXPECT_EQ(readToEnd(plain), "status red: away\n");
}

TEST_F(StreamConsoleTest, BothStreamsInOnePlace_LinesStandWholeAndInOrder) {
    constexpr int lines = 2000;
    auto both = std::make_unique<StreamConsole>(fWrite.get(), fWrite.get(), fFile);
    for (int i = 0; i < lines; ++i) {
        const QString text = QStringLiteral("line %1 %2").arg(i).arg(QString(i % 97, u'x'));
        if (i % 2 == 0)
            both->print(text);
        else
            both->log(text);
    }
    const QList<QByteArray> read = readToEnd(both).split('\n');
    ASSERT_EQ(read.size(), lines + 1) << "and nothing after the last line end";
    for (int i = 0; i < lines; ++i) {
        const QByteArray text =
            QByteArray("line ") + QByteArray::number(i) + ' ' + QByteArray(i % 97, 'x');
        if (i % 2 == 0)
            EXPECT_EQ(read[i].toStdString(), text.toStdString());
        else
            EXPECT_TRUE(read[i].endsWith(QByteArray("] " + text))) << read[i].constData();
    }
}

TEST_F(StreamConsoleTest, BothKindsOfLines_ReachTheLogFile) {
    const auto lines = console();
    lines->print(QStringLiteral("printed"));
    lines->log(QStringLiteral("noted\x1b"));
    EXPECT_TRUE(lines->flush(30s));
    EXPECT_EQ(fFile.lines(cPath),
              (QStringList{QStringLiteral("printed"), QStringLiteral("noted\\x1b")}));
}

TEST_F(StreamConsoleTest, LogLine_StartsWithTheTimeAndTheProgram) {
    auto lines = std::make_unique<StreamConsole>(fNull.get(), fWrite.get(), fFile);
    lines->log(QStringLiteral("noted"));
    EXPECT_TRUE(lines->flush(30s));
    const QString line = QString::fromUtf8(readOnce());
    EXPECT_EQ(line.mid(23), QStringLiteral(" kelvo-mirror[%1] noted\n").arg(::getpid()));
    const QDateTime time =
        QDateTime::fromString(line.left(23), QStringLiteral("yyyy-MM-dd HH:mm:ss.zzz"));
    EXPECT_LT(std::abs(time.secsTo(QDateTime::currentDateTime())), 60) << line.toStdString();
}

TEST_F(StreamConsoleTest, StuckReader_StopsNeitherTheLogFileNorTheOtherStream) {
    auto lines = std::make_unique<StreamConsole>(fWrite.get(), fNull.get(), fFile);
    lines->print(QString(1000 * 1000, u'x'));
    lines->log(QStringLiteral("noted"));
    for (int tries = 0; fFile.lines(cPath).size() < 2 && tries < 30000; ++tries)
        std::this_thread::sleep_for(1ms);
    EXPECT_EQ(fFile.lines(cPath).value(1), u"noted");
    EXPECT_FALSE(lines->flush(10ms)) << "the other stream still waits";
}

TEST_F(StreamConsoleTest, StuckReader_HoldsUpTheEndOnlyForAMoment) {
    const auto start = std::chrono::steady_clock::now();
    {
        const auto lines = console();
        lines->print(QString(1000 * 1000, u'x'));
        lines->print(QStringLiteral("last"));
    }
    EXPECT_LT(std::chrono::steady_clock::now() - start, 20s);
    EXPECT_EQ(fFile.lines(cPath).constLast(), u"last") << "the log file has it all";
}

TEST_F(StreamConsoleTest, SlowReader_GetsItAllAtTheEndThoughItTakesMoreThanASecond) {
    constexpr qsizetype cBytes = 1000 * 1000;
    qsizetype most = 0;
    // On a machine with much to do one attempt may take the two seconds that are the most.
    for (int attempt = 0; attempt < 10 && most <= cBytes; ++attempt) {
        std::array<int, 2> ends{};
        ASSERT_EQ(::pipe2(ends.data(), O_CLOEXEC), 0);
        const UniqueFd read(ends[0]);
        UniqueFd write(ends[1]);
        auto lines = std::make_unique<StreamConsole>(write.get(), fNull.get(), fFile);
        lines->print(QString(cBytes, u'x'));
        qsizetype got = 0;
        std::thread reader([&] {
            std::vector<char> room(64 * 1024);
            for (ssize_t size = 0; (size = ::read(read.get(), room.data(), room.size())) > 0;) {
                got += size;
                std::this_thread::sleep_for(90ms);
            }
        });
        lines.reset();
        write.reset();
        reader.join();
        most = std::max(most, got);
    }
    EXPECT_EQ(most, cBytes + 1);
}

TEST_F(StreamConsoleTest, StuckReader_TakesBoundedMemoryAndLearnsWhatIsMissing) {
    auto lines = console();
    // One text shared by all lines: the backlog counts each, though the memory is one.
    const QString big(4 * 1024 * 1024, u'x');
    for (int i = 0; i < 20; ++i)
        lines->print(big);
    const QByteArray all = readToEnd(lines);
    const auto whole = all.count(QByteArray(big.size(), 'x').append('\n'));
    EXPECT_GE(whole, 2);
    EXPECT_LT(whole, 4);
    EXPECT_TRUE(all.endsWith(QByteArray::number(20 - whole).append(" lines left out\n")))
        << all.right(40).toStdString();
}

TEST_F(StreamConsoleTest, ReaderThatLeft_IsForgottenAndTheLogFileGoesOn) {
    const auto lines = console();
    fRead.reset();
    for (int i = 0; i < 10; ++i)
        lines->print(QStringLiteral("line %1").arg(i));
    EXPECT_TRUE(lines->flush(30s));
    EXPECT_EQ(fFile.lines(cPath).size(), 10);
}

TEST_F(StreamConsoleTest, ReaderThatLeavesAmidALine_IsForgotten) {
    const auto lines = console();
    lines->print(QString(1000 * 1000, u'x'));
    EXPECT_FALSE(readOnce().isEmpty());
    fRead.reset();
    lines->print(QStringLiteral("after"));
    EXPECT_TRUE(lines->flush(30s));
    EXPECT_EQ(fFile.lines(cPath).constLast(), u"after");
}

TEST_F(StreamConsoleTest, StreamThatDoesNotExist_IsNoTrouble) {
    StreamConsole lines(-1, 1000000, fFile);
    lines.print(QStringLiteral("a"));
    lines.log(QStringLiteral("b"));
    EXPECT_TRUE(lines.flush(30s));
    EXPECT_EQ(fFile.lines(cPath).size(), 2);
}

TEST_F(StreamConsoleTest, NoDescriptorLeftToBeWokenBy_LinesComeAllTheSame) {
    if (!withFailingSyscall(SYS_eventfd2, EMFILE, [this] {
            const auto lines = console();
            for (const char* const line : {"a", "b"}) {
                lines->print(QString::fromLatin1(line));
                EXPECT_TRUE(lines->flush(30s)) << line;
            }
        }))
        GTEST_SKIP() << "this system lets no call fail";
    EXPECT_EQ(readOnce(), "a\nb\n");
}

TEST_F(StreamConsoleTest, FullDisk_LosesLinesOnly) {
    const UniqueFd full(::open("/dev/full", O_WRONLY | O_CLOEXEC));
    StreamConsole lines(full.get(), full.get(), fFile);
    lines.print(QStringLiteral("a"));
    EXPECT_TRUE(lines.flush(30s));
    EXPECT_EQ(fFile.lines(cPath).size(), 1);
}

TEST_F(StreamConsoleTest, FileThatMayNotGrow_LosesLinesOnly) {
    QFile file(qEnvironmentVariable("TMPDIR") + u"/may_not_grow");
    ASSERT_TRUE(file.open(QFile::ReadWrite | QFile::Truncate));
    StreamConsole lines(file.handle(), -1, fFile);
    ::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ASSERT_EQ(::getrlimit(RLIMIT_FSIZE, &before), 0);
    const rlimit none{0, before.rlim_max};
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &none), 0);
    lines.print(QStringLiteral("a"));
    EXPECT_TRUE(lines.flush(30s));
    ASSERT_EQ(::setrlimit(RLIMIT_FSIZE, &before), 0);
    lines.print(QStringLiteral("b"));
    EXPECT_TRUE(lines.flush(30s));
    ASSERT_TRUE(file.seek(0));
    EXPECT_EQ(file.readAll(), "b\n");
    EXPECT_TRUE(file.remove());
}

TEST_F(StreamConsoleTest, PairCutByTheChunks_StaysWhole) {
    auto lines = console();
    QString text(1, u'x'); // Puts every pair astride an even border.
    for (int i = 0; i < 200000; ++i)
        text += u"\U0001f3ac";
    lines->print(text);
    EXPECT_EQ(QString::fromUtf8(readToEnd(lines)), text + u'\n');
}

TEST_F(StreamConsoleTest, RegularFile_IsAppendedWhereItStands) {
    const QString path = qEnvironmentVariable("TMPDIR") + u"/stream_console";
    const UniqueFd file(
        ::open(path.toUtf8().constData(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC, 0600));
    ASSERT_EQ(::write(file.get(), "before\n", 7), 7);
    {
        StreamConsole lines(file.get(), file.get(), fFile);
        lines.print(QStringLiteral("line"));
    }
    ASSERT_EQ(::write(file.get(), "after\n", 6), 6);
    QFile read(path);
    ASSERT_TRUE(read.open(QIODevice::ReadOnly));
    EXPECT_EQ(read.readAll(), "before\nline\nafter\n");
}

TEST_F(StreamConsoleTest, Socket_IsServedAndNeverWaitedFor) {
    std::array<int, 2> ends{};
    ASSERT_EQ(::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()), 0);
    const UniqueFd ours(ends[0]);
    UniqueFd theirs(ends[1]);
    StreamConsole lines(ours.get(), fNull.get(), fFile);
    lines.print(QStringLiteral("line"));
    EXPECT_TRUE(lines.flush(30s));
    std::array<char, 16> bytes{};
    EXPECT_EQ(::read(theirs.get(), bytes.data(), bytes.size()), 5);
    theirs.reset();
    lines.print(QStringLiteral("nobody"));
    EXPECT_TRUE(lines.flush(30s));
}

TEST_F(StreamConsoleTest, Pipe_TakesWhatItHasRoomForAndIsNotWaitedFor) {
    LineStream stream(fWrite.get());
    stream.start({QString(1 << 20, u'x')});
    EXPECT_TRUE(stream.writeSome());
    int waiting = 0;
    ASSERT_EQ(::ioctl(fRead.get(), FIONREAD, &waiting), 0);
    EXPECT_GT(waiting, PIPE_BUF) << "not in small steps";
    int steps = 0;
    while (stream.writeSome())
        ASSERT_LT(++steps, 100);
    EXPECT_TRUE(stream.busy()) << "the pipe is full";
}

TEST_F(StreamConsoleTest, SharedPipe_StaysBlockingForItsOtherUsers) {
    const auto lines = console();
    lines->print(QStringLiteral("x"));
    EXPECT_TRUE(lines->flush(30s));
    EXPECT_EQ(::fcntl(fWrite.get(), F_GETFL) & O_NONBLOCK, 0);
}

TEST_F(StreamConsoleTest, Terminal_SeesControlCharactersSpelledOut) {
    const UniqueFd master(::posix_openpt(O_RDWR | O_NOCTTY | O_CLOEXEC));
    if (!master || ::grantpt(master.get()) != 0 || ::unlockpt(master.get()) != 0)
        GTEST_SKIP() << "no pseudo-terminal to be had";
    std::array<char, 64> name{};
    ASSERT_EQ(::ptsname_r(master.get(), name.data(), name.size()), 0);
    const UniqueFd terminal(::open(name.data(), O_RDWR | O_NOCTTY | O_CLOEXEC));
    StreamConsole lines(terminal.get(), fNull.get(), fFile);
    lines.print(QStringLiteral("a\x1b]0;x\x07\tb\nc"));
    EXPECT_TRUE(lines.flush(30s));
    QByteArray seen;
    std::array<char, 64> bytes{};
    while (seen.count('\n') < 2) {
        const ssize_t size = ::read(master.get(), bytes.data(), bytes.size());
        ASSERT_GT(size, 0);
        seen.append(bytes.data(), size);
    }
    EXPECT_EQ(seen, "a\\x1b]0;x\\x07\tb\r\nc\r\n");
}

} // namespace
} // namespace kelvo
