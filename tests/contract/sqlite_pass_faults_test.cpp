// The record of passes where the system fails to read it: not damage.
#include "contract/sqlite_pass_fixture.h"
#include "support/sanitized.h"

#include <QProcess>

#include <cerrno>
#include <cstring>

namespace kelvo {
namespace {

class PassRecordReadErrorTest : public SqlitePassStoreTest {
protected:
    void SetUp() override {
        if (cSanitized)
            GTEST_SKIP() << "the sanitizer's library must be the first one that is loaded";
        const auto store = openStore();
        store->append(numbered(1));
        store->append(numbered(2));
    }

    /// What a program says that appends a pass while the call with the number `at` on the record
    /// and its log fails, all later ones too where it `lasts`.
    QString saidOf(int at, bool lasts) {
        QFile::remove(fTrace);
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KELVO_FAILING_CALL));
        environment.insert(QStringLiteral("FAILING_UNDER"), path);
        environment.insert(QStringLiteral("FAILING_TRACE"), fTrace);
        environment.insert(QStringLiteral("FAILING_ERRNO"), QString::number(EIO));
        environment.insert(QStringLiteral("FAILING_AT"), QString::number(at));
        environment.insert(QStringLiteral("FAILING_LASTS"),
                           lasts ? QStringLiteral("1") : QString());
        QProcess writer;
        writer.setProcessEnvironment(environment);
        writer.start(QStringLiteral(KELVO_RECORD_WRITER), {path, QStringLiteral("new")});
        EXPECT_TRUE(writer.waitForFinished(30'000));
        return QString::fromUtf8(writer.readAllStandardOutput()).trimmed();
    }

    /// The calls on the record and its log that the last program made, in their order.
    QStringList calls() const {
        QFile file(fTrace);
        return file.open(QFile::ReadOnly)
                   ? QString::fromUtf8(file.readAll()).split(u'\n', Qt::SkipEmptyParts)
                   : QStringList();
    }

    /// The numbers of those that read the record itself.
    std::vector<int> reads() const {
        std::vector<int> numbers;
        const QStringList all = calls();
        for (int i = 0; i < all.size(); ++i) {
            if (all[i] == QString(u"pread64 " + path))
                numbers.push_back(i + 1);
        }
        return numbers;
    }

    const QString fTrace = folder.filePath(QStringLiteral("trace"));
};

TEST_F(PassRecordReadErrorTest, RecordThatCannotBeRead_StaysWhereItIs) {
    ASSERT_EQ(saidOf(0, false), u"written");
    const std::vector<int> numbers = reads();
    ASSERT_GT(numbers.size(), 2U) << calls().join(u'\n').toStdString();
    int lost = 0;
    for (const int at : numbers) {
        QStringList expected = lines(*openStore());
        const QString said = saidOf(at, true);
        EXPECT_EQ(setAside(), QStringList()) << at;
        if (said == u"written")
            expected.prepend(QStringLiteral("new"));
        else
            ++lost;
        EXPECT_EQ(lines(*openStore()), expected) << at << ": " << said.toStdString();
    }
    EXPECT_GT(lost, 0);
}

TEST_F(PassRecordReadErrorTest, ErrorThatPasses_CostsNothing) {
    ASSERT_EQ(saidOf(0, false), u"written");
    for (const int at : reads()) {
        const QStringList before = lines(*openStore());
        EXPECT_EQ(saidOf(at, false), u"written") << at;
        EXPECT_EQ(setAside(), QStringList()) << at;
        EXPECT_EQ(lines(*openStore()), QStringList{QStringLiteral("new")} + before) << at;
    }
}

} // namespace
} // namespace kelvo
