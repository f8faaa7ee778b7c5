#include "adapters/console/stream_console.h"
#include "adapters/system/unique_fd.h"
#include "fakes/memory_log_file.h"
#include "fakes/recording_console.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

#include <fcntl.h>

#include <array>
#include <chrono>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class Recorded {
public:
    Console& console() { return fConsole; }
    QString printed() { return withEnds(fConsole.printed()); }
    QStringList logged() { return fConsole.logged(); }

private:
    static QString withEnds(const QStringList& lines) {
        return lines.isEmpty() ? QString() : lines.join(u'\n') + u'\n';
    }
    RecordingConsole fConsole;
};

/// Both streams are pipes; nobody reads before the lines are asked for.
class Streamed {
public:
    Streamed() { fFile.setLogFile(QStringLiteral("/x.log")); }

    Console& console() { return *fConsole; }
    QString printed() { return QString::fromUtf8(fOutput.readAll(fConsole)); }

    /// Takes time and name off each line, and insists that they are there.
    QStringList logged() {
        static const QRegularExpression cStart(QStringLiteral(
            "^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} kelvo-mirror\\[\\d+\\] "));
        QStringList lines = QString::fromUtf8(fErrors.readAll(fConsole)).split(u'\n');
        EXPECT_TRUE(lines.takeLast().isEmpty());
        for (QString& line : lines) {
            EXPECT_TRUE(cStart.match(line).hasMatch()) << line.toStdString();
            line.remove(cStart);
        }
        return lines;
    }

private:
    struct Pipe {
        Pipe() {
            std::array<int, 2> ends{};
            if (::pipe2(ends.data(), O_CLOEXEC) == 0) {
                read = UniqueFd(ends[0]);
                write = UniqueFd(ends[1]);
            }
        }
        /// Reads while the console ends, to the last byte.
        QByteArray readAll(std::unique_ptr<StreamConsole>& console) {
            std::thread ending([this, &console] {
                if (console)
                    console->flush(30s);
                write.reset();
                console.reset();
            });
            QByteArray all;
            std::array<char, 4096> bytes{};
            for (ssize_t size = 0; (size = ::read(read.get(), bytes.data(), bytes.size())) > 0;)
                all.append(bytes.data(), size);
            ending.join();
            return all;
        }
        UniqueFd read;
        UniqueFd write;
    };

    Pipe fOutput;
    Pipe fErrors;
    MemoryLogFile fFile;
    std::unique_ptr<StreamConsole> fConsole =
        std::make_unique<StreamConsole>(fOutput.write.get(), fErrors.write.get(), fFile);
};

template <typename Kind>
class ConsoleContract : public testing::Test {
protected:
    Console& console() { return fKind.console(); }
    Kind fKind;
};

using Kinds = testing::Types<Recorded, Streamed>;
TYPED_TEST_SUITE(ConsoleContract, Kinds);

TYPED_TEST(ConsoleContract, Print_GivesTheTextAndALineEnd) {
    this->console().print(QStringLiteral("one \u20ac"));
    this->console().print(QString());
    this->console().print(QStringLiteral("two"));
    EXPECT_EQ(this->fKind.printed(), u"one \u20ac\n\ntwo\n");
}

TYPED_TEST(ConsoleContract, LineEndsInside_Stand) {
    this->console().print(QStringLiteral("a\nb\n\r\x1b[m"));
    EXPECT_EQ(this->fKind.printed(), u"a\nb\n\r\x1b[m\n");
}

TYPED_TEST(ConsoleContract, Pieces_FollowEachOtherWithNothingBetween) {
    const QString clap = QStringLiteral("\U0001f3ac");
    this->console().print(
        QStringList{QStringLiteral("a"), QString(), u'b' + clap.left(1), clap.mid(1)});
    this->console().print(QStringList());
    EXPECT_EQ(this->fKind.printed(), u"ab\U0001f3ac\n\n");
}

TYPED_TEST(ConsoleContract, Log_GoesToTheSystemLogOnly) {
    this->console().log(QStringLiteral("noted"));
    this->console().log(QStringLiteral("again"));
    EXPECT_EQ(this->fKind.logged(),
              (QStringList{QStringLiteral("noted"), QStringLiteral("again")}));
    EXPECT_EQ(this->fKind.printed(), QString());
}

TYPED_TEST(ConsoleContract, SlowReader_HoldsUpNobody) {
    // Far more than a pipe takes, while nobody reads.
    for (int i = 0; i < 64; ++i)
        this->console().print(QString(64 * 1024, u'x'));
    const QString all = this->fKind.printed();
    EXPECT_EQ(all.size(), 64 * (64 * 1024 + 1));
    EXPECT_EQ(all.count(u'\n'), 64);
}

TYPED_TEST(ConsoleContract, Threads_KeepTheirOrderAndDoNotMix) {
    std::vector<std::thread> threads;
    for (const char16_t name : {u'a', u'b', u'c', u'd'}) {
        threads.emplace_back([this, name] {
            for (int i = 0; i < 200; ++i)
                this->console().print(QString(i + 1, name));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    std::array<qsizetype, 4> next{1, 1, 1, 1};
    QStringList lines = this->fKind.printed().split(u'\n');
    EXPECT_TRUE(lines.takeLast().isEmpty());
    ASSERT_EQ(lines.size(), 800);
    for (const QString& line : lines) {
        const QChar name = line.front();
        ASSERT_EQ(line, QString(next.at(name.unicode() - u'a')++, name));
    }
}

TYPED_TEST(ConsoleContract, LinesPrintedTogether_StayTogether) {
    constexpr int cTimes = 200;
    std::vector<std::thread> threads;
    for (const char16_t name : {u'a', u'b', u'c', u'd'}) {
        threads.emplace_back([this, name] {
            const QString text(name);
            for (int i = 0; i < cTimes; ++i)
                this->console().printAll({{text, QStringLiteral("1")}, {}, {text + u'2'}});
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    this->console().printAll({});
    const QStringList lines = this->fKind.printed().split(u'\n');
    ASSERT_EQ(lines.size(), 4 * cTimes * 3 + 1);
    for (qsizetype at = 0; at + 1 < lines.size(); at += 3) {
        const QString name = lines[at].left(1);
        ASSERT_EQ(lines.sliced(at, 3), (QStringList{name + u'1', QString(), name + u'2'})) << at;
    }
}

} // namespace
} // namespace kelvo
