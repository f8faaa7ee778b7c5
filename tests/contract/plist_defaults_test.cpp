#include "contract/plist_defaults_fixture.h"
#include "settings/preference_keys.h"
#include "settings/preferences.h"
#include "support/dnssd_service.h"

#include <QDateTime>
#include <QProcess>
#include <QRegularExpression>

#include <dirent.h>
#include <sys/inotify.h>
#include <sys/stat.h>
#include <unistd.h>

#include <set>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

class PlistDefaultsTest : public PlistDefaultsFixture {};

QString cutFile() {
    const QByteArray whole = encodePlist({{"a", 1LL}, {"b", QString(2000, u'x')}});
    return QString::fromUtf8(whole.first(whole.size() / 2));
}

TEST_F(PlistDefaultsTest, FirstStart_MakesAPrivateFolderAndFile) {
    const auto defaults = open();
    EXPECT_TRUE(fFolder.bytes().isEmpty()) << "nothing to say yet";
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    EXPECT_EQ(SettingsFolder::modeOf(fFolder.folder()), 0700U);
    EXPECT_EQ(SettingsFolder::modeOf(fFolder.path()), 0600U);
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
    EXPECT_TRUE(fFolder.otherFiles().isEmpty());
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsTest, ServiceRecord_ComesBackWithItsTypes) {
    DNSSD_Service record;
    record.name = QStringLiteral("Ann's <Mac> & é");
    record.dateAdded = QDateTime(QDate(2026, 3, 1), QTime(4, 5, 6), Qt::UTC);
    record.interface = 0x80000000U;
    record.hostPort = 0xffffffffU;
    record.available = true;
    const QVariantMap dictionary = record.asDictionary().value();
    open()->setObject(prefRemoteDnssdServiceData, dictionary);
    const auto stored = open()->dictionaryForKey(prefRemoteDnssdServiceData);
    ASSERT_TRUE(stored);
    EXPECT_TRUE(sameStoredValue(*stored, dictionary));
    EXPECT_EQ(stored->value(QStringLiteral("interface")), QVariant(qlonglong{2147483648}));
}

TEST_F(PlistDefaultsTest, Restart_GivesTheSameValues) {
    const QVariantMap values{
        {"bool", true},
        {"integer", qlonglong{-3}},
        {"real", 0.5},
        {"string", QStringLiteral("/Volumes/A & <B> é")},
        {"data", QByteArray("\0\1", 2)},
        {"date", QDateTime(QDate(2026, 3, 1), QTime(4, 5, 6), Qt::UTC)},
        {"array", QVariantList{true, 1.0, qlonglong{1}}},
        {"dictionary", QVariantMap{{"a", QVariantMap{{"b", "c"}}}}},
    };
    {
        const auto defaults = open();
        for (auto it = values.cbegin(); it != values.cend(); ++it)
            defaults->setObject(it.key(), it.value());
        defaults->setObject(u"gone", 1);
        defaults->removeObject(u"gone");
    }
    const auto again = open();
    for (auto it = values.cbegin(); it != values.cend(); ++it)
        EXPECT_TRUE(sameStoredValue(again->object(it.key()), it.value())) << it.key().toStdString();
    EXPECT_FALSE(again->object(u"gone").isValid());
}

TEST_F(PlistDefaultsTest, RegisteredDefaults_AreNotWritten) {
    const auto defaults = open();
    defaults->registerDefaults({{"factory", 1}});
    defaults->setObject(u"mine", 1);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"mine", qlonglong{1}}}));
}

TEST_F(PlistDefaultsTest, Change_ReachesTheDiskByItself) {
    const auto defaults = open();
    defaults->setObject(u"a", "x");
    EXPECT_TRUE(fileGets("a", "x"));
    defaults->removeObject(u"a");
    EXPECT_TRUE(fileGets("a", QVariant()));
}

TEST_F(PlistDefaultsTest, ManyChanges_AreGatheredIntoFewReplacements) {
    const auto defaults = open();
    const int events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(::inotify_add_watch(events, QFile::encodeName(fFolder.folder()), IN_MOVED_TO), 0);
    const auto start = std::chrono::steady_clock::now();
    for (int number = 0; number < 3000; ++number)
        defaults->setObject(QStringLiteral("key%1").arg(number % 30), number);
    ASSERT_TRUE(fileGets("key29", qlonglong{2999}));
    const auto gatherTimes = (std::chrono::steady_clock::now() - start) / 100ms;
    int replacements = 0;
    alignas(inotify_event) char buffer[4096];
    for (ssize_t size = 0; (size = ::read(events, buffer, sizeof buffer)) > 0;) {
        for (ssize_t at = 0; at < size; ++replacements)
            at += static_cast<ssize_t>(sizeof(inotify_event)) +
                  reinterpret_cast<const inotify_event*>(buffer + at)->len;
    }
    ::close(events);
    EXPECT_GE(replacements, 1);
    EXPECT_LE(replacements, gatherTimes + 2);
}

TEST_F(PlistDefaultsTest, FirstChange_IsWrittenATenthOfASecondLaterWhateverFollows) {
    const auto defaults = open();
    defaults->setObject(u"a", -1);
    defaults->synchronize();
    const auto start = std::chrono::steady_clock::now();
    int number = 0;
    EXPECT_TRUE(waitUntil([&] {
        defaults->setObject(u"a", number++);
        const auto values = fFolder.values();
        return values && values->value("a") != QVariant(-1);
    })) << "changes without a pause do not put it off";
    EXPECT_GE(std::chrono::steady_clock::now() - start, 100ms);
}

TEST_F(PlistDefaultsTest, BriefState_IsWrittenWhenItLasts) {
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    const auto start = std::chrono::steady_clock::now();
    defaults->setObject(prefIsScanning, true);
    EXPECT_TRUE(defaults->boolForKey(prefIsScanning));
    EXPECT_TRUE(fileGets("prefIsScanning", true));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 3s);
}

TEST_F(PlistDefaultsTest, BriefStateThatIsBack_IsWrittenWhenItLasts) {
    const auto defaults = open();
    defaults->setObject(prefIsScanning, false);
    defaults->synchronize();
    defaults->setObject(prefIsScanning, true);
    defaults->setObject(prefIsScanning, false);
    const auto start = std::chrono::steady_clock::now();
    defaults->setObject(prefIsScanning, true);
    EXPECT_TRUE(fileGets("prefIsScanning", true));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 3s);
}

/// How often the other threads of this process have gone to sleep so far.
int sleepsOfOthers() {
    int sum = 0;
    const QString self = QString::number(::gettid());
    for (const QString& task :
         QDir(QStringLiteral("/proc/self/task")).entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile status(QString(u"/proc/self/task/" + task + u"/status"));
        if (task == self || !status.open(QFile::ReadOnly))
            continue;
        const QByteArray text = status.readAll();
        const QByteArray name = "\nvoluntary_ctxt_switches:";
        sum += text.mid(text.indexOf(name) + name.size()).simplified().split(' ').first().toInt();
    }
    return sum;
}

TEST_F(PlistDefaultsTest, BriefStateThatIsGone_WakesNobody) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the thread sanitizer has a thread of its own that wakes";
#endif
    const auto defaults = open();
    defaults->setObject(prefIsScanning, false);
    defaults->synchronize();
    std::this_thread::sleep_for(300ms); // the wake-ups of that
    const int before = sleepsOfOthers();
    ASSERT_GT(before, 0);
    defaults->setObject(prefIsScanning, true);
    defaults->setObject(prefIsScanning, false);
    std::this_thread::sleep_for(3300ms);
    EXPECT_EQ(sleepsOfOthers(), before);
    defaults->setObject(prefIsScanning, true);
    EXPECT_TRUE(fileGets("prefIsScanning", true));
    EXPECT_GT(sleepsOfOthers(), before);
}

TEST(DefaultsValuesTest, Change_TellsWhenTheDiskIsToHaveIt) {
    using enum DefaultsValues::Haste;
    DefaultsValues values;
    EXPECT_EQ(values.change(prefIsScanning, true), Later);
    EXPECT_EQ(values.change(prefIsScanning, true), AsBefore);
    EXPECT_EQ(values.change(prefIsScanning, false), AsBefore) << "there was none before";
    EXPECT_EQ(values.takeChanges().size(), 1);
    EXPECT_EQ(values.change(prefIsScanning, true), Later);
    EXPECT_EQ(values.change(prefIsScanning, false), Never);
    EXPECT_TRUE(values.hasChanges()) << "it is told with the next ones";
    EXPECT_EQ(values.change(prefIsScanning, true), Later);
    EXPECT_EQ(values.change(u"a", 1), Soon);
    EXPECT_EQ(values.change(u"a", 2), AsBefore);
    EXPECT_EQ(values.change(prefIsScanning, false), AsBefore) << "it goes along";
    values.takeChanges();
    EXPECT_EQ(values.change(u"a", 3), Soon);
}

TEST_F(PlistDefaultsTest, SettingBehindABriefState_TakesItAlong) {
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    const auto start = std::chrono::steady_clock::now();
    defaults->setObject(prefIsScanning, true);
    defaults->setObject(u"a", 2);
    EXPECT_TRUE(fileGets("a", qlonglong{2}));
    EXPECT_LT(std::chrono::steady_clock::now() - start, 3s);
    EXPECT_TRUE(fileGets("prefIsScanning", true));
}

TEST_F(PlistDefaultsTest, OwnWriting_GivesTheMainQueueNothingToDo) {
    auto defaults = open();
    defaults->setObject(u"a", 1);
    ASSERT_TRUE(fileGets("a", qlonglong{1}));
    defaults->synchronize();
    defaults.reset();
    EXPECT_TRUE(fMain.idle());
}

TEST_F(PlistDefaultsTest, EqualValue_LeavesTheFileAlone) {
    const auto defaults = open();
    defaults->setObject(u"a", true);
    defaults->synchronize();
    const ino_t before = SettingsFolder::inodeOf(fFolder.path());
    defaults->setObject(u"a", true);
    defaults->removeObject(u"never there");
    defaults->synchronize();
    EXPECT_EQ(SettingsFolder::inodeOf(fFolder.path()), before);
}

TEST_F(PlistDefaultsTest, Idle_ItsThreadSleeps) {
#ifdef __SANITIZE_THREAD__
    GTEST_SKIP() << "the thread sanitizer adds a thread of its own to those counted here";
#endif
    const auto threads = [] {
        std::set<std::string> found;
        DIR* folder = ::opendir("/proc/self/task");
        while (const dirent* entry = ::readdir(folder))
            found.insert(entry->d_name);
        ::closedir(folder);
        return found;
    };
    const auto before = threads();
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    ASSERT_TRUE(fileGets("a", qlonglong{1}));
    std::set<std::string> added;
    for (const std::string& thread : threads()) {
        if (!before.contains(thread))
            added.insert(thread);
    }
    ASSERT_EQ(added.size(), 1U);
    const auto wakeUps = [&] {
        QFile file(QStringLiteral("/proc/self/task/%1/status")
                       .arg(QString::fromStdString(*added.begin())));
        if (!file.open(QFile::ReadOnly))
            return QByteArray();
        const QByteArray text = file.readAll();
        return text.sliced(text.indexOf("\nvoluntary_ctxt_switches"));
    };
    // Settles once the event of its own writing is dealt with; then nothing wakes it.
    EXPECT_TRUE(waitUntil([&] {
        const QByteArray then = wakeUps();
        waitUntil([] { return false; }, 400ms);
        return !then.isEmpty() && wakeUps() == then;
    }));
}

TEST_F(PlistDefaultsTest, Destruction_WritesWhatIsLeftAndSilencesTheQueue) {
    int calls = 0;
    auto defaults = open();
    const auto subscription = defaults->observe(u"theirs", [&](const DefaultsChange&) { ++calls; });
    fFolder.replace({{"theirs", 1LL}});
    ASSERT_TRUE(waitUntil([&] { return !fMain.idle(); }));
    defaults->setObject(u"mine", 2);
    defaults.reset();
    fMain.runDue();
    EXPECT_EQ(calls, 0);
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"mine", qlonglong{2}}, {"theirs", qlonglong{1}}}));
}

struct BadFile {
    const char* name;
    QByteArray bytes;
    QString fault;
};

class PlistDefaultsBadFileTest : public PlistDefaultsFixture,
                                 public ::testing::WithParamInterface<BadFile> {};

TEST_P(PlistDefaultsBadFileTest, AtStart_IsKeptAsideAndSaid) {
    fFolder.write(GetParam().bytes);
    const auto defaults = open();
    const QStringList others = fFolder.otherFiles();
    ASSERT_EQ(others.size(), 1) << others.join(u' ').toStdString();
    EXPECT_TRUE(others[0].contains(
        QRegularExpression(QStringLiteral("^preferences\\.plist\\.corrupt-\\d{8}T\\d{6}Z$"))))
        << others[0].toStdString();
    const QString aside = fFolder.folder() + u'/' + others[0];
    QFile kept(aside);
    ASSERT_TRUE(kept.open(QFile::ReadOnly));
    EXPECT_EQ(kept.readAll(), GetParam().bytes);
    EXPECT_EQ(defaults->standing().aside, aside);
    EXPECT_EQ(defaults->standing().fault, QString());
    ASSERT_EQ(fConsole.logged().size(), 1);
    EXPECT_TRUE(fConsole.logged()[0].contains(fFolder.path() + u' '));
    EXPECT_TRUE(fConsole.logged()[0].endsWith(
        QString(u" cannot be read: " + GetParam().fault + u". It is kept as " + aside)))
        << fConsole.logged()[0].toStdString();

    EXPECT_FALSE(defaults->object(u"a").isValid());
    defaults->setObject(u"new", 1);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"new", qlonglong{1}}}));
    EXPECT_EQ(fConsole.logged().size(), 1);
}

INSTANTIATE_TEST_SUITE_P(
    Files, PlistDefaultsBadFileTest,
    ::testing::Values(
        BadFile{"Empty", "", "it is empty"},
        BadFile{"Cut", cutFile().toUtf8(), "its end is missing"},
        BadFile{"Noise", QByteArray("\x7f\x00\xff\x13noise", 9), "its end is missing"},
        BadFile{"Zeros", QByteArray(4096, '\0'), "its end is missing"},
        BadFile{"WrongRoot", "<plist version=\"1.0\"><array/></plist>",
                "its root is no dictionary"},
        BadFile{"CutBinary", QByteArray("bplist00\xd1\x01\x02", 11), "it is cut"},
        BadFile{"TooLarge", QByteArray(17 * 1024 * 1024, 'x'), "it is larger than 16 MiB"}),
    [](const auto& tested) { return tested.param.name; });

TEST_F(PlistDefaultsTest, AsideNameTaken_IsNotOverwritten) {
    const QDateTime now = QDateTime::currentDateTimeUtc();
    fFolder.write("bad");
    for (int second = 0; second < 60; ++second) {
        QFile taken(fFolder.path() + QStringLiteral(".corrupt-") +
                    now.addSecs(second).toString(QStringLiteral("yyyyMMdd'T'HHmmss'Z'")));
        ASSERT_TRUE(taken.open(QFile::WriteOnly));
        taken.write("earlier");
    }
    const auto defaults = open();
    int kept = 0;
    for (const QString& name : fFolder.otherFiles()) {
        QFile file(fFolder.folder() + u'/' + name);
        ASSERT_TRUE(file.open(QFile::ReadOnly));
        const bool second = name.endsWith(QStringLiteral("Z-2"));
        EXPECT_EQ(file.readAll(), second ? "bad" : "earlier") << name.toStdString();
        kept += second ? 1 : 0;
    }
    EXPECT_EQ(kept, 1);
}

TEST_F(PlistDefaultsTest, PipeInThePlaceOfTheFile_DoesNotHoldUsUp) {
    QDir().mkpath(fFolder.folder());
    ASSERT_EQ(::mkfifo(QFile::encodeName(fFolder.path()), 0600), 0);
    const auto defaults = open();
    EXPECT_EQ(
        fConsole.logged(),
        QStringList{QString(u"The settings in " + fFolder.path() +
                            u" are not known: it is no ordinary file. Until they are, no pass "
                            u"begins and nothing is written there")});
    EXPECT_FALSE(defaults->areKnown());
    defaults->setObject(u"a", 1);
    defaults->synchronize();
    EXPECT_TRUE(fFolder.otherFiles().isEmpty()) << "no file, no damage";
    EXPECT_FALSE(defaults->standing().fault.isEmpty());
    ASSERT_TRUE(QFile::remove(fFolder.path()));
    defaults->synchronize();
    EXPECT_EQ(defaults->standing().fault, QString());
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
}

TEST_F(PlistDefaultsTest, DamagedFileLeftAlone_StaysAndNothingIsKnown) {
    const QByteArray damaged = cutFile().toUtf8();
    fFolder.write(damaged);
    {
        PlistDefaults defaults(fFolder.path(), DamagedFile::IsLeftAlone, isState, fMain, fConsole);
        EXPECT_FALSE(defaults.areKnown());
        EXPECT_TRUE(
            defaults.trouble().endsWith(QStringLiteral("are not known: its end is missing")))
            << defaults.trouble().toStdString();
        EXPECT_EQ(defaults.standing().fault, defaults.trouble());
        EXPECT_EQ(defaults.standing().aside, QString());
        defaults.setObject(u"a", 1);
        defaults.synchronize();
    }
    EXPECT_EQ(fFolder.bytes(), damaged);
    EXPECT_TRUE(fFolder.otherFiles().isEmpty());
}

TEST_F(PlistDefaultsTest, FileDamagedMeanwhileAndLeftAlone_StaysToo) {
    fFolder.replace({{"a", 1LL}});
    PlistDefaults defaults(fFolder.path(), DamagedFile::IsLeftAlone, isState, fMain, fConsole);
    EXPECT_TRUE(defaults.areKnown());
    fFolder.write("rubbish");
    defaults.setObject(u"a", 2);
    defaults.synchronize();
    EXPECT_EQ(fFolder.bytes(), "rubbish");
    EXPECT_TRUE(fFolder.otherFiles().isEmpty());
    EXPECT_TRUE(defaults.areKnown());
    EXPECT_FALSE(defaults.trouble().isEmpty());
}

TEST_F(PlistDefaultsTest, WrongTypes_ReadAsNeutralAndStayInTheFile) {
    const QVariantMap odd{{"prefRsyncCommandOptionTag", QVariantMap{{"a", qlonglong{1}}}},
                          {"prefPath1", QVariantList{true}},
                          {"prefIsScanning", QByteArray("\1")},
                          {"unknown key", 2.5}};
    fFolder.replace(odd);
    const auto defaults = open();
    EXPECT_EQ(defaults->integerForKey(u"prefRsyncCommandOptionTag"), 0);
    EXPECT_EQ(defaults->stringForKey(u"prefPath1"), std::nullopt);
    EXPECT_FALSE(defaults->boolForKey(u"prefIsScanning"));
    defaults->setObject(u"prefPath2", "/x");
    defaults->synchronize();
    QVariantMap expected = odd;
    expected.insert("prefPath2", "/x");
    EXPECT_TRUE(sameStoredValue(fFolder.values().value_or(QVariantMap()), expected));
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsTest, CharactersThatXmlCannotCarry_HoldInMemoryAndHarmNothing) {
    const QString odd = QStringLiteral("a\u0001b");
    {
        const auto defaults = open();
        defaults->setObject(u"odd", odd);
        defaults->setObject(u"other", 1);
        defaults->synchronize();
        EXPECT_EQ(defaults->stringForKey(u"odd"), odd);
    }
    const auto again = open();
    EXPECT_EQ(again->stringForKey(u"odd"), QStringLiteral("a\uFFFDb"));
    EXPECT_EQ(again->integerForKey(u"other"), 1);
}

TEST_F(PlistDefaultsTest, TooMuchToWrite_LeavesTheFileReadable) {
    const auto defaults = open();
    defaults->setObject(u"small", 1);
    defaults->synchronize();
    defaults->setObject(u"large", QByteArray(17 * 1024 * 1024, 'x'));
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"small", qlonglong{1}}}));
    EXPECT_EQ(fConsole.logged().size(), 1);
    EXPECT_EQ(defaults->object(u"large").toByteArray().size(), 17 * 1024 * 1024);
    defaults->removeObject(u"large");
    defaults->setObject(u"small", 2);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"small", qlonglong{2}}}));
    EXPECT_EQ(fConsole.logged().size(), 2);
}

TEST_F(PlistDefaultsTest, Leftovers_OfDeadWritersGoAtStart) {
    fFolder.replace({{"a", 1LL}});
    for (const char* name :
         {"preferences.plist.new-1234-1-5", "preferences.plist.newer", "notes"}) {
        QFile file(fFolder.folder() + u'/' + QString::fromLatin1(name));
        ASSERT_TRUE(file.open(QFile::WriteOnly));
    }
    const auto defaults = open();
    EXPECT_EQ(fFolder.otherFiles(), (QStringList{"notes", "preferences.plist.newer"}));
    EXPECT_EQ(defaults->integerForKey(u"a"), 1);
}

TEST_F(PlistDefaultsTest, LockedByAnotherProgram_IsSaidOnceAndWrittenLater) {
    fFolder.replace({{"a", 1LL}});
    QFile leftover(fFolder.path() + QStringLiteral(".new-1-1-1"));
    ASSERT_TRUE(leftover.open(QFile::WriteOnly));
    PlistFile other(fFolder.path());
    auto held = std::make_unique<FileLock>(other.lock(1s).first);
    ASSERT_TRUE(*held);
    const auto defaults = open();
    EXPECT_EQ(fFolder.otherFiles().size(), 1) << "it may be in use";
    EXPECT_EQ(defaults->integerForKey(u"a"), 1);
    defaults->setObject(u"a", 2);
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{1}}}));
    EXPECT_EQ(
        fConsole.logged(),
        QStringList{QString(u"Settings cannot be saved to " + fFolder.path() +
                            u": another program keeps it locked. They hold in memory and will "
                            u"be saved when that is possible")});
    held.reset();
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{2}}}));
    EXPECT_EQ(fConsole.logged().size(), 2);
}

TEST_F(PlistDefaultsTest, ReaderOfWhatIsNotThere_LeavesNoFolderBehind) {
    const QString parent = fFolder.folder() + QStringLiteral("/profiles");
    const QString path = parent + QStringLiteral("/east/settings");
    {
        PlistDefaults reader(path, DamagedFile::IsLeftAlone, isState, fMain, fConsole);
        EXPECT_TRUE(reader.areKnown());
        reader.synchronize();
    }
    EXPECT_FALSE(QFile::exists(parent));
    {
        PlistDefaults writer(path, DamagedFile::IsLeftAlone, isState, fMain, fConsole);
        writer.setObject(u"a", 1);
    }
    EXPECT_TRUE(QFile::exists(path)) << "it comes with the first change";
    EXPECT_TRUE(fConsole.logged().isEmpty());
}

TEST_F(PlistDefaultsTest, BlockedFolder_IsSaidOnceAndWrittenWhenItWorks) {
    QDir().mkpath(QFileInfo(fFolder.folder()).path());
    QFile obstacle(fFolder.folder());
    ASSERT_TRUE(obstacle.open(QFile::WriteOnly));
    const auto defaults = open();
    for (int round = 1; round <= 3; ++round) {
        defaults->setObject(u"a", round);
        defaults->synchronize();
    }
    EXPECT_EQ(defaults->integerForKey(u"a"), 3);
    ASSERT_EQ(fConsole.logged().size(), 1);
    EXPECT_TRUE(fConsole.logged()[0].contains(fFolder.path()));
    ASSERT_TRUE(obstacle.remove());
    defaults->synchronize();
    EXPECT_EQ(fFolder.values(), (QVariantMap{{"a", qlonglong{3}}}));
    ASSERT_EQ(fConsole.logged().size(), 2);
    EXPECT_EQ(fConsole.logged()[1],
              QString(u"Settings are saved to " + fFolder.path() + u" again"));

    // The folder is new, and yet what others do there is noticed.
    fFolder.replace({{"a", 9LL}});
    EXPECT_TRUE(waitUntil([&] { return defaults->integerForKey(u"a") == 9; }));
}

TEST_F(PlistDefaultsTest, PlaceThatStaysBlocked_IsTriedAgainAfterLongerAndLongerPauses) {
    QDir().mkpath(fFolder.path());
    const int events = ::inotify_init1(IN_NONBLOCK | IN_CLOEXEC);
    ASSERT_GE(::inotify_add_watch(events, QFile::encodeName(fFolder.path()), IN_OPEN), 0);
    const auto start = std::chrono::steady_clock::now();
    const auto defaults = open();
    int attempts = 0;
    EXPECT_TRUE(waitUntil([&] {
        alignas(inotify_event) char event[sizeof(inotify_event)];
        while (::read(events, event, sizeof event) > 0)
            ++attempts;
        return attempts >= 4;
    }));
    EXPECT_GE(std::chrono::steady_clock::now() - start, 3500ms) << "three equal pauses are 3 s";
    ::close(events);
    EXPECT_EQ(fConsole.logged().size(), 1);
}

TEST_F(PlistDefaultsTest, BlockedFolder_IsTriedAgainWithoutBeingAsked) {
    QDir().mkpath(QFileInfo(fFolder.folder()).path());
    QFile obstacle(fFolder.folder());
    ASSERT_TRUE(obstacle.open(QFile::WriteOnly));
    const auto defaults = open();
    defaults->setObject(u"a", 1);
    ASSERT_TRUE(waitUntil([&] { return fConsole.logged().size() == 1; }));
    ASSERT_TRUE(obstacle.remove());
    EXPECT_TRUE(fileGets("a", qlonglong{1}));
    EXPECT_TRUE(waitUntil([&] { return fConsole.logged().size() == 2; }));
}

} // namespace
} // namespace kelvo
