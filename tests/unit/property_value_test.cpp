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

} // namespace
} // namespace kelvo
