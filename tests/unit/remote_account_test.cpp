#include "fakes/memory_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class RemoteAccountTest : public ::testing::Test {
protected:
    RemoteAccountTest() {
        defaults.setObject(prefRemoteUsername, " media user ");
        defaults.setObject(prefRemoteBonjourName, "RemoteMac\n");
        defaults.setObject(prefPath1, " /source\n");
        defaults.setObject(prefSampleRemoteFullPath, "\tu@h:Movies ");
        defaults.setObject(prefPath2, "\u00a0/destination ");
    }

    MemoryDefaults defaults;
};

TEST_F(RemoteAccountTest, Account_IsTakenAsStored) {
    const auto account = remoteAccount(defaults);
    ASSERT_TRUE(account);
    EXPECT_EQ(account->user, QStringLiteral(" media user "));
    EXPECT_EQ(account->host, QStringLiteral("RemoteMac\n"));
    EXPECT_EQ(account->destination(), QStringLiteral(" media user @RemoteMac\n"));
}

TEST_F(RemoteAccountTest, Paths_AreTrimmed) {
    const auto plain = plainPaths(defaults);
    const auto remote = remotePaths(defaults);
    ASSERT_TRUE(plain && remote);
    EXPECT_EQ(plain->source, QStringLiteral("/source"));
    EXPECT_EQ(plain->destination, QStringLiteral("/destination"));
    EXPECT_EQ(remote->source, QStringLiteral("u@h:Movies"));
    EXPECT_EQ(remote->destination, QStringLiteral("/destination"));
}

TEST_F(RemoteAccountTest, OneMissing_GivesNothing) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefPath1,
                                  prefSampleRemoteFullPath, prefPath2}) {
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        const bool ofAccount = key == prefRemoteUsername || key == prefRemoteBonjourName;
        const std::string name = key.toString().toStdString();
        EXPECT_EQ(remoteAccount(defaults).has_value(), !ofAccount) << name;
        EXPECT_EQ(plainPaths(defaults).has_value(), key != prefPath1 && key != prefPath2) << name;
        EXPECT_EQ(remotePaths(defaults).has_value(),
                  key != prefSampleRemoteFullPath && key != prefPath2)
            << name;
        defaults.setObject(key, kept);
    }
}

TEST_F(RemoteAccountTest, EmptyText_CountsAsSet) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefPath1,
                                  prefSampleRemoteFullPath, prefPath2})
        defaults.setObject(key, QString());
    EXPECT_EQ(remoteAccount(defaults).value().destination(), QStringLiteral("@"));
    EXPECT_EQ(plainPaths(defaults).value().source, QString());
    EXPECT_EQ(remotePaths(defaults).value().destination, QString());
}

TEST(AccountFaultTest, WhatCannotStandInACommand_IsNamed) {
    const auto fault = [](const char* user, const char* host, QStringView key = u"/k") {
        return accountFault({QString::fromUtf8(user), QString::fromUtf8(host)}, key);
    };
    EXPECT_EQ(fault("ann b", "mac:22"), QString());
    EXPECT_EQ(fault("-l", "mac"), QStringLiteral("the user name begins with \"-\""));
    EXPECT_EQ(fault("ann", "-l"), QStringLiteral("the host name begins with \"-\""));
    EXPECT_EQ(fault("a:b", "mac"), QStringLiteral("the user name holds \":\" or \"/\""));
    EXPECT_EQ(fault("a/b", "mac"), QStringLiteral("the user name holds \":\" or \"/\""));
    EXPECT_EQ(fault("ann", "m/c"), QStringLiteral("the host name holds \"/\""));
    EXPECT_EQ(fault("ann", "mac", u"a\nb"),
              QStringLiteral("the path of the key file holds a line break"));
}

} // namespace
} // namespace kelvo
