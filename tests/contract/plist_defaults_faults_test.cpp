// PlistDefaults against permissions, full disks and sudden death.
#include "contract/plist_defaults_fixture.h"
#include "support/failing_file.h"
#include "support/private_mounts.h"
#include "support/sanitized.h"

#include <QProcess>

#include <fcntl.h>
#include <signal.h>
#include <sys/stat.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <cstring>
#include <iostream>
#include <random>
#include <vector>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr uid_t cNobody = 65534;

/// Runs `work` on a thread without the powers of root; threads that it makes share that. The C
/// library's own calls would change every thread.
void asPlainUser(const std::function<void()>& work) {
    std::thread([&] {
        if (::geteuid() == 0) {
            ASSERT_EQ(::syscall(SYS_setresgid, cNobody, cNobody, cNobody), 0);
            ASSERT_EQ(::syscall(SYS_setresuid, cNobody, cNobody, cNobody), 0);
        }
        work();
    }).join();
}

/// A folder that a plain user can reach, with a settings file in it.
class PlistDefaultsPermissionTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(fRoot.isValid());
        ASSERT_TRUE(QDir().mkpath(fFolder));
        QFile file(fPath);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(fBytes);
        file.close();
        if (::geteuid() == 0) {
            for (const QString& path : {fRoot.path(), fFolder, fPath})
                ASSERT_EQ(::chown(QFile::encodeName(path), cNobody, cNobody), 0);
        }
    }
    void TearDown() override { ::chmod(QFile::encodeName(fFolder), 0700); }

    void permit(mode_t folder, mode_t file) {
        ASSERT_EQ(::chmod(QFile::encodeName(fPath), file), 0);
        ASSERT_EQ(::chmod(QFile::encodeName(fFolder), folder), 0);
    }
    void write(const QByteArray& bytes) {
        QFile file(fPath);
        ASSERT_TRUE(file.open(QFile::WriteOnly));
        file.write(bytes);
    }
    QStringList asides() const {
        return QDir(fFolder).entryList({"*.corrupt-*"}, QDir::AllEntries);
    }
    void expectNotObeyed(const QString& reason) {
        fConsole.clear();
        asPlainUser([this] {
            PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
            EXPECT_FALSE(defaults.areKnown());
            EXPECT_FALSE(defaults.object(u"a").isValid());
            defaults.setObject(u"b", 2);
            defaults.synchronize();
        });
        EXPECT_EQ(bytesOf(fPath), fBytes) << reason.toStdString();
        EXPECT_EQ(asides(), QStringList());
        ASSERT_EQ(fConsole.logged().size(), 1) << fConsole.logged().join(u'\n').toStdString();
        EXPECT_TRUE(fConsole.logged()[0].contains(QString(u": " + reason + u". Until")))
            << fConsole.logged()[0].toStdString();
    }
    QByteArray bytesOf(const QString& path) {
        QFile file(path);
        return file.open(QFile::ReadOnly) ? file.readAll() : QByteArray();
    }

    const QByteArray fBytes = encodePlist({{"a", 1LL}});
    QTemporaryDir fRoot{QStringLiteral(P_tmpdir "/kelvo-settings-XXXXXX")};
    const QString fFolder = fRoot.filePath(QStringLiteral("settings"));
    const QString fPath = fFolder + QStringLiteral("/preferences.plist");
    VirtualMainQueue fMain;
    RecordingConsole fConsole;
};

TEST_F(PlistDefaultsPermissionTest, FolderThatCannotBeMade_IsSaidWithItsOwnReason) {
    permit(0500, 0600);
    asPlainUser([this] {
        PlistDefaults defaults(fFolder + u"/below/settings.plist", DamagedFile::IsSetAside, isState,
                               fMain, fConsole);
        defaults.setObject(u"b", 2);
        defaults.synchronize();
    });
    ASSERT_EQ(fConsole.logged().size(), 1) << fConsole.logged().join(u'\n').toStdString();
    EXPECT_TRUE(fConsole.logged()[0].contains(u"settings.plist: Permission denied"))
        << fConsole.logged()[0].toStdString();
}

TEST_F(PlistDefaultsPermissionTest, FileThatMayNotBeRead_IsNeitherMovedNorOverwritten) {
    permit(0700, 0000);
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        EXPECT_FALSE(defaults.object(u"a").isValid());
        EXPECT_EQ(fConsole.logged().size(), 1);
        defaults.setObject(u"b", 2);
        defaults.synchronize();
        defaults.synchronize();
        EXPECT_EQ(defaults.integerForKey(u"b"), 2);
    });
    EXPECT_EQ(fConsole.logged().size(), 1) << fConsole.logged().join(u'\n').toStdString();
    permit(0700, 0600);
    EXPECT_EQ(bytesOf(fPath), fBytes);
    EXPECT_EQ(asides(), QStringList());
}

TEST_F(PlistDefaultsPermissionTest, FileThatMayBeReadAfterAll_IsReadByItself) {
    permit(0500, 0000);
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        int told = 0;
        bool knownWhenTold = true;
        const auto subscription = defaults.observe(u"a", [&](const DefaultsChange&) {
            ++told;
            knownWhenTold = defaults.areKnown();
        });
        EXPECT_FALSE(defaults.areKnown());
        permit(0500, 0400);
        EXPECT_TRUE(waitUntil([&] {
            fMain.runDue();
            return defaults.areKnown();
        }));
        EXPECT_EQ(defaults.integerForKey(u"a"), 1);
        EXPECT_EQ(told, 1);
        EXPECT_FALSE(knownWhenTold) << "observers come first";
        EXPECT_EQ(defaults.trouble(), QString());
    });
    EXPECT_EQ(fConsole.logged().size(), 2) << fConsole.logged().join(u'\n').toStdString();
}

TEST_F(PlistDefaultsPermissionTest, DamagedFileThatMayNotBeMoved_IsSaidAndKept) {
    const QByteArray damaged = fBytes.first(fBytes.size() / 2);
    permit(0700, 0600);
    write(damaged);
    permit(0500, 0600);
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        EXPECT_FALSE(defaults.areKnown());
        defaults.setObject(u"b", 2);
        defaults.synchronize();
    });
    EXPECT_EQ(bytesOf(fPath), damaged);
    EXPECT_EQ(fConsole.logged().size(), 1) << fConsole.logged().join(u'\n').toStdString();
}

// -- whom the file is believed

TEST_F(PlistDefaultsPermissionTest, FileThatOthersMayWrite_IsNotObeyed) {
    // Without root the group may be the user's own.
    const bool isRoot = ::geteuid() == 0;
    for (const mode_t mode : {0666, 0660, 0602}) {
        if (mode == 0660 && !isRoot)
            continue;
        permit(0755, mode);
        expectNotObeyed(QStringLiteral("it can be written by other users"));
    }
    for (const mode_t folder : {0777, 0775, 0703, 01777}) {
        if (folder == 0775 && !isRoot)
            continue;
        permit(folder, 0600);
        expectNotObeyed(QStringLiteral("of its folder: it can be written by other users"));
    }
}

TEST_F(PlistDefaultsPermissionTest, FileOrFolderOfAnotherUser_IsNotObeyed) {
    if (::geteuid() != 0)
        GTEST_SKIP() << "needs root to give files away";
    permit(0755, 0644);
    ASSERT_EQ(::chown(QFile::encodeName(fPath), cNobody - 1, cNobody), 0);
    expectNotObeyed(QStringLiteral("it belongs to another user"));
    ASSERT_EQ(::chown(QFile::encodeName(fPath), cNobody, cNobody), 0);
    ASSERT_EQ(::chown(QFile::encodeName(fFolder), cNobody - 1, cNobody), 0);
    expectNotObeyed(QStringLiteral("of its folder: it belongs to another user"));
}

TEST_F(PlistDefaultsPermissionTest, FileThatNobodyElseReaches_IsObeyed) {
    for (const auto& [folder, file] : {std::pair(0700, 0666), std::pair(0755, 0644)}) {
        permit(folder, file);
        asPlainUser([this] {
            PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
            EXPECT_TRUE(defaults.areKnown());
        });
    }
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsPermissionTest, EmptyFolderThatOthersMayWrite_IsNoFirstStart) {
    permit(0777, 0600);
    ASSERT_TRUE(QFile::remove(fPath));
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        EXPECT_FALSE(defaults.areKnown());
    });
}

TEST_F(PlistDefaultsPermissionTest, FileThatMayBeReadAgain_IsJoinedWithWhatMemoryHolds) {
    permit(0500, 0000);
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        defaults.setObject(u"b", 2);
        defaults.synchronize();
        permit(0700, 0600);
        defaults.synchronize();
        EXPECT_EQ(defaults.integerForKey(u"a"), 1);
    });
    EXPECT_EQ(decodePlist(bytesOf(fPath)).root,
              (QVariantMap{{"a", qlonglong{1}}, {"b", qlonglong{2}}}));
    EXPECT_EQ(fConsole.logged().size(), 2);
}

TEST_F(PlistDefaultsPermissionTest, FolderThatMayNotBeWritten_IsSaidOnceAndWrittenWhenItMay) {
    permit(0500, 0600);
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        EXPECT_EQ(defaults.integerForKey(u"a"), 1);
        EXPECT_TRUE(fConsole.logged().isEmpty()) << "reading needs no lock";
        for (int round = 2; round < 5; ++round) {
            defaults.setObject(u"a", round);
            defaults.synchronize();
        }
        EXPECT_EQ(defaults.integerForKey(u"a"), 4);
        EXPECT_EQ(fConsole.logged().size(), 1);
        EXPECT_EQ(bytesOf(fPath), fBytes);
        permit(0700, 0600);
        defaults.synchronize();
    });
    EXPECT_EQ(decodePlist(bytesOf(fPath)).root, (QVariantMap{{"a", qlonglong{4}}}));
    EXPECT_EQ(fConsole.logged().size(), 2);
}

TEST_F(PlistDefaultsPermissionTest, FolderThatMayNotBeListed_IsSaidOnce) {
    permit(0300, 0600);
    const auto said = [this](const QString& part) { return fConsole.logged().filter(part).size(); };
    asPlainUser([&] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        EXPECT_EQ(said(QStringLiteral("are not noticed at once")), 1);
        for (const int value : {2, 3}) {
            defaults.setObject(u"a", value);
            EXPECT_TRUE(waitUntil([&] {
                const auto values = decodePlist(bytesOf(fPath)).root;
                return values && values->value("a") == value;
            })) << "by itself";
        }
        EXPECT_EQ(said(QStringLiteral("are not noticed at once")), 1);
        EXPECT_EQ(said(QStringLiteral("cannot be saved")), 1) << "it cannot be synced";
    });
}

TEST_F(PlistDefaultsPermissionTest, ForeignChangeMetAtSynchronize_IsTold) {
    permit(0300, 0600); // so that nothing else meets it
    asPlainUser([this] {
        PlistDefaults defaults(fPath, DamagedFile::IsSetAside, isState, fMain, fConsole);
        std::vector<int> told;
        const auto subscription = defaults.observe(u"a", [&](const DefaultsChange& change) {
            told.push_back(change.newValue.value_or(QVariant()).toInt());
        });
        write(encodePlist({{"a", 7LL}}));
        defaults.setObject(u"b", 2);
        defaults.synchronize();
        EXPECT_TRUE(waitUntil([&] {
            fMain.runDue();
            return !told.empty();
        }));
        EXPECT_EQ(told, std::vector{7});
    });
}

class PlistDefaultsReadErrorTest : public PlistDefaultsFixture,
                                   public ::testing::WithParamInterface<FileFailure> {};

TEST_P(PlistDefaultsReadErrorTest, HealthyFile_SurvivesAndIsReadLater) {
    if (cSanitized)
        GTEST_SKIP() << "the sanitizer's library must be the first one that is loaded";
    fFolder.replace({{"theirs", 1LL}});
    const QString condition = fFolder.folder() + QStringLiteral("/failing");
    ASSERT_TRUE(QFile(condition).open(QFile::WriteOnly));
    QProcess looker;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("LD_PRELOAD"), QStringLiteral(KELVO_FAILING_FILE));
    environment.insert(QStringLiteral("FAILING_FILE"), fFolder.path());
    environment.insert(QStringLiteral("FAILING_CALL"), QString::fromLatin1(GetParam().call));
    environment.insert(QStringLiteral("FAILING_ERRNO"), QString::number(GetParam().error));
    environment.insert(QStringLiteral("FAILING_WHILE"), condition);
    looker.setProcessEnvironment(environment);
    looker.start(QStringLiteral(KELVO_SETTINGS_WRITER), {"look", fFolder.path(), condition});
    ASSERT_TRUE(looker.waitForFinished(30'000));
    EXPECT_EQ(looker.readAllStandardOutput(), "at first: not known, theirs 0\n"
                                              "after a change: not known, theirs 0\n"
                                              "at last: known, theirs 1\n");
    const QByteArrayList said = looker.readAllStandardError().trimmed().split('\n');
    ASSERT_EQ(said.size(), 2) << said.join('\n').constData();
    EXPECT_TRUE(said[0].contains(std::strerror(GetParam().error))) << said[0].constData();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"mine", qlonglong{2}}, {"theirs", qlonglong{1}}}));
    EXPECT_TRUE(fFolder.otherFiles().isEmpty());
}

INSTANTIATE_TEST_SUITE_P(Errors, PlistDefaultsReadErrorTest, ::testing::ValuesIn(fileFailures()),
                         [](const auto& tested) { return tested.param.text(); });

class PlistDefaultsFaultTest : public PlistDefaultsFixture {
protected:
    /// Fills the disk of the settings folder.
    void fillDisk() {
        QFile ballast(fFolder.folder() + QStringLiteral("/ballast"));
        ASSERT_TRUE(ballast.open(QFile::WriteOnly | QFile::Unbuffered));
        while (ballast.write(QByteArray(4096, 'x')) == 4096) {
        }
    }

    void workOnFullDisk() {
        const auto defaults = open();
        defaults->setObject(u"a", 1);
        defaults->synchronize();
        const QByteArray before = fFolder.bytes();
        ASSERT_FALSE(before.isEmpty());
        fillDisk();
        for (int round = 0; round < 3; ++round) {
            defaults->setObject(u"b", QString(9000, QChar(u'a' + round)));
            defaults->synchronize();
        }
        EXPECT_EQ(fFolder.bytes(), before);
        EXPECT_EQ(fFolder.otherFiles(), QStringList{"ballast"});
        EXPECT_EQ(fConsole.logged().size(), 1);
        EXPECT_EQ(defaults->stringForKey(u"b"), QString(9000, u'c'));
        ASSERT_TRUE(QFile::remove(fFolder.folder() + QStringLiteral("/ballast")));
        EXPECT_TRUE(fileGets("b", QString(9000, u'c'))) << "by itself";
        EXPECT_TRUE(waitUntil([&] { return fConsole.logged().size() == 2; }));
        EXPECT_EQ(fFolder.values().value_or(QVariantMap()).value("a"), QVariant(1));
    }
};

TEST_F(PlistDefaultsFaultTest, FullDisk_OldFileStaysAndNewOneFollowsWhenThereIsRoom) {
    ASSERT_TRUE(QDir().mkpath(fFolder.folder()));
    withPrivateMounts(
        [this] {
            return ::mount("small", QFile::encodeName(fFolder.folder()), "tmpfs", 0,
                           "size=64k,mode=700");
        },
        [this] { workOnFullDisk(); });
}

class PlistDefaultsKillTest : public PlistDefaultsFixture {
protected:
    /// The generation that a value of the pair tells; -1 for a value that is not whole.
    static qint64 generationOf(const QVariant& value) {
        const QString text = value.toString();
        const QString number = text.first(std::min<qsizetype>(12, text.size()));
        return text == number.repeated(1500) ? number.toLongLong() : -1;
    }
};

TEST_F(PlistDefaultsKillTest, TwoHundredKills_LeaveWholeValuesThatNeverGoBack) {
    constexpr int cRounds = 200;
    constexpr unsigned cSeed = 4711;
    std::cout << "seed " << cSeed << '\n';
    std::mt19937 random(cSeed);
    qint64 last = 0;
    int leftovers = 0;
    for (int round = 0; round < cRounds; ++round) {
        QProcess writer;
        writer.start(QStringLiteral(KELVO_SETTINGS_WRITER), {"generations", fFolder.path()});
        ASSERT_TRUE(writer.waitForReadyRead(30'000));
        std::this_thread::sleep_for(std::chrono::microseconds(1000 + random() % 39'000));
        writer.kill();
        ASSERT_TRUE(writer.waitForFinished(30'000));
        leftovers += static_cast<int>(fFolder.otherFiles().size());

        const auto values = fFolder.values();
        ASSERT_TRUE(values) << "round " << round;
        const qint64 left = generationOf(values->value("left"));
        const qint64 right = generationOf(values->value("right"));
        ASSERT_GT(right, last) << "round " << round << ": what was synchronized before is there";
        ASSERT_TRUE(left == right || left == right + 1) << left << ' ' << right;
        last = right;
    }
    EXPECT_GE(last, cRounds);
    std::cout << last << " generations, " << leftovers << " kills left a new file behind\n";
    const auto defaults = open();
    EXPECT_TRUE(fFolder.otherFiles().isEmpty()) << "what the dead left behind is gone";
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

} // namespace
} // namespace kelvo
