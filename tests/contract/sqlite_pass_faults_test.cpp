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

    using Failing = std::vector<std::pair<const char*, QString>>;

    /// What a program says that appends a pass while `failing` is among its variables.
    QString saidWith(const Failing& failing) const {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& [name, value] : failing)
            environment.insert(QString::fromLatin1(name), value);
        QProcess writer;
        writer.setProcessEnvironment(environment);
        writer.start(QStringLiteral(KELVO_RECORD_WRITER), {path, QStringLiteral("new")});
        EXPECT_TRUE(writer.waitForFinished(30'000));
        return QString::fromUtf8(writer.readAllStandardOutput()).trimmed();
    }

    /// The same while the reading with the number `at` of the record and its log fails, all later
    /// ones too where it `lasts`.
    QString saidOf(int at, bool lasts) const {
        QFile::remove(fTrace);
        return saidWith({{"LD_PRELOAD", QStringLiteral(KELVO_FAILING_CALL)},
                         {"FAILING_UNDER", path},
                         {"FAILING_ONLY", QStringLiteral("read")},
                         {"FAILING_TRACE", fTrace},
                         {"FAILING_ERRNO", QString::number(EIO)},
                         {"FAILING_AT", QString::number(at)},
                         {"FAILING_LASTS", lasts ? QStringLiteral("1") : QString()}});
    }

    /// How often a program reads that appends a pass.
    int readings() {
        EXPECT_EQ(saidOf(0, false), u"written");
        QFile file(fTrace);
        EXPECT_TRUE(file.open(QFile::ReadOnly));
        const auto count = static_cast<int>(file.readAll().count('\n'));
        EXPECT_GT(count, 2);
        return count;
    }

    const QString fTrace = folder.filePath(QStringLiteral("trace"));
};

TEST_F(PassRecordReadErrorTest, RecordThatCannotBeRead_StaysWhereItIs) {
    int refused = 0;
    for (int at = readings(); at > 0; --at) {
        QStringList expected = lines(*openStore());
        const QString said = saidOf(at, true);
        EXPECT_EQ(setAside(), QStringList()) << at;
        if (said == u"written")
            expected.prepend(QStringLiteral("new"));
        refused += said != u"written" ? 1 : 0;
        EXPECT_EQ(lines(*openStore()), expected) << at << ": " << said.toStdString();
    }
    EXPECT_GT(refused, 0);
}

TEST_F(PassRecordReadErrorTest, RecordWithABadPlace_StaysWhereItIsAndTheSystemsWordsAreSaid) {
    EXPECT_EQ(saidWith({{"LD_PRELOAD", QStringLiteral(KELVO_FAILING_FILE)},
                        {"FAILING_CALL", QStringLiteral("bad-place")},
                        {"FAILING_FILE", path},
                        {"FAILING_ERRNO", QString::number(EIO)}}),
              QString::fromLocal8Bit(::strerror(EIO)));
    EXPECT_EQ(setAside(), QStringList());
    EXPECT_EQ(lines(*openStore()).join(u' '), u"2 1");
}

TEST_F(PassRecordReadErrorTest, ErrorThatPasses_CostsNoRecord) {
    int written = 0;
    for (int at = readings(); at > 0; --at) {
        QStringList expected = lines(*openStore());
        const QString said = saidOf(at, false);
        EXPECT_EQ(setAside(), QStringList()) << at;
        if (said == u"written")
            expected.prepend(QStringLiteral("new"));
        written += said == u"written" ? 1 : 0;
        EXPECT_EQ(lines(*openStore()), expected) << at << ": " << said.toStdString();
    }
    EXPECT_GT(written, 0);
}

} // namespace
} // namespace kelvo
