#include "ui/activity_texts.h"
#include "ui/pass_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QDateTime cNow{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};

PassRecord passAgo(qint64 seconds, PassCause cause) {
    PassRecord pass;
    pass.began = cNow.addSecs(-seconds);
    pass.seconds = 4;
    pass.kind = PassKind::Remote;
    pass.cause = cause;
    pass.transfer = {TransferSource::Statistics, 3, 3000};
    return pass;
}

TEST(ActivityTextsTest, NoPass_IsSaid) {
    EXPECT_EQ(activityHeadline({}, cNow), QStringLiteral("No pass yet."));
}

TEST(ActivityTextsTest, Health_IsOneSentence) {
    const std::vector<PassRecord> records{passAgo(240, PassCause::Well),
                                          passAgo(300, PassCause::HostAway)};
    EXPECT_EQ(activityHeadline(records, cNow),
              QStringLiteral("Last success: 4 minutes ago, 3 files."));
}

TEST(ActivityTextsTest, Trouble_SaysSinceWhenWhyAndWhatToDo) {
    const std::vector<PassRecord> records{
        passAgo(60, PassCause::HostAway), passAgo(3600, PassCause::HostNotFound),
        passAgo(7200, PassCause::Well), passAgo(9000, PassCause::DiskFull)};
    const QString line = activityHeadline(records, cNow);
    EXPECT_TRUE(line.startsWith(QStringLiteral("Last success: 2 hours ago, 3 files. ")));
    EXPECT_TRUE(line.contains(QString(u"since " + beganText(records[1]) + u':')));
    EXPECT_TRUE(line.contains(wordsFor(PassCause::HostAway).sentence));
    EXPECT_TRUE(line.endsWith(wordsFor(PassCause::HostAway).nextStep));
}

TEST(ActivityTextsTest, TroubleFromTheBeginning_SaysThatToo) {
    const std::vector<PassRecord> records{passAgo(60, PassCause::KeyMissing)};
    EXPECT_TRUE(
        activityHeadline(records, cNow).startsWith(QStringLiteral("No success yet. In trouble")));
}

TEST(ActivityTextsTest, Report_HoldsEveryCommandAndSpellsControlsOut) {
    PassRecord pass = passAgo(0, PassCause::FilesNotTaken);
    CommandRecord check;
    check.role = CommandRole::HostCheck;
    check.command = QStringLiteral("ssh it");
    check.exitStatus = 0;
    check.text.head = QStringLiteral("me\r\n");
    CommandRecord pull;
    pull.command = QStringLiteral("rsync it");
    pull.exitStatus = 23;
    pull.text = {QStringLiteral("begin\x1b[31m"), QStringLiteral("end"), 77};
    CommandRecord given;
    given.command = QStringLiteral("rsync again");
    pass.commands = {check, pull, given};
    const QString report = passReport(pass);
    for (const QStringView part :
         {u"Next step: ", u"$ ssh it\n(exit status 0, 0 s)\nme\n", u"exit status 23",
          u"\\x1b[31m\n… 77 bytes left out …\nend\n", u"given up", u"the command did not say"})
        EXPECT_TRUE(report.contains(part)) << part.toUtf8().constData();
    EXPECT_FALSE(report.contains(u'\x1b'));
}

TEST(ActivityTextsTest, Csv_IsQuotedAndHoldsNoFormula) {
    PassRecord pass = passAgo(0, PassCause::Unknown);
    pass.lastLine = QStringLiteral("=HYPERLINK(\"evil\"),\nmore");
    pass.transfer.bytes.reset();
    const QString csv = passesAsCsv(std::vector{pass});
    EXPECT_TRUE(csv.startsWith(QStringLiteral("began,kind,cause,")));
    EXPECT_TRUE(csv.contains(
        QStringLiteral("2026-03-01T12:00:00Z,remote,unknown,Something went wrong.,3,,4.000,"
                       "\"'=HYPERLINK(\"\"evil\"\"),\nmore\"\r\n")))
        << csv.toStdString();
}

} // namespace
} // namespace kelvo
