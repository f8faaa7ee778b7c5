#include "ui/activity_texts.h"
#include "ui/pass_words.h"

#include <QLocale>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QDateTime cNow{QDate(2026, 3, 1), QTime(12, 0), Qt::UTC};

PassRecord passAgo(qint64 seconds, PassCause cause) {
    PassRecord pass;
    pass.began = cNow.addSecs(-seconds);
    pass.seconds = 4;
    pass.kind = PassKind::Remote;
    pass.verdict = HostVerdict::Valid;
    pass.cause = cause;
    pass.transfer = {TransferSource::Statistics, 3, 3000};
    return pass;
}

CommandRecord wellCheck() {
    CommandRecord check;
    check.role = CommandRole::HostCheck;
    check.command = QStringLiteral("ssh it");
    check.exitStatus = 0;
    check.text.head = QStringLiteral("me\r\n");
    return check;
}

CommandRecord partialPull(const CapturedText& text) {
    CommandRecord pull;
    pull.command = QStringLiteral("rsync it");
    pull.exitStatus = 23;
    pull.text = text;
    return pull;
}

TEST(ActivityTextsTest, Report_HoldsEveryCommandAndSpellsControlsOut) {
    PassRecord pass = passAgo(0, PassCause::FilesNotTaken);
    CommandRecord given;
    given.command = QStringLiteral("rsync again");
    pass.commands = {wellCheck(),
                     partialPull({QStringLiteral("begin\x1b[31m"), QStringLiteral("end"), 77}),
                     given};
    const QString report = passReport(pass);
    for (const QStringView part :
         {u"Next step: ", u"$ ssh it\n(exit status 0, 0 s)\nme\n", u"exit status 23",
          u"\\x1b[31m\n… 77 bytes left out …\nend\n", u"given up", u"the command did not say"})
        EXPECT_TRUE(report.contains(part)) << part.toUtf8().constData();
    EXPECT_FALSE(report.contains(u'\x1b'));
}

TEST(ActivityTextsTest, Report_ReadsAsAWhole) {
    PassRecord pass = passAgo(0, PassCause::FilesNotTaken);
    pass.arrivals = {{"/in/a.mov", 1'200'000'000, cNow}, {"/in/b.mov", 5, cNow}};
    CommandRecord pull = partialPull({QStringLiteral("begin"), QStringLiteral("end"), 1});
    pull.seconds = 3;
    pull.transfer = {TransferSource::Lines, 1, 1500};
    CommandRecord movies = pull;
    movies.transfer = {TransferSource::Statistics, 0, 0};
    movies.text = {QStringLiteral("done"), {}, 0};
    CommandRecord after;
    after.role = CommandRole::AfterArrivals;
    after.command = QStringLiteral("tell");
    after.exitStatus = 0;
    pass.commands = {wellCheck(), pull, movies, after};
    EXPECT_EQ(passReport(pass),
              QString(beganText(pass) +
                      QStringLiteral(
                          " – Some files could not be taken.\n"
                          "Next step: See the pass's text for their names and reasons.\n"
                          "Remote pass, 3 files, 3.0 kB, 4 s\n"
                          "\nArrived:\n  /in/a.mov, 1.2 GB\n  /in/b.mov, 5 bytes\n"
                          "\n$ ssh it\n(exit status 0, 0 s)\nme\n"
                          "\n$ rsync it\n(exit status 23, 3 s, 1 file, 1.5 kB, counted from its "
                          "lines)\nbegin\n… 1 byte left out …\nend\n"
                          "\n$ rsync it\n(exit status 23, 3 s, nothing new, by rsync's own "
                          "figures)\ndone\n"
                          "\nRun after arrivals:\n$ tell\n(exit status 0, 0 s)\n")))
        << passReport(pass).toStdString();
}

TEST(ActivityTextsTest, CommandWithoutAnExitStatus_SaysWhatEndedIt) {
    CommandRecord pull;
    pull.command = QStringLiteral("rsync it");
    for (const auto& [cause, words] :
         {std::pair(PassCause::Cancelled, u"\n(ended when the pass was cancelled, 0 s, "),
          std::pair(PassCause::Interrupted, u"\n(given up when the program ended, 0 s, ")}) {
        PassRecord pass = passAgo(0, cause);
        pass.commands = {pull};
        EXPECT_TRUE(passReport(pass).contains(
            QString(words + QStringLiteral("files unknown, the command did not say)\n"))))
            << passReport(pass).toStdString();
    }
}

TEST(ActivityTextsTest, PassThatWentWell_HasNoNextStep) {
    const PassRecord pass = passAgo(0, PassCause::Well);
    EXPECT_EQ(passReport(pass),
              QString(beganText(pass) + QStringLiteral(" – All is well.\n"
                                                       "Remote pass, 3 files, 3.0 kB, 4 s\n")));
}

TEST(ActivityTextsTest, Report_NamesTheKindOfPass) {
    PassRecord pass = passAgo(0, PassCause::Well);
    EXPECT_TRUE(passReport(pass).contains(u"\nRemote pass, "));
    pass.kind = PassKind::Plain;
    EXPECT_TRUE(passReport(pass).contains(u"\nPlain pass, "));
}

TEST(ActivityTextsTest, CancelledPass_IsToldWithItsArrivalsAndTheCommandAfterThem) {
    PassRecord pass = passAgo(0, PassCause::Cancelled);
    pass.arrivals = {{"/in/a\x1b[31m\n.mov", 1'200'000'000, cNow}};
    CommandRecord pull;
    pull.command = QStringLiteral("rsync it");
    CommandRecord after;
    after.role = CommandRole::AfterArrivals;
    after.command = QStringLiteral("tell");
    after.exitStatus = 3;
    pass.commands = {pull, after};
    const QString report = passReport(pass);
    for (const QStringView part :
         {u"Cancelled by you.", u"\nArrived:\n  /in/a\\x1b[31m\\x0a.mov, 1.2 GB\n",
          u"$ rsync it\n(ended when the pass was cancelled",
          u"\nRun after arrivals:\n$ tell\n(exit status 3"})
        EXPECT_TRUE(report.contains(part)) << part.toUtf8().constData() << report.toStdString();
}

TEST(ActivityTextsTest, ManyArrivals_AreCountedNotListed) {
    PassRecord pass = passAgo(0, PassCause::Well);
    pass.arrivals.assign(50'000, {"/in/a.mov", 1, cNow});
    const QString report = passReport(pass);
    EXPECT_EQ(report.count(QStringLiteral("/in/a.mov")), 1000);
    EXPECT_TRUE(report.endsWith(QStringLiteral("\n  … and 49000 more\n")));
    pass.arrivals.resize(1000);
    EXPECT_TRUE(passReport(pass).endsWith(QStringLiteral("/in/a.mov, 1 bytes\n")))
        << "as many as are listed";
}

TEST(ActivityTextsTest, ArrivedName_IsRelativeAndOneHarmlessLine) {
    const QString folder = QStringLiteral("/in/Films ü");
    EXPECT_EQ(arrivedName("/in/Films ü/Café/a.mov", folder), QStringLiteral("Café/a.mov"));
    EXPECT_EQ(arrivedName("/in/Films ü/a.mov", folder + u'/'), QStringLiteral("a.mov"));
    EXPECT_EQ(arrivedName("/in/Films übrig/a.mov", folder),
              QStringLiteral("/in/Films übrig/a.mov"));
    EXPECT_EQ(arrivedName("/in/a.mov", {}), QStringLiteral("/in/a.mov"));
    EXPECT_EQ(arrivedName("/\xffé\xe2\x82\t\xe2\x80\xaevom.a", {}),
              QStringLiteral("/\\xffé\\xe2\\x82\\x09\\u202evom.a"));
    EXPECT_EQ(arrivedName("\xf0\x9f\x8e\xac\xff", {}), QStringLiteral("🎬\\xff"));
}

TEST(ActivityTextsTest, Sizes_HaveThreeFigures) {
    EXPECT_EQ(bytesText(0), QStringLiteral("0 bytes"));
    EXPECT_EQ(bytesText(999), QStringLiteral("999 bytes"));
    EXPECT_EQ(bytesText(1'240'000'000), QStringLiteral("1.2 GB"));
    EXPECT_EQ(bytesText(12'340'000), QStringLiteral("12.3 MB"));
    EXPECT_EQ(bytesText(640'000'000), QStringLiteral("640 MB"));
}

TEST(ActivityTextsTest, Days_AreNamedAndSummedUp) {
    const QDate today(2026, 3, 1);
    EXPECT_EQ(dayText(today, today), QStringLiteral("Today"));
    EXPECT_EQ(dayText(QDate(2026, 2, 28), today), QStringLiteral("Yesterday"));
    EXPECT_EQ(dayText(QDate(2026, 2, 27), today),
              QLocale().toString(QDate(2026, 2, 27), QLocale::LongFormat));
    const DayOfPasses first{today, 1, 1'500'000'000, true};
    EXPECT_EQ(dayReport(first), QStringLiteral("1.5 GB, 1 movie; a pass was in trouble"));
    EXPECT_EQ(totalText(std::vector{first, DayOfPasses{today, 47, 210'500'000'000, false}}, 30),
              QStringLiteral("212 GB, 48 movies in 30 days"));
    EXPECT_EQ(totalText({}, 30), QStringLiteral("nothing new in 30 days"));
}

TEST(ActivityTextsTest, Times_AreInHoursAndMinutesOfThisMachine) {
    const auto at = [](int hour, int minute) {
        return QDateTime(QDate(2026, 3, 1), QTime(hour, minute, 7)).toUTC();
    };
    EXPECT_EQ(timeText(at(15, 22)), QStringLiteral("15:22"));
    EXPECT_EQ(foldedText(47, at(9, 5), at(18, 40)),
              QStringLiteral("47 passes, nothing new, 09:05 to 18:40"));
}

TEST(ActivityTextsTest, RunningPass_TellsWhatIsKnown) {
    WorkState work;
    work.phase = WorkPhase::Running;
    EXPECT_EQ(runningText(work), QStringLiteral("Running"));
    work.step = QStringLiteral("First pull");
    work.count = QStringLiteral("file 7 of 15");
    work.share = 0.489;
    EXPECT_EQ(runningText(work), QStringLiteral("First pull, file 7 of 15, 48 %"));
    work.file = QStringLiteral("a.mov");
    work.phase = WorkPhase::Cancelling;
    EXPECT_EQ(runningReport(work),
              QStringLiteral("First pull, file 7 of 15, 48 %, being cancelled\na.mov\n"));
    work.share = 1;
    EXPECT_EQ(runningText(work),
              QStringLiteral("First pull, file 7 of 15, 100 %, being cancelled"));
    for (const auto& [phase, runs] :
         {std::pair(WorkPhase::Off, false), std::pair(WorkPhase::Missing, false),
          std::pair(WorkPhase::Running, true), std::pair(WorkPhase::Finishing, true),
          std::pair(WorkPhase::Cancelling, true), std::pair(WorkPhase::Resting, false)}) {
        work.phase = phase;
        EXPECT_EQ(isRunning(work), runs) << static_cast<int>(phase);
    }
}

TEST(ActivityTextsTest, Csv_IsQuotedAndHoldsNoFormula) {
    PassRecord pass = passAgo(0, PassCause::Unknown);
    pass.lastLine = QStringLiteral("=HYPERLINK(\"evil\"),\nmore");
    pass.transfer.bytes.reset();
    const QString csv = passesAsCsv(std::vector{pass});
    EXPECT_TRUE(csv.startsWith(
        QStringLiteral("began,kind,cause,outcome,files,bytes,seconds,last line\r\n2026-")));
    EXPECT_TRUE(csv.contains(
        QStringLiteral("2026-03-01T12:00:00Z,remote,unknown,Something went wrong.,3,,4.000,"
                       "\"'=HYPERLINK(\"\"evil\"\"),\nmore\"\r\n")))
        << csv.toStdString();
}

/// The last cell of the only row.
QString lastCell(const QString& lastLine) {
    PassRecord pass = passAgo(0, PassCause::Well);
    pass.lastLine = lastLine;
    const QString csv = passesAsCsv(std::vector{pass});
    const QString before = QStringLiteral(",3,3000,4.000,");
    const qsizetype begin = csv.indexOf(before) + before.size();
    return csv.sliced(begin, csv.size() - begin - 2);
}

TEST(ActivityTextsTest, EachSignThatACsvCellCannotHoldBare_IsQuoted) {
    EXPECT_EQ(lastCell(QStringLiteral("plain; 'it' is")), u"plain; 'it' is");
    EXPECT_EQ(lastCell(QStringLiteral("a,b")), u"\"a,b\"");
    EXPECT_EQ(lastCell(QStringLiteral("a\nb")), u"\"a\nb\"");
    EXPECT_EQ(lastCell(QStringLiteral("5\" disk\"")), u"\"5\"\" disk\"\"\"");
    EXPECT_EQ(lastCell(QStringLiteral("a\rb")), u"a\\x0db");
    for (char other = '!'; other <= '~'; ++other) {
        const QString text = QString(QLatin1Char(other)) + u'1';
        if (!QStringLiteral("=+-@,\"").contains(QLatin1Char(other))) {
            EXPECT_EQ(lastCell(text), text);
        }
    }
    for (const QChar sign : QStringView(u"=+-@\t")) {
        const QString begun = sign + QStringLiteral("1");
        EXPECT_EQ(lastCell(begun), QString(u'\'' + begun)) << int(sign.unicode());
        const QString within = u'1' + begun;
        EXPECT_EQ(lastCell(within), within) << int(sign.unicode());
    }
}

TEST(ActivityTextsTest, Csv_NamesTheKindOfPass) {
    PassRecord pass = passAgo(0, PassCause::Well);
    EXPECT_TRUE(passesAsCsv(std::vector{pass}).contains(u"Z,remote,"));
    pass.kind = PassKind::Plain;
    EXPECT_TRUE(passesAsCsv(std::vector{pass}).contains(u"Z,plain,"));
}

} // namespace
} // namespace kelvo
