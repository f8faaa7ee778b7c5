#include "adapters/console/line_backlog.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QStringList line(const QString& text) {
    return {text};
}

QString drained(LineBacklog& backlog) {
    QStringList all;
    while (auto taken = backlog.take()) {
        all.append(taken->join(QString()));
        backlog.finished();
    }
    return all.join(u'|');
}

TEST(LineBacklogTest, Lines_ComeInOrder) {
    LineBacklog backlog;
    EXPECT_TRUE(backlog.empty());
    backlog.add(line(QStringLiteral("a")));
    backlog.add({QStringLiteral("b"), QStringLiteral("c")});
    EXPECT_FALSE(backlog.empty());
    EXPECT_EQ(drained(backlog), u"a|bc");
    EXPECT_TRUE(backlog.empty());
}

TEST(LineBacklogTest, LineUnderWay_IsNotEmptyYet) {
    LineBacklog backlog;
    backlog.add(line(QStringLiteral("a")));
    EXPECT_TRUE(backlog.take().has_value());
    EXPECT_FALSE(backlog.empty());
    backlog.finished();
    EXPECT_TRUE(backlog.empty());
}

TEST(LineBacklogTest, Full_LeavesLinesOutAndSaysHowMany) {
    LineBacklog backlog(1000);
    backlog.add(line(QString(2000, u'x')));
    for (int i = 0; i < 3; ++i)
        backlog.add(line(QStringLiteral("lost")));
    EXPECT_EQ(drained(backlog), QString(2000, u'x') + u"|3 lines left out");
    EXPECT_TRUE(backlog.empty());
}

TEST(LineBacklogTest, LineUnderWay_CountsUntilItIsDone) {
    LineBacklog backlog(1000);
    backlog.add(line(QString(2000, u'x')));
    EXPECT_TRUE(backlog.take().has_value());
    backlog.add(line(QStringLiteral("lost")));
    backlog.finished();
    backlog.add(line(QStringLiteral("after")));
    EXPECT_EQ(drained(backlog), u"1 lines left out|after");
}

TEST(LineBacklogTest, AfterLeavingOut_HalfMustBeFreeFirst) {
    LineBacklog backlog(4000);
    for (int i = 0; i < 10; ++i)
        backlog.add(line(QString(400, QChar(u'0' + i)))); // About 900 bytes each.
    backlog.take();
    backlog.finished();
    backlog.add(line(QStringLiteral("lost"))); // Under the limit again, yet not under half of it.
    for (int i = 0; i < 2; ++i) {
        backlog.take();
        backlog.finished();
    }
    backlog.add(line(QStringLiteral("after")));
    EXPECT_TRUE(drained(backlog).endsWith(u"|6 lines left out|after"));
}

TEST(LineBacklogTest, Bound_CountsTheTextAndWhatALineCosts) {
    constexpr qsizetype cTwoLines = 2 * (64 + 64 + 2 * 10);
    const QStringList ten = line(QString(10, u'x'));
    LineBacklog full(cTwoLines);
    LineBacklog almostFull(cTwoLines + 1);
    // What was left out before makes no room.
    for (int round = 0; round < 2; ++round) {
        for (int i = 0; i < 3; ++i) {
            full.add(ten);
            almostFull.add(ten);
        }
        EXPECT_EQ(drained(full), u"xxxxxxxxxx|xxxxxxxxxx|1 lines left out");
        EXPECT_EQ(drained(almostFull), u"xxxxxxxxxx|xxxxxxxxxx|xxxxxxxxxx");
    }
}

TEST(LineBacklogTest, AfterLeavingOut_HalfIsNotFreeWhileHalfWaits) {
    LineBacklog backlog(4 * (64 + 64 + 2));
    for (const char* const text : {"a", "b", "c", "d", "lost"})
        backlog.add(line(QString::fromLatin1(text)));
    const auto takeOne = [&backlog] {
        EXPECT_TRUE(backlog.take());
        backlog.finished();
    };
    takeOne();
    takeOne();
    backlog.add(line(QStringLiteral("lost too")));
    takeOne();
    backlog.add(line(QStringLiteral("after")));
    EXPECT_EQ(drained(backlog), u"d|2 lines left out|after");
}

} // namespace
} // namespace kelvo
