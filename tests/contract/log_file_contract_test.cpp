#include "adapters/console/rotating_log_file.h"
#include "fakes/memory_log_file.h"

#include <QDir>
#include <QFile>
#include <QRegularExpression>

#include <gtest/gtest.h>

#include <memory>
#include <thread>
#include <vector>

namespace kelvo {
namespace {

class MemoryLog {
public:
    LogFile& file() { return fFile; }
    QString path(const QString& name) const { return u"/logs/" + name; }
    QString unwritable() const { return QStringLiteral("/unwritable/x.log"); }
    QString text(const QString& path) const { return fFile.lines(path).join(u'\n'); }

private:
    MemoryLogFile fFile;
};

/// Takes the time off the start of each record, and insists that it is there.
class DiskLog {
public:
    LogFile& file() { return fFile; }
    QString path(const QString& name) const { return fFolder + u"/a/b/" + name; }
    QString unwritable() const { return QStringLiteral("/proc/no/such/place/x.log"); }

    QString text(const QString& path) const {
        static const QRegularExpression cTime(
            QStringLiteral("^\\d{4}-\\d\\d-\\d\\d \\d\\d:\\d\\d:\\d\\d\\.\\d{3} "));
        QFile log(path);
        QStringList lines;
        if (!log.open(QIODevice::ReadOnly))
            return {};
        for (QString line : QString::fromUtf8(log.readAll()).split(u'\n')) {
            if (!line.isEmpty() && !line.startsWith(u"    | ")) {
                EXPECT_TRUE(cTime.match(line).hasMatch()) << line.left(40).toStdString();
                line.remove(0, 24);
            }
            lines.append(line);
        }
        EXPECT_TRUE(lines.takeLast().isEmpty()) << "the last line ends";
        return lines.join(u'\n');
    }

    DiskLog() = default;
    ~DiskLog() { QDir(fFolder).removeRecursively(); }
    DiskLog(const DiskLog&) = delete;
    DiskLog& operator=(const DiskLog&) = delete;

private:
    const QString fFolder = qEnvironmentVariable("TMPDIR") + u"/log_file_contract";
    RotatingLogFile fFile;
};

template <typename Log>
class LogFileContract : public testing::Test {
protected:
    LogFile& file() { return fLog.file(); }
    QString path() const { return fLog.path(QStringLiteral("x.log")); }
    QString text() const { return fLog.text(path()); }

    Log fLog;
};

using Logs = testing::Types<MemoryLog, DiskLog>;
TYPED_TEST_SUITE(LogFileContract, Logs);

TYPED_TEST(LogFileContract, DefaultPath_LiesWithinTheSubdirectory) {
    const QString path = this->file().defaultLogFileWithinSubdirectory(QStringLiteral("Kelvo"));
    EXPECT_TRUE(path.startsWith(u'/'));
    EXPECT_TRUE(path.endsWith(u"/Kelvo/kelvo-mirror.log")) << path.toStdString();
}

TYPED_TEST(LogFileContract, WithoutAFile_NothingHappens) {
    this->file().append(QStringLiteral("lost"));
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    EXPECT_EQ(this->text(), QString());
}

TYPED_TEST(LogFileContract, Lines_FollowEachOther) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("first"));
    this->file().append(QString());
    this->file().append(
        QStringList{QStringLiteral("in"), QStringLiteral(" pie"), QStringLiteral("ces \u20ac")});
    EXPECT_EQ(this->text(), u"first\n\nin pieces \u20ac");
}

TYPED_TEST(LogFileContract, LineEndsInside_CannotPassForALineOfTheirOwn) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("a\n2026-01-01 00:00:00.000 forged\r\nb\u2028c"));
    EXPECT_EQ(this->text(), u"a\n    | 2026-01-01 00:00:00.000 forged\\x0d\n    | b\\u2028c");
}

TYPED_TEST(LogFileContract, ControlCharacters_AreSpelledOut) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QString::fromUtf16(u"\x1b[2Jx\0\ty\u009b", 9));
    EXPECT_EQ(this->text(), u"\\x1b[2Jx\\x00\ty\\x9b");
}

TYPED_TEST(LogFileContract, LongLine_KeepsBothEnds) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    const QString edge(32 * 1024, u'a');
    this->file().append(edge + edge);
    this->file().append(QStringList{edge, QStringLiteral("xyz"), edge});
    EXPECT_EQ(this->text(), edge + edge + u'\n' + edge + u" … (3 bytes left out) … " + edge);
}

TYPED_TEST(LogFileContract, OtherPath_TakesLaterLinesAndKeepsEarlierOnes) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("one"));
    const QString other = this->fLog.path(QStringLiteral("y.log"));
    ASSERT_TRUE(this->file().setLogFile(other));
    this->file().append(QStringLiteral("two"));
    EXPECT_EQ(this->text(), u"one");
    EXPECT_EQ(this->fLog.text(other), u"two");
}

TYPED_TEST(LogFileContract, SamePathAgain_Appends) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("one"));
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("two"));
    EXPECT_EQ(this->text(), u"one\ntwo");
}

TYPED_TEST(LogFileContract, UnwritablePath_IsSaidAndDropsLaterLines) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    this->file().append(QStringLiteral("kept"));
    EXPECT_FALSE(this->file().setLogFile(this->fLog.unwritable()));
    this->file().append(QStringLiteral("lost"));
    EXPECT_FALSE(this->file().setLogFile(QString()));
    this->file().append(QStringLiteral("lost"));
    EXPECT_EQ(this->text(), u"kept");
}

TYPED_TEST(LogFileContract, ManyThreads_DoNotMixLines) {
    ASSERT_TRUE(this->file().setLogFile(this->path()));
    std::vector<std::thread> threads;
    for (const char16_t name : {u'a', u'b', u'c', u'd'}) {
        threads.emplace_back([this, name] {
            for (int i = 0; i < 100; ++i)
                this->file().append(QString(200, name));
        });
    }
    for (std::thread& thread : threads)
        thread.join();
    const QStringList lines = this->text().split(u'\n');
    EXPECT_EQ(lines.size(), 400);
    for (const QString& line : lines)
        EXPECT_EQ(line, QString(200, line.isEmpty() ? u'?' : line.front()));
}

} // namespace
} // namespace kelvo
