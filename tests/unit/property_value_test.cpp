#include "support/property_value.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <limits>

namespace kelvo {
namespace {

TEST(PropertyValueTest, Bool_FromBoolNumberAndText) {
    for (const QVariant& yes : {QVariant(true), QVariant(1), QVariant(-1LL), QVariant(0.5),
                                QVariant("YES"), QVariant("true"), QVariant("1"), QVariant("True")})
        EXPECT_TRUE(boolValue(yes)) << qPrintable(yes.toString());
    for (const QVariant& no :
         {QVariant(), QVariant(false), QVariant(0), QVariant(0.0), QVariant("NO"), QVariant("0"),
          QVariant(""), QVariant("maybe"), QVariant(QVariantList{1}), QVariant(QVariantMap())})
        EXPECT_FALSE(boolValue(no)) << qPrintable(no.toString());
}

TEST(PropertyValueTest, Integer_FromNumberAndText) {
    EXPECT_EQ(integerValue(QVariant(101)), 101);
    EXPECT_EQ(integerValue(QVariant(true)), 1);
    EXPECT_EQ(integerValue(QVariant(qint64{9'007'199'254'740'993})), 9'007'199'254'740'993)
        << "more than a double can hold exactly";
    EXPECT_EQ(integerValue(QVariant(2.9)), 2);
    EXPECT_EQ(integerValue(QVariant(-2.9)), -2);
    EXPECT_EQ(integerValue(QVariant(" 102 ")), 102);
    EXPECT_EQ(integerValue(QVariant("100 percent")), 100);
    EXPECT_EQ(integerValue(QVariant("9223372036854775807")), std::numeric_limits<qint64>::max());
    EXPECT_EQ(integerValue(QVariant("none")), 0);
    EXPECT_EQ(integerValue(QVariant()), 0);
    EXPECT_EQ(integerValue(QVariant(QDateTime::currentDateTime())), 0);
}

TEST(PropertyValueTest, Integer_BeyondTheLimitsStopsThere) {
    EXPECT_EQ(integerValue(QVariant(1e300)), std::numeric_limits<qint64>::max());
    EXPECT_EQ(integerValue(QVariant(-1e300)), std::numeric_limits<qint64>::min());
    EXPECT_EQ(integerValue(QVariant(std::numeric_limits<quint64>::max())),
              std::numeric_limits<qint64>::max());
    EXPECT_EQ(integerValue(QVariant(std::numeric_limits<double>::quiet_NaN())), 0);
}

TEST(PropertyValueTest, Double_FromNumberAndText) {
    EXPECT_DOUBLE_EQ(doubleValue(QVariant(0.5)), 0.5);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant(30)), 30.0);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant("-1.5e2 s")), -150.0);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant("3e")), 3.0);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant("+.5")), 0.5);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant("e5")), 0.0);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant("nan")), 0.0);
    EXPECT_DOUBLE_EQ(doubleValue(QVariant()), 0.0);
}

TEST(PropertyValueTest, String_FromTextAndNumberOnly) {
    EXPECT_EQ(stringValue(QVariant("a b")), QStringLiteral("a b"));
    EXPECT_EQ(stringValue(QVariant("")), QString());
    EXPECT_EQ(stringValue(QVariant(100)), QStringLiteral("100"));
    EXPECT_EQ(stringValue(QVariant(0.5)), QStringLiteral("0.5"));
    EXPECT_EQ(stringValue(QVariant(true)), QStringLiteral("1"));
    EXPECT_EQ(stringValue(QVariant()), std::nullopt);
    EXPECT_EQ(stringValue(QVariant(QVariantMap())), std::nullopt);
    EXPECT_EQ(stringValue(QVariant(QByteArray("raw"))), std::nullopt);
}

TEST(PropertyValueTest, Dictionary_FromDictionaryOnly) {
    const QVariantMap map{{QStringLiteral("a"), 1}};
    EXPECT_EQ(dictionaryValue(QVariant(map)), map);
    EXPECT_EQ(dictionaryValue(QVariant("x")), std::nullopt);
    EXPECT_EQ(dictionaryValue(QVariant()), std::nullopt);
}

TEST(PropertyValueTest, NumberAtTheStartOfAText_EndsWhereItStopsToBeOne) {
    for (const auto& [text, number] :
         {std::pair("5.", 5.0), std::pair("-5.5.5", -5.5), std::pair("1e+2", 100.0),
          std::pair("1E-1", 0.1), std::pair("1e+", 1.0), std::pair("1e2e3", 100.0),
          std::pair(".", 0.0), std::pair("-", 0.0), std::pair("+", 0.0), std::pair("", 0.0),
          std::pair("--5", 0.0), std::pair("0:5", 0.0), std::pair("12:5", 12.0),
          std::pair("9/1", 9.0), std::pair("\t 0789", 789.0), std::pair("+1.5", 1.5),
          std::pair("-0.25", -0.25), std::pair("1,5", 1.0)})
        EXPECT_DOUBLE_EQ(doubleValue(QVariant(QString::fromLatin1(text))), number) << text;
}

TEST(PropertyValueTest, EveryKindOfNumber_Counts) {
    for (const QVariant& two : {QVariant(2), QVariant(2U), QVariant(2LL), QVariant(2ULL),
                                QVariant(2.0), QVariant(2.0F)}) {
        EXPECT_TRUE(boolValue(two)) << two.typeName();
        EXPECT_EQ(integerValue(two), 2) << two.typeName();
        EXPECT_DOUBLE_EQ(doubleValue(two), 2.0) << two.typeName();
        EXPECT_EQ(stringValue(two), QStringLiteral("2")) << two.typeName();
    }
    EXPECT_EQ(stringValue(QVariant(false)), QStringLiteral("0"));
    EXPECT_EQ(stringValue(QVariant(0.5F)), QStringLiteral("0.5"));
    EXPECT_TRUE(boolValue(QVariant(" Yes ")));
    EXPECT_TRUE(boolValue(QVariant("0.5")));
    EXPECT_FALSE(boolValue(QVariant("yess")));
}

TEST(PropertyValueTest, IntegersAtTheLimits_AreExact) {
    constexpr qint64 cMost = std::numeric_limits<qint64>::max();
    EXPECT_EQ(integerValue(QVariant(quint64{cMost})), cMost);
    EXPECT_EQ(integerValue(QVariant(quint64{cMost} + 1)), cMost);
    EXPECT_EQ(integerValue(QVariant("9223372036854775808")), cMost);
    EXPECT_EQ(integerValue(QVariant("-9223372036854775809")), std::numeric_limits<qint64>::min());
    EXPECT_EQ(integerValue(QVariant(0x1p63)), cMost);
    EXPECT_EQ(integerValue(QVariant(-0x1p63)), std::numeric_limits<qint64>::min());
    EXPECT_EQ(integerValue(QVariant(0x1p62)), qint64{1} << 62);
}

} // namespace
} // namespace kelvo
