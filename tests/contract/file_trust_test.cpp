#include "adapters/system/file_trust.h"
#include "support/private_mounts.h"

#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <grp.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

#include <fstream>
#include <string>

namespace kelvo {
namespace {

constexpr gid_t cNoGroup = 987'654'321;

struct stat entry(mode_t mode, uid_t user = ::geteuid(), gid_t group = cNoGroup) {
    struct stat made {};
    made.st_mode = mode;
    made.st_uid = user;
    made.st_gid = group;
    return made;
}

TEST(FileTrustTest, OwnerOtherThanTheUserAndRoot_IsForeign) {
    EXPECT_EQ(foreignWriters(entry(0600, ::geteuid() + 1)), u"it belongs to another user");
    EXPECT_EQ(foreignWriters(entry(0600)), u"");
    EXPECT_EQ(foreignWriters(entry(0600, 0)), u"") << "root can write everything anyway";
}

TEST(FileTrustTest, WhatOthersMayOnlyRead_IsTrusted) {
    EXPECT_EQ(foreignWriters(entry(0755)), u"");
    EXPECT_EQ(foreignWriters(entry(01755)), u"");
}

TEST(FileTrustTest, WhatOthersMayWrite_IsForeign) {
    EXPECT_EQ(foreignWriters(entry(0602)), u"it can be written by other users");
    EXPECT_EQ(foreignWriters(entry(0620)), u"it can be written by other users");
}

TEST(FileTrustTest, GroupOfTheUserAlone_IsTheUser) {
    const passwd* const user = ::getpwuid(::geteuid());
    if (user == nullptr)
        GTEST_SKIP() << "this user has no entry in the account database";
    const std::string name = user->pw_name;
    const gid_t group = user->pw_gid;
    const struct group* const own = ::getgrgid(group);
    if (own == nullptr || own->gr_name != name || *own->gr_mem != nullptr)
        GTEST_SKIP() << "this user has no group of its own";
    EXPECT_EQ(foreignWriters(entry(0660, ::geteuid(), group)), u"");
    EXPECT_EQ(foreignWriters(entry(0662, ::geteuid(), group)), u"it can be written by other users");
}

TEST(FileTrustTest, GroupOfAnotherName_IsForeign) {
    ::setgrent();
    const struct group* other = ::getgrent();
    const passwd* const user = ::getpwuid(::geteuid());
    while (other != nullptr && user != nullptr && other->gr_gid == user->pw_gid)
        other = ::getgrent();
    const gid_t group = other != nullptr ? other->gr_gid : cNoGroup;
    ::endgrent();
    EXPECT_EQ(foreignWriters(entry(0660, ::geteuid(), group)), u"it can be written by other users");
}

/// What is said of a file that the group 54321 may write, where `groups` are the lines of
/// /etc/group and that group is the user's own.
class FileTrustGroupsTest : public ::testing::Test {
protected:
    void expect(const std::string& groups, const QString& fault) {
        const QTemporaryDir folder;
        const std::string users = folder.filePath(QStringLiteral("passwd")).toStdString();
        const std::string list = folder.filePath(QStringLiteral("group")).toStdString();
        std::ofstream(users) << "ann:x:" << ::geteuid() << ":54321::/:/bin/sh\n";
        std::ofstream(list) << groups;
        withPrivateMounts(
            [&] { return mountOver(users, "/etc/passwd") | mountOver(list, "/etc/group"); },
            [&] {
                EXPECT_EQ(foreignWriters(entry(0660, ::geteuid(), 54321)), fault) << groups;
                EXPECT_EQ(foreignWriters(entry(0660, ::geteuid(), 54322)),
                          u"it can be written by other users")
                    << groups;
            });
    }
    const QString foreign = QStringLiteral("it can be written by other users");
};

TEST_F(FileTrustGroupsTest, GroupOfTheUsersName_IsTheUserUnlessSomebodyElseIsInIt) {
    expect("ann:x:54321:\nbob:x:54322:\n", {});
    expect("ann:x:54321:ann\n", {});
    expect("ann:x:54321:ann,bob\n", foreign);
    expect("ann:x:54321:bob\n", foreign);
}

TEST_F(FileTrustGroupsTest, GroupOfAnotherNameOrNone_IsForeign) {
    expect("staff:x:54321:\nann:x:54322:\n", foreign);
    expect("root:x:0:\n", foreign);
    expect("ann:x:54323:\n", foreign);
}

} // namespace
} // namespace kelvo
