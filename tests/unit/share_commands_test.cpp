#include "fakes/memory_defaults.h"
#include "remote/share_commands.h"
#include "settings/preference_keys.h"

#include <QProcess>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const ShareTarget cTarget{QStringLiteral("Office-Mac-Mini.local"), QStringLiteral("ann"),
                          QStringLiteral("Movies")};

TEST(ShareTargetTest, Settings_AreTrimmedExceptTheHost) {
    MemoryDefaults defaults;
    EXPECT_EQ(shareTarget(defaults), std::nullopt);
    defaults.setObject(prefRemoteBonjourName, QStringLiteral(" h "));
    EXPECT_EQ(shareTarget(defaults), (ShareTarget{QStringLiteral(" h "), {}, {}}));
    defaults.setObject(prefRemoteUsername, QStringLiteral(" ann\n"));
    defaults.setObject(prefRemotePath, QStringLiteral("\tMy Movies "));
    EXPECT_EQ(shareTarget(defaults), (ShareTarget{QStringLiteral(" h "), QStringLiteral("ann"),
                                                  QStringLiteral("My Movies")}));
}

TEST(ShareTargetTest, HostName_BecomesTheServiceNameAgain) {
    EXPECT_EQ(shareHost(QStringLiteral("Office-Mac-Mini.local")), u"Office%20Mac%20Mini");
    EXPECT_EQ(shareHost(QStringLiteral("mini")), u"mini");
    EXPECT_EQ(shareHost(QStringLiteral("a.local-b.local")), u"a%20b");
}

// -- macOS

TEST(MacShareCommandsTest, Texts_AreExact) {
    const MacShareCommands commands;
    EXPECT_EQ(commands.openRemoteFolder(cTarget),
              u"open \"smb://ann@Office%20Mac%20Mini._smb._tcp.local/Macintosh%20HD/Users/ann/"
              u"Movies\"");
    EXPECT_EQ(commands.openShare(cTarget),
              u"open \"smb://ann@Office%20Mac%20Mini._smb._tcp.local/Macintosh%20HD\"");
    EXPECT_EQ(commands.listVolumes(cTarget), u"df -ahY -T smbfs");
    EXPECT_EQ(commands.pickVolume(QStringLiteral("a listing"), cTarget),
              u"echo \"a listing\" | awk ' $1 ~ /Office%20Mac%20Mini/ {print $'10'\" \"$'11'}' ");
    EXPECT_EQ(commands.openLocalPath(QStringLiteral("./Volumes/Macintosh HD")),
              u"open \"./Volumes/Macintosh HD\"");
    EXPECT_FALSE(commands.folderIsSoughtAfterwards());
    EXPECT_EQ(commands.mountInTerminal(QStringLiteral("password"), cTarget), std::nullopt);
}

TEST(MacShareCommandsTest, NothingIsReadAsTheShellsOwn) {
    const MacShareCommands commands;
    const ShareTarget odd{QStringLiteral("h'/ {system(\"x\")} /$(y)"), QStringLiteral("a\"`z`"),
                          QStringLiteral("$5\\")};
    EXPECT_EQ(commands.openRemoteFolder(odd),
              u"open \"smb://a\\\"\\`z\\`@h'/ {system(\\\"x\\\")} /\\$(y)._smb._tcp.local/"
              u"Macintosh%20HD/Users/a\\\"\\`z\\`/\\$5\\\\\"");
    EXPECT_EQ(commands.pickVolume(QStringLiteral("a \"$(listing)\""), odd),
              u"echo \"a \\\"\\$(listing)\\\"\" | awk ' $1 ~ /h'\\''\\/ {system(\"x\")} "
              u"\\/$(y)/ {print $'10'\" \"$'11'}' ");
    EXPECT_EQ(commands.openRemoteFolder(
                  {QStringLiteral("h"), QStringLiteral("%@2"), QStringLiteral("%@1")}),
              u"open \"smb://%@2@h._smb._tcp.local/Macintosh%20HD/Users/%@2/%@1\"");
    EXPECT_EQ(commands.openLocalPath(QStringLiteral("./$(x)")), u"open \"./\\$(x)\"");
}

TEST(MacShareCommandsTest, HostInThePattern_StandsForItselfAlone) {
    EXPECT_EQ(
        MacShareCommands().pickVolume(QStringLiteral("x"), {QStringLiteral("a\\b/c'd"), {}, {}}),
        u"echo \"x\" | awk ' $1 ~ /a\\\\b\\/c'\\''d/ {print $'10'\" \"$'11'}' ");
}

TEST(MacShareCommandsTest, EmptyRemotePath_LeavesTheSlash) {
    const MacShareCommands commands;
    EXPECT_EQ(commands.openRemoteFolder({QStringLiteral("h"), QStringLiteral("ann"), {}}),
              u"open \"smb://ann@h._smb._tcp.local/Macintosh%20HD/Users/ann/\"");
}

TEST(MacShareCommandsTest, LocalFolder_KeepsItsRelativeStart) {
    const MacShareCommands commands;
    EXPECT_EQ(commands.localFolder(QStringLiteral("/Volumes/Macintosh HD"), cTarget),
              u"./Volumes/Macintosh HD/Users/ann/Movies");
    EXPECT_EQ(commands.localFolder({}, cTarget), u"./Users/ann/Movies");
    EXPECT_EQ(commands.localFolder(QStringLiteral("/V"), {{}, QStringLiteral("ann"), {}}),
              u"./V/Users/ann");
}

// -- Linux

TEST(GioShareCommandsTest, Opening_AsksFirstWhetherItIsMountedAndNeverWaitsForLong) {
    const GioShareCommands commands;
    const QString expected = QStringLiteral(
        "timeout -k 2 20 gio info \"smb://ann@Office-Mac-Mini.local/Macintosh%20HD\" "
        ">/dev/null 2>&1 || { timeout -k 2 20 env LC_ALL=C.UTF-8 gio mount "
        "\"smb://ann@Office-Mac-Mini.local/Macintosh%20HD\" 2>&1 </dev/null; "
        "case $? in 124|137) echo \"no answer within 20 seconds\";; esac; }");
    EXPECT_EQ(commands.openShare(cTarget), expected);
    EXPECT_EQ(commands.openRemoteFolder(cTarget), expected);
    EXPECT_TRUE(commands.folderIsSoughtAfterwards());
}

TEST(GioShareCommandsTest, Listing_IsWhatIsKnownOfThisVeryShare) {
    const GioShareCommands commands;
    EXPECT_EQ(commands.listVolumes({QStringLiteral("mini"), {}, {}}),
              u"timeout -k 2 20 env LC_ALL=C.UTF-8 gio info \"smb://mini/Macintosh%20HD\" 2>&1 "
              u"</dev/null; case $? in 124|137) echo \"no answer within 20 seconds\";; esac");
}

TEST(GioShareCommandsTest, PlaceOfTheShare_IsReadFromTheListingWhateverIsInIt) {
    EXPECT_EQ(GioShareCommands().pickVolume(QStringLiteral("it's $(x)"), {}),
              u"printf '%s\\n' 'it'\\''s $(x)' | sed -n 's/^local path: //p'");
}

TEST(GioShareCommandsTest, MountThatIsEndedByForce_IsSaidToHaveKeptSilent) {
    const QString command = GioShareCommands().openShare(cTarget);
    for (const auto& [status, answer] :
         {std::pair(0, ""), std::pair(1, ""), std::pair(124, "no answer within 20 seconds\n"),
          std::pair(137, "no answer within 20 seconds\n")}) {
        // In the place of timeout: not mounted yet, then the end of the mounting.
        const QString pretend =
            QStringLiteral("timeout() { [ \"$4\" != gio ] || return 1; return %1; }; ").arg(status);
        QProcess shell;
        shell.start(QStringLiteral("sh"), {QStringLiteral("-c"), pretend + command});
        ASSERT_TRUE(shell.waitForFinished());
        EXPECT_EQ(shell.readAllStandardOutput(), answer) << status;
    }
}

TEST(GioShareCommandsTest, NothingInAnAddress_IsReadAsTheShellsOwn) {
    const GioShareCommands commands;
    const QString listing =
        commands.listVolumes({QStringLiteral("h\"$(reboot)`x`\\"), QStringLiteral("a b\n"), {}});
    EXPECT_TRUE(
        listing.contains(u"\"smb://a%20b%0A@h%22%24%28reboot%29%60x%60%5C/Macintosh%20HD\""))
        << listing.toStdString();
}

TEST(GioShareCommandsTest, LocalFolder_StaysRelativeWithoutAMountPoint) {
    const GioShareCommands commands;
    EXPECT_EQ(
        commands.localFolder(
            QStringLiteral("/run/user/0/gvfs/smb-share:server=mini,share=macintosh%20hd"), cTarget),
        u"/run/user/0/gvfs/smb-share:server=mini,share=macintosh%20hd/Users/ann/Movies");
    EXPECT_EQ(commands.localFolder({}, cTarget), u"./Users/ann/Movies");
    EXPECT_EQ(commands.openLocalPath(QStringLiteral("/x")), std::nullopt);
}

TEST(GioShareCommandsTest, QuestionOfTheServer_GoesToATerminal) {
    const GioShareCommands commands;
    EXPECT_EQ(
        commands.mountInTerminal(QStringLiteral("Enter user and password for share"), cTarget),
        u"gio mount \"smb://ann@Office-Mac-Mini.local/Macintosh%20HD\"");
    EXPECT_EQ(commands.mountInTerminal(QStringLiteral("Failed to retrieve share list"), cTarget),
              std::nullopt);
}

} // namespace
} // namespace kelvo
