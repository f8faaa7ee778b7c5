#include "support/service_name_rules.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

TEST(ServiceNameRulesTest, OrdinaryNames_Pass) {
    for (const QString& name :
         {QStringLiteral("Remote Mac"), QStringLiteral("Ann's Mac (2) [old] {x}"),
          QStringLiteral("Müllers 映画館 \U0001f3ac"),
          QStringLiteral("a.b#c%d*e?f!g~h=i+j@k^l,m:n/o"), QStringLiteral("\u202eturned\u200f"),
          QString(63, u'x'), QString(31, u'é')})
        EXPECT_TRUE(isAcceptableServiceName(name)) << name.toStdString();
}

TEST(ServiceNameRulesTest, ShellCharactersAndControls_AreRefused) {
    for (const QChar refused : QStringLiteral("$`\"\\;&|<>\n\r\t\v\f\x1b\x7f\u0085\u2028\u2029")) {
        EXPECT_FALSE(isAcceptableServiceName(QString(u"Mac" + refused))) << int(refused.unicode());
        EXPECT_FALSE(isAcceptableServiceName(QString(refused))) << int(refused.unicode());
    }
    EXPECT_FALSE(isAcceptableServiceName(QString(QChar(u'\0'))));
}

TEST(ServiceNameRulesTest, WhatIsNoNameAtAll_IsRefused) {
    EXPECT_FALSE(isAcceptableServiceName(u""));
    EXPECT_FALSE(isAcceptableServiceName(QString(64, u'x')));
    EXPECT_FALSE(isAcceptableServiceName(QString(32, u'é')));
    EXPECT_FALSE(isAcceptableServiceName(QString::fromUtf8("Mac\xff")));
    EXPECT_FALSE(isAcceptableServiceName(QString(QChar(0xd83c))));
}

TEST(ServiceNameRulesTest, HostNames_MayBeLonger) {
    EXPECT_TRUE(isAcceptableHostName(QString(255, u'x')));
    EXPECT_FALSE(isAcceptableHostName(QString(256, u'x')));
    EXPECT_FALSE(isAcceptableHostName(u"mac$(id).local"));
}

TEST(ServiceNameRulesTest, LogForm_IsOneLineThatHidesNothing) {
    EXPECT_EQ(escapedForLog(u"a\n\t\r\\\x1b\u202eb\u2028é$"),
              u"a\\x0a\\x09\\x0d\\\\\\x1b\\u202eb\\u2028é$");
}

TEST(ServiceNameRulesTest, DottedAddresses) {
    for (const QStringView good : {u"1.2.3.4", u"0.0.0.0", u"255.255.255.255", u"10.77.0.2"})
        EXPECT_TRUE(isDottedIPv4(good)) << good.toString().toStdString();
    for (const QStringView bad :
         {u"", u"1.2.3", u"1.2.3.4.5", u"1.2.3.256", u"1.2.3.04", u"1.2.3.", u".1.2.3", u"1.2.3.-4",
          u"1.2.3.4 ", u"::1", u"fe80::1%eth0", u"1.2.3.4a", u"1..2.3", u"1.2.3.1000", u"+1.2.3.4"})
        EXPECT_FALSE(isDottedIPv4(bad)) << bad.toString().toStdString();
}

TEST(ServiceNameRulesTest, FullName_EscapesWhatSeparatesLabels) {
    EXPECT_EQ(fullServiceName(u"Remote Mac", u"_smb._tcp", u"local"),
              u"Remote\\032Mac._smb._tcp.local");
    EXPECT_EQ(fullServiceName(u"v1.2\\ü", u"_smb._tcp", u"local"), u"v1\\.2\\\\ü._smb._tcp.local");
    EXPECT_EQ(fullServiceName(u"a\n\x7f", u"t", u"d"), u"a\\010\\127.t.d");
}

TEST(ServiceNameRulesTest, SignsBesideTheEscapedOnes_StandAsTheyAre) {
    EXPECT_EQ(escapedForLog(u" plain ~"), u" plain ~");
    EXPECT_EQ(escapedForLog(u"\x7f"), u"\\x7f");
    EXPECT_EQ(escapedForLog(u"\n"), u"\\x0a");
    EXPECT_EQ(fullServiceName(u"!~\u0080", u"t", u"d"), u"!~\u0080.t.d");
    for (const QStringView bad : {u"1.2.3.:", u"1.2.3./", u"1.2.3.1:"})
        EXPECT_FALSE(isDottedIPv4(bad)) << bad.toString().toStdString();
}

} // namespace
} // namespace kelvo
