#include "support/stored_value.h"

#include <QDateTime>
#include <QUrl>

#include <gtest/gtest.h>

#include <limits>

namespace kelvo {
namespace {

TEST(StoredValueTest, Integers_BecomeOneKind) {
    for (const QVariant& five :
         {QVariant(5), QVariant(5U), QVariant(5LL), QVariant(5ULL), QVariant::fromValue<short>(5),
          QVariant::fromValue<uchar>(5), QVariant::fromValue<long>(5)})
        EXPECT_TRUE(sameStoredValue(storedValue(five), QVariant(qlonglong{5}))) << five.typeName();
    const QVariant most(std::numeric_limits<quint64>::max());
    EXPECT_TRUE(sameStoredValue(storedValue(most), most));
}

TEST(StoredValueTest, Dates_AreUtcAndWholeSeconds) {
    const QDateTime local(QDate(2026, 7, 1), QTime(12, 0, 0, 999), Qt::OffsetFromUTC, 7200);
    const QVariant stored = storedValue(local);
    EXPECT_EQ(stored.toDateTime().timeSpec(), Qt::UTC);
    EXPECT_EQ(stored.toDateTime().toString(Qt::ISODateWithMs),
              QStringLiteral("2026-07-01T10:00:00.000Z"));
    EXPECT_FALSE(storedValue(QDateTime()).isValid());
    EXPECT_FALSE(storedValue(QDateTime(QDate(999, 1, 1), QTime(0, 0), Qt::UTC)).isValid());
    EXPECT_FALSE(storedValue(QDateTime(QDate(10000, 1, 1), QTime(0, 0), Qt::UTC)).isValid());
}

TEST(StoredValueTest, Containers_LoseOnlyWhatDoesNotFit) {
    const QVariant value = QVariantMap{
        {"list", QVariantList{1, QUrl(), QStringLiteral("x")}},
        {"hash", QVariantHash{{"a", 1.5F}}},
        {"url", QUrl(QStringLiteral("smb://host"))},
    };
    const QVariant expected = QVariantMap{
        {"list", QVariantList{qlonglong{1}, QStringLiteral("x")}},
        {"hash", QVariantMap{{"a", 1.5}}},
    };
    EXPECT_TRUE(sameStoredValue(storedValue(value), expected));
    EXPECT_TRUE(sameStoredValue(storedValue(QStringList{"a"}), QVariantList{"a"}));
}

TEST(StoredValueTest, NestedTooDeep_IsCutThere) {
    QVariant value = QVariantList();
    for (int depth = 1; depth < cDeepestStoredValue + 10; ++depth)
        value = QVariantList{value};
    int depth = 0;
    for (QVariant part = storedValue(value); part.isValid(); part = part.toList().value(0))
        ++depth;
    EXPECT_EQ(depth, cDeepestStoredValue);
    value = QVariantMap();
    for (depth = 1; depth < cDeepestStoredValue + 10; ++depth)
        value = depth % 2 == 0 ? QVariant(QVariantMap{{"x", value}}) : QVariantHash{{"x", value}};
    depth = 0;
    for (QVariant part = storedValue(value); part.isValid(); part = part.toMap().value("x"))
        ++depth;
    EXPECT_EQ(depth, cDeepestStoredValue);
}

TEST(StoredValueTest, Same_NeedsTheSameTypeInAllParts) {
    EXPECT_FALSE(sameStoredValue(true, qlonglong{1}));
    EXPECT_FALSE(sameStoredValue(qlonglong{1}, 1.0));
    EXPECT_FALSE(sameStoredValue(QStringLiteral("1"), qlonglong{1}));
    EXPECT_FALSE(sameStoredValue(QVariant(), QString()));
    EXPECT_FALSE(sameStoredValue(QVariantList{true}, QVariantList{qlonglong{1}}));
    EXPECT_FALSE(sameStoredValue(QVariantMap{{"a", 1.0}}, QVariantMap{{"a", qlonglong{1}}}));
    EXPECT_FALSE(sameStoredValue(QVariantMap{{"a", 1.0}}, QVariantMap{{"b", 1.0}}));
    EXPECT_FALSE(sameStoredValue(QVariantList{1.0}, QVariantList{1.0, 1.0}));
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_TRUE(sameStoredValue(nan, nan));
    EXPECT_TRUE(sameStoredValue(QVariantMap{{"a", QVariantList{nan}}},
                                QVariantMap{{"a", QVariantList{nan}}}));
}

TEST(StoredValueTest, IntegersBeyondTheRange_StayAsTheyAre) {
    constexpr auto cMost = static_cast<quint64>(std::numeric_limits<qint64>::max());
    EXPECT_EQ(storedValue(cMost).typeId(), QMetaType::LongLong);
    EXPECT_EQ(storedValue(cMost + 1).typeId(), QMetaType::ULongLong);
    EXPECT_EQ(storedValue(cMost + 1).toULongLong(), cMost + 1);
}

TEST(StoredValueTest, Years1000To9999_AreDates) {
    for (const int year : {1000, 9999}) {
        const QDateTime date(QDate(year, 12, 31), QTime(23, 59, 59), Qt::UTC);
        EXPECT_EQ(storedValue(date).toDateTime(), date) << year;
    }
}

TEST(StoredValueTest, Same_NeedsTheSameContentInAllParts) {
    const double nan = std::numeric_limits<double>::quiet_NaN();
    EXPECT_FALSE(sameStoredValue(nan, 1.0));
    EXPECT_FALSE(sameStoredValue(1.0, nan));
    EXPECT_FALSE(sameStoredValue(1.0, 2.0));
    const QVariantMap one{{"a", 1.0}};
    const QVariantMap two{{"a", 1.0}, {"b", 1.0}};
    EXPECT_FALSE(sameStoredValue(one, two));
    EXPECT_FALSE(sameStoredValue(two, one));
    EXPECT_FALSE(sameStoredValue(two, QVariantMap{{"a", 1.0}, {"b", 2.0}}));
    EXPECT_TRUE(sameStoredValue(two, QVariantMap(two)));
    EXPECT_FALSE(sameStoredValue(QStringLiteral("a"), QStringLiteral("b")));
}

} // namespace
} // namespace kelvo
