// The contract of LoginItem on the fake and on real files, then what only the files have.
#include "adapters/desktop/autostart_entry.h"
#include "adapters/system/local_file_manager.h"
#include "fakes/fake_login_item.h"
#include "support/private_mounts.h"
#include "support/wait_until.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace kelvo {
namespace {

struct FakeWorld {
    FakeLoginItem item;
    void putSomebodyElses() { item.standing = {LoginItemOutcome::SomebodyElses, {}, {}}; }
};

struct FileWorld {
    QTemporaryDir folder;
    LocalFileManager files;
    QString autostart = folder.filePath(QStringLiteral("config/autostart"));
    QString entry = QString(autostart + u"/org.kelvo.KelvoMirror.desktop");
    AutostartEntry item{autostart, QStringLiteral("/usr/bin/kelvo-mirror"), files};

    QByteArray content() const {
        QFile file(entry);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray("(not there)");
    }
    void put(const QByteArray& content) const {
        QDir().mkpath(autostart);
        QFile file(entry);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(content);
    }
    void putSomebodyElses() const { put("[Desktop Entry]\nExec=mine\n"); }
    unsigned modeOf(const QString& path) const {
        struct stat status {};
        return ::lstat(path.toLocal8Bit().constData(), &status) == 0 ? status.st_mode & 07777U : 0U;
    }
};

template <typename World>
class LoginItemContractTest : public ::testing::Test {
protected:
    World world;
};

using Worlds = ::testing::Types<FakeWorld, FileWorld>;
TYPED_TEST_SUITE(LoginItemContractTest, Worlds);

TYPED_TEST(LoginItemContractTest, NoEntry_IsOff) {
    const LoginItem::State state = this->world.item.state();
    EXPECT_FALSE(state.isOn);
    EXPECT_TRUE(state.outcome);
    EXPECT_TRUE(this->world.item.setOn(false)) << "off where there is none is done";
}

TYPED_TEST(LoginItemContractTest, SwitchedOnAndOff_IsReadAnew) {
    for (const bool on : {true, true, false, true, false}) {
        EXPECT_TRUE(this->world.item.setOn(on));
        EXPECT_EQ(this->world.item.state().isOn, on);
    }
}

TYPED_TEST(LoginItemContractTest, SomebodyElses_IsSaidAndStays) {
    this->world.putSomebodyElses();
    EXPECT_EQ(this->world.item.state().outcome.kind, LoginItemOutcome::SomebodyElses);
    EXPECT_FALSE(this->world.item.state().isOn);
    for (const bool on : {true, false}) {
        const LoginItemOutcome outcome = this->world.item.setOn(on);
        EXPECT_EQ(outcome.kind, LoginItemOutcome::SomebodyElses);
        EXPECT_FALSE(outcome.path.isEmpty());
    }
    EXPECT_EQ(this->world.item.state().outcome.kind, LoginItemOutcome::SomebodyElses);
}

class AutostartEntryTest : public ::testing::Test, public FileWorld {};

TEST_F(AutostartEntryTest, Entry_IsForTheUserAloneAndNothingLiesBesideIt) {
    const mode_t before = ::umask(0);
    EXPECT_TRUE(item.setOn(true));
    ::umask(before);
    EXPECT_EQ(modeOf(entry), 0600U);
    EXPECT_EQ(modeOf(autostart), 0700U);
    EXPECT_EQ(modeOf(folder.filePath(QStringLiteral("config"))), 0700U);
    EXPECT_EQ(QDir(autostart).entryList(QDir::Files | QDir::Hidden).size(), 1);
    EXPECT_TRUE(content().startsWith("[Desktop Entry]\n"));
    EXPECT_TRUE(content().contains("\nExec=\"/usr/bin/kelvo-mirror\"\n"));
    EXPECT_TRUE(item.setOn(false));
    EXPECT_FALSE(QFile::exists(entry));
}

TEST_F(AutostartEntryTest, Text_IsAnEntryThatDesktopsKnow) {
    EXPECT_EQ(autostartText(QStringLiteral("/usr/bin/kelvo-mirror")).toStdString(),
              "[Desktop Entry]\n"
              "Type=Application\n"
              "Name=Kelvo Mirror\n"
              "Comment=Keep a local folder supplied with movie files from a remote Mac\n"
              "Icon=kelvo-mirror\n"
              "Exec=\"/usr/bin/kelvo-mirror\"\n"
              "Terminal=false\n" +
                  std::string(cAutostartMark) + "\n");
}

TEST_F(AutostartEntryTest, EachProfile_HasAnEntryOfItsOwnThatStartsIt) {
    AutostartEntry east(autostart, QStringLiteral("/usr/bin/kelvo-mirror"), files,
                        {.name = QStringLiteral("East_1")});
    EXPECT_TRUE(item.setOn(true));
    EXPECT_FALSE(east.state().isOn) << "the program without a profile is another matter";
    EXPECT_TRUE(east.setOn(true));
    EXPECT_TRUE(item.setOn(false));
    EXPECT_TRUE(east.state().isOn);
    QFile written(QString(autostart + u"/org.kelvo.KelvoMirror.East_1.desktop"));
    ASSERT_TRUE(written.open(QFile::ReadOnly));
    const QByteArray text = written.readAll();
    EXPECT_TRUE(text.contains("\nExec=\"/usr/bin/kelvo-mirror\" --profile East_1\n"))
        << text.constData();
    EXPECT_TRUE(text.contains("\nName=Kelvo Mirror – East_1\n")) << text.constData();
}

TEST_F(AutostartEntryTest, MarkBehindWhatIsRead_DoesNotMakeItOurs) {
    const QByteArray filler = QByteArray(16 * 1024, '#') + '\n';
    put(filler + autostartText(QStringLiteral("/usr/bin/kelvo-mirror")));
    EXPECT_EQ(item.state().outcome.kind, LoginItemOutcome::SomebodyElses);
    put(autostartText(QStringLiteral("/usr/bin/kelvo-mirror")) + filler);
    EXPECT_EQ(item.state().outcome.kind, LoginItemOutcome::Done);
    EXPECT_TRUE(item.state().isOn);
}

TEST_F(AutostartEntryTest, PathWithOddCharacters_StaysOneWord) {
    EXPECT_TRUE(autostartText(QStringLiteral("/opt/a b/100%/$x\"`\\k"))
                    .contains("\nExec=nice -n 0 \"/opt/a b/100%%/\\\\$x\\\\\"\\\\`\\\\\\\\k\"\n"));
    EXPECT_TRUE(autostartText(QStringLiteral("/a\rb")).contains("\"/a\\rb\""));
    EXPECT_TRUE(autostartText(QStringLiteral("/a\nHidden=true")).contains("\"/a\\nHidden=true\""))
        << "a line end in the path begins no line of the entry";
}

TEST_F(AutostartEntryTest, PathWithOddCharacters_IsStartedByADesktop) {
    if (QStandardPaths::findExecutable(QStringLiteral("gio")).isEmpty())
        GTEST_SKIP() << "no gio on this machine to start an entry with";
    for (const char* name : {"plain", "100%", "50%f", "a b=$x\"`'\\k", "a b=%$x\"`'\\k"}) {
        const QString bin = folder.filePath(QString::fromLatin1(name));
        const QString program = bin + u"/kelvo-mirror";
        ASSERT_TRUE(QDir().mkpath(bin));
        QFile script(program);
        ASSERT_TRUE(script.open(QFile::WriteOnly));
        script.write("#!/bin/sh\n: >\"${0%/*}/started\"\n");
        script.close();
        ASSERT_TRUE(script.setPermissions(QFile::ReadOwner | QFile::ExeOwner));
        put(autostartText(program));
        EXPECT_EQ(QProcess::execute(QStringLiteral("gio"), {QStringLiteral("launch"), entry}), 0)
            << name;
        EXPECT_TRUE(waitUntil([&] { return QFile::exists(bin + u"/started"); })) << name;
    }
}

TEST_F(AutostartEntryTest, OursSwitchedOffByADesktop_IsOffAndCanBeSwitchedOn) {
    for (const char* line : {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) {
        put(autostartText(QStringLiteral("/usr/bin/kelvo-mirror")) + line + '\n');
        EXPECT_FALSE(item.state().isOn) << line;
        EXPECT_TRUE(item.state().outcome);
        EXPECT_TRUE(item.setOn(true));
        EXPECT_TRUE(item.state().isOn);
        EXPECT_FALSE(content().contains(line));
    }
}

TEST_F(AutostartEntryTest, SomebodyElsesEntry_KeepsItsContent) {
    putSomebodyElses();
    const QByteArray before = content();
    EXPECT_FALSE(item.setOn(true));
    EXPECT_FALSE(item.setOn(false));
    EXPECT_EQ(content(), before);
}

TEST_F(AutostartEntryTest, LinkPipeOrFolderUnderTheName_IsNotOurs) {
    QDir().mkpath(autostart);
    const QString target = folder.filePath(QStringLiteral("target"));
    const QByteArray name = entry.toLocal8Bit();
    ASSERT_EQ(::symlink(target.toLocal8Bit().constData(), name.constData()), 0);
    EXPECT_EQ(item.setOn(true).kind, LoginItemOutcome::SomebodyElses);
    EXPECT_FALSE(QFile::exists(target)) << "nothing is written through a link";
    ASSERT_EQ(::unlink(name.constData()), 0);
    ASSERT_EQ(::mkfifo(name.constData(), 0600), 0);
    EXPECT_EQ(item.setOn(true).kind, LoginItemOutcome::SomebodyElses) << "and it does not wait";
    ASSERT_EQ(::unlink(name.constData()), 0);
    ASSERT_EQ(::mkdir(name.constData(), 0700), 0);
    EXPECT_EQ(item.setOn(false).kind, LoginItemOutcome::SomebodyElses);
}

TEST_F(AutostartEntryTest, EntryThatCannotBeRead_IsSaidAndStays) {
    ASSERT_TRUE(item.setOn(true));
    // A process's memory is a file whose first byte cannot be read.
    withPrivateMounts([this] { return mountOver("/proc/self/mem", entry.toStdString()); },
                      [this] {
                          const QString reason = QString::fromLocal8Bit(::strerror(EIO));
                          EXPECT_FALSE(item.state().isOn);
                          EXPECT_EQ(item.state().outcome.kind, LoginItemOutcome::Failed);
                          EXPECT_EQ(item.state().outcome.reason, reason);
                          EXPECT_EQ(item.setOn(false).kind, LoginItemOutcome::Failed);
                          EXPECT_EQ(item.setOn(true).reason, reason);
                      });
    EXPECT_TRUE(item.state().isOn);
}

TEST_F(AutostartEntryTest, EntryThatCannotBeRemovedOrReplaced_IsSaidAndStays) {
    ASSERT_TRUE(item.setOn(true));
    const QString other = folder.filePath(QStringLiteral("other"));
    ASSERT_TRUE(QFile::copy(entry, other));
    // What something is laid over can neither be removed nor replaced.
    withPrivateMounts([&] { return mountOver(other.toStdString(), entry.toStdString()); },
                      [this] {
                          for (const bool on : {true, false}) {
                              const LoginItemOutcome outcome = item.setOn(on);
                              EXPECT_EQ(outcome.kind, LoginItemOutcome::Failed) << on;
                              EXPECT_EQ(outcome.path, entry);
                              EXPECT_EQ(outcome.reason, QStringLiteral("Device or resource busy"));
                              EXPECT_TRUE(item.state().isOn);
                          }
                      });
}

TEST_F(AutostartEntryTest, FolderThatCannotBeMade_IsSaidInTheSystemsWords) {
    QFile inTheWay(folder.filePath(QStringLiteral("config")));
    ASSERT_TRUE(inTheWay.open(QFile::WriteOnly));
    inTheWay.close();
    const LoginItemOutcome outcome = item.setOn(true);
    EXPECT_EQ(outcome.kind, LoginItemOutcome::Failed);
    EXPECT_EQ(outcome.reason, QStringLiteral("Not a directory"));
    EXPECT_EQ(outcome.path, entry);
    EXPECT_EQ(item.setOn(false).kind, LoginItemOutcome::Failed) << "who knows what lies there";
    EXPECT_EQ(item.state().outcome.kind, LoginItemOutcome::Failed);
}

TEST_F(AutostartEntryTest, FolderThatNobodyCanWrite_LeavesTheEntryAsItWas) {
    // Nobody, not even root, makes files there.
    AutostartEntry unwritable(QStringLiteral("/proc/self"), QStringLiteral("/bin/true"), files);
    const LoginItemOutcome outcome = unwritable.setOn(true);
    EXPECT_EQ(outcome.kind, LoginItemOutcome::Failed);
    EXPECT_FALSE(outcome.reason.isEmpty());
    EXPECT_FALSE(outcome.reason.contains(u"/proc/self")) << "the path stands in `path`";
    EXPECT_FALSE(unwritable.state().isOn);
}

} // namespace
} // namespace kelvo
