#include "support/dnssd_service.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QDateTime cAdded(QDate(2026, 11, 21), QTime(10, 30, 15), Qt::UTC);

TEST(DNSSD_ServiceTest, EveryField_IsInTheDictionaryUnderItsName) {
    DNSSD_Service service{"n", "t", "s", "d", "h", "1.2.3.4", "m", "f", cAdded, 7, 445, true};
    EXPECT_EQ(service.asDictionary(), (QVariantMap{{"name", "n"},
                                                   {"type", "t"},
                                                   {"scheme", "s"},
                                                   {"domain", "d"},
                                                   {"hostTarget", "h"},
                                                   {"ip4Address", "1.2.3.4"},
                                                   {"macAddress", "m"},
                                                   {"fullName", "f"},
                                                   {"dateAdded", cAdded},
                                                   {"interface", qlonglong{7}},
                                                   {"hostPort", qlonglong{445}},
                                                   {"available", true}}));
}

TEST(DNSSD_ServiceTest, EmptyRecord_HasTwelveEntriesOfTheirTypes) {
    const auto dictionary = DNSSD_Service().asDictionary();
    ASSERT_TRUE(dictionary);
    EXPECT_EQ(dictionary->size(), 12);
    std::map<int, int> kinds;
    for (const QVariant& value : *dictionary)
        ++kinds[value.typeId()];
    EXPECT_EQ(kinds, (std::map<int, int>{{QMetaType::Bool, 1},
                                         {QMetaType::LongLong, 2},
                                         {QMetaType::QString, 8},
                                         {QMetaType::QDateTime, 1}}));
    EXPECT_TRUE(dictionary->value(QStringLiteral("dateAdded")).toDateTime().isValid());
}

TEST(DNSSD_ServiceTest, NumbersFromTwoToThe31_StayPositive) {
    DNSSD_Service service;
    service.interface = 0x80000000U;
    service.hostPort = 0xffffffffU;
    const auto dictionary = service.asDictionary();
    EXPECT_EQ(dictionary->value(QStringLiteral("interface")), QVariant(qlonglong{2147483648}));
    EXPECT_EQ(dictionary->value(QStringLiteral("hostPort")), QVariant(qlonglong{4294967295}));
}

} // namespace
} // namespace kelvo
