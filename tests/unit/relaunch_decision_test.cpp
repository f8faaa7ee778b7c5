#include "app/start/relaunch_decision.h"
#include "support/stored_value.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

namespace kelvo {
namespace {

const QDateTime cNow =
    QDateTime::fromString(QStringLiteral("2024-05-06T07:08:09.250Z"), Qt::ISODateWithMs);

/// A record of relaunches that many seconds ago.
QVariantList ago(const std::vector<double>& seconds) {
    QVariantList dates;
    for (const double each : seconds)
        dates.append(recordedDate(cNow.addMSecs(-std::llround(each * 1000))));
    return dates;
}

/// The same as earlier versions stored it.
QVariantList datesAgo(const std::vector<int>& seconds) {
    QVariantList dates;
    for (const int each : seconds)
        dates.append(cNow.addSecs(-each));
    return dates;
}

struct Case {
    const char* what;
    QVariant record;
    unsigned long count;
    double seconds;
    std::optional<bool> escape; ///< its answer; nothing: there is none
    double interval;
    bool keepRunning;
    const char* line; ///< empty: none
};

void PrintTo(const Case& shown, std::ostream* out) {
    *out << shown.what;
}

constexpr const char* cNot4 = "NOT setting auto-relaunch because interval since 4 previous "
                              "launches is less than 30.0 sec (25)";

class RelaunchDecisionTest : public ::testing::TestWithParam<Case> {};

TEST_P(RelaunchDecisionTest, Case_IsDecided) {
    const Case& given = GetParam();
    std::vector<std::pair<unsigned long, double>> asked;
    RelaunchEscape escape;
    if (given.escape)
        escape = [&](unsigned long count, double interval) {
            asked.emplace_back(count, interval);
            return *given.escape;
        };
    const RelaunchDecision decision =
        decideRelaunch(given.record, given.count, given.seconds, escape, cNow);
    EXPECT_EQ(decision.keepRunning, given.keepRunning);
    EXPECT_EQ(decision.line.value_or(QString()), QString::fromLatin1(given.line));
    EXPECT_DOUBLE_EQ(relaunchInterval(given.record, given.count, given.seconds, cNow),
                     given.interval);

    const bool judged = given.count == 0 || given.interval < given.seconds;
    ASSERT_EQ(asked.size(), judged && given.escape ? 1U : 0U);
    if (!asked.empty()) {
        EXPECT_EQ(asked.front(), std::pair(given.count, given.interval));
    }
    QVariantList record =
        given.record.typeId() == QMetaType::QVariantList ? given.record.toList() : QVariantList();
    record.append(1714979289.25);
    EXPECT_TRUE(sameStoredValue(decision.record, record));
}

INSTANTIATE_TEST_SUITE_P(
    Table, RelaunchDecisionTest,
    ::testing::Values(
        Case{"no record", {}, 4, 30, false, 30, true, ""},
        Case{"empty record", QVariantList(), 4, 30, false, 30, true, ""},
        Case{"fewer dates than n wrap around", ago({3, 2, 1}), 4, 30, false, 30, true, ""},
        Case{"40 s for 4", ago({40, 20, 10, 5}), 4, 30, false, 40, true, ""},
        Case{"exactly the limit", ago({30, 20, 10, 5}), 4, 30, false, 30, true, ""},
        Case{"25 s for 4", ago({25, 20, 10, 5}), 4, 30, false, 25, false, cNot4},
        Case{"25 s for 4, nobody to ask", ago({25, 20, 10, 5}), 4, 30, {}, 25, false, cNot4},
        Case{"25 s for 4, the escape says on", ago({25, 20, 10, 5}), 4, 30, true, 25, true,
             cNot4 + 4},
        Case{"only the n-th most recent counts", ago({900, 800, 25, 20, 10, 5}), 4, 30, false, 25,
             false, cNot4},
        Case{"a little less than the limit", ago({29.75, 1, 1, 1}), 4, 30, false, 29.75, false,
             "NOT setting auto-relaunch because interval since 4 previous launches is less than "
             "30.0 sec (30)"},
        Case{"a fraction less than the limit", ago({29.999, 1, 1, 1}), 4, 30, false, 29.999, false,
             "NOT setting auto-relaunch because interval since 4 previous launches is less than "
             "30.0 sec (30)"},
        Case{"fractions that are none in binary", ago({30.1, 1, 1, 1}), 4, 30.1, false, 30.1, true,
             ""},
        Case{"dates of an earlier version", datesAgo({25, 20, 10, 5}), 4, 30, false, 25, false,
             cNot4},
        Case{"no number", QVariantList{std::nan("")}, 1, 30, false, 30, true, ""},
        Case{"a number beyond all dates", QVariantList{-1e300}, 1, 30, false, 30, true, ""},
        Case{"n = 1", ago({100, 0.5}), 1, 2.25, false, 0.5, false,
             "NOT setting auto-relaunch because interval since 1 previous launches is less than "
             "2.2 sec (0)"},
        Case{"n = 0 always asks", ago({1}), 0, 30, false, 30, false,
             "NOT setting auto-relaunch because interval since 0 previous launches is less than "
             "30.0 sec (30)"},
        Case{"n = 0, the escape says on",
             {},
             0,
             30,
             true,
             30,
             true,
             "setting auto-relaunch because interval since 0 previous launches is less than "
             "30.0 sec (30)"},
        Case{"n = 0, nobody to ask",
             {},
             0,
             12.5,
             {},
             12.5,
             false,
             "NOT setting auto-relaunch because interval since 0 previous launches is less than "
             "12.5 sec (12)"},
        Case{"no date at the place", QVariantList{QStringLiteral("x"), 1.5, 1.5, 1.5}, 4, 30, false,
             30, true, ""},
        Case{"no date elsewhere does not matter",
             ago({25}) + QVariantList{1, true, QStringLiteral("x")}, 4, 30, false, 25, false,
             cNot4},
        Case{"a text for a record", QStringLiteral("yesterday"), 1, 30, false, 30, true, ""},
        Case{"a clock that was set back", ago({-60}), 1, 30, false, -60, false,
             "NOT setting auto-relaunch because interval since 1 previous launches is less than "
             "30.0 sec (-60)"},
        Case{"the largest n", ago({1, 1}), std::numeric_limits<unsigned long>::max(), 30, false, 30,
             true, ""},
        Case{"no limit at all", ago({0, 0, 0, 0}), 4, 0, false, 0, true, ""}));

TEST(OrdinaryStartTest, IsOneWithoutTheArgument_UnlessEveryStartIsJudged) {
    EXPECT_TRUE(isOrdinaryStart(4, false));
    EXPECT_FALSE(isOrdinaryStart(4, true));
    EXPECT_FALSE(isOrdinaryStart(0, false));
    EXPECT_FALSE(isOrdinaryStart(0, true));
}

} // namespace
} // namespace kelvo
