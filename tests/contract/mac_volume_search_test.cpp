// The search for the mounted share as macOS runs it, on recorded listings of its df.
#include "adapters/process/posix_shell_runner.h"
#include "fakes/recording_console.h"
#include "remote/share_commands.h"
#include "remote/smb_share_access.h"
#include "support/text.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cHeader = QStringLiteral(
    "Filesystem                                          Type    Size   Used  Avail Capacity "
    "iused      ifree %iused  Mounted on\n");
const QString cSystemVolume = QStringLiteral(
    "//ann@Office%20Mac%20Mini._smb._tcp.local/Macintosh%20HD smbfs  466Gi  312Gi  153Gi    68% "
    "327423454  160722122   67%   /Volumes/Macintosh HD\n");
const QString cDataVolume = QStringLiteral(
    "//ann@Office%20Mac%20Mini._smb._tcp.local/Data          smbfs  932Gi  100Gi  832Gi    11% "
    "104857598  872415232   11%   /Volumes/Data\n");
const QString cOtherHost =
    QStringLiteral("//ann@Studio._smb._tcp.local/Macintosh%20HD smbfs  466Gi  312Gi  153Gi    68% "
                   "327423454  160722122   67%   /Volumes/Macintosh HD-1\n");
const QString cManyBlanks =
    QStringLiteral("//ann@Office%20Mac%20Mini._smb._tcp.local/A smbfs  466Gi  312Gi  153Gi    68% "
                   "327423454  160722122   67%   /Volumes/My Macintosh Disk\n");

class MacVolumeSearchTest : public ::testing::Test {
protected:
    QString picked(const QStringList& volumes) {
        const ShareTarget target{QStringLiteral("Office-Mac-Mini.local"), QStringLiteral("ann"),
                                 QStringLiteral("Movies")};
        return trimmedText(outputWhenRunAsShellCommand(
            shell, MacShareCommands().pickVolume(
                       trimmedText(QString(cHeader + volumes.join(QString()))), target)));
    }

    RecordingConsole console;
    PosixShellRunner shell{console};
};

TEST_F(MacVolumeSearchTest, OneBlankInTheMountPoint_IsKept) {
    EXPECT_EQ(picked({cOtherHost, cSystemVolume}), u"/Volumes/Macintosh HD");
}

TEST_F(MacVolumeSearchTest, TwoVolumesOfTheHost_AreALineEach) {
    const QString found = picked({cDataVolume, cSystemVolume});
    EXPECT_EQ(found, u"/Volumes/Data \n/Volumes/Macintosh HD");
    EXPECT_EQ(volumePath(found), u"/Volumes/Macintosh HD");
}

TEST_F(MacVolumeSearchTest, MoreBlanks_LoseWhatComesAfterTheSecondWord) {
    EXPECT_EQ(picked({cManyBlanks}), u"/Volumes/My Macintosh");
}

TEST_F(MacVolumeSearchTest, NoVolumeOfTheHost_IsNothing) {
    EXPECT_EQ(picked({cOtherHost}), QString());
    EXPECT_EQ(console.logged(), QStringList()) << "the text is sound";
}

} // namespace
} // namespace kelvo
