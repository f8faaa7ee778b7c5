#include "fakes/memory_defaults.h"
#include "fakes/memory_pass_store.h"
#include "fakes/recording_notices.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "ui/pass_notices.h"
#include "ui/pass_words.h"

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class PassNoticesTest : public ::testing::Test {
protected:
    void pass(PassCause cause, std::initializer_list<const char*> arrived = {}) {
        PassRecord record;
        record.cause = cause;
        record.lastLine = QStringLiteral("<b>said by the host</b>");
        for (const char* path : arrived)
            record.arrivals.push_back({path, 0, {}});
        store.append(record);
        mainQueue.runDue();
    }

    VirtualMainQueue mainQueue;
    MemoryPassStore store{mainQueue};
    MemoryDefaults defaults{
        {{prefShowNotices.toString(), true}, {prefShowArrivals.toString(), true}}};
    RecordingNotices desktop;
    std::vector<std::optional<qint64>> asked; ///< for the record of passes
    PassNotices notices{store, defaults, desktop,
                        [this](std::optional<qint64> pass) { asked.push_back(pass); }};
};

TEST_F(PassNoticesTest, ScriptedDay_GivesOneNoticeATurn) {
    using enum PassCause;
    for (int i = 0; i < 100; ++i)
        pass(Well);
    EXPECT_TRUE(desktop.shown.isEmpty()) << "health is no news";
    for (int i = 0; i < 50; ++i)
        pass(i < 20 ? HostAway : i < 40 ? HostNotFound : Unknown);
    ASSERT_EQ(desktop.shown.size(), 1) << "one when it turns bad, none in between";
    EXPECT_EQ(
        desktop.shown[0],
        QStringLiteral("Kelvo Mirror is in trouble | The Mac is away or asleep. Wake the Mac; "
                       "in its energy settings, let it wake for network access."));
    for (int i = 0; i < 30; ++i)
        pass(Well);
    ASSERT_EQ(desktop.shown.size(), 2);
    EXPECT_EQ(desktop.shown[1], QStringLiteral("Kelvo Mirror is well again | The last pass went "
                                               "well: files unknown."));
    pass(DiskFull);
    pass(Well);
    EXPECT_EQ(desktop.shown.size(), 4);
}

TEST_F(PassNoticesTest, PassesThatSayNothing_ChangeNoMind) {
    using enum PassCause;
    for (const PassCause cause : {Well, FilesVanished, Interrupted, Well})
        pass(cause);
    EXPECT_TRUE(desktop.shown.isEmpty());
    for (const PassCause cause : {CutOff, FilesVanished, Interrupted, CutOff})
        pass(cause);
    EXPECT_EQ(desktop.shown.size(), 1);
}

TEST_F(PassNoticesTest, SwitchedOff_KeepsStillButKeepsCount) {
    defaults.setObject(prefShowNotices, false);
    pass(PassCause::KeyMissing);
    EXPECT_TRUE(desktop.shown.isEmpty());
    defaults.setObject(prefShowNotices, true);
    pass(PassCause::KeyMissing);
    EXPECT_TRUE(desktop.shown.isEmpty()) << "the trouble is no news any more";
    pass(PassCause::Well);
    EXPECT_EQ(desktop.shown.size(), 1);
}

TEST_F(PassNoticesTest, WordsOfTheHost_AreNotShown) {
    pass(PassCause::Unknown);
    ASSERT_EQ(desktop.shown.size(), 1);
    EXPECT_FALSE(desktop.shown[0].contains(QStringLiteral("said by the host")));
}

TEST_F(PassNoticesTest, Arrivals_AreNamed) {
    pass(PassCause::Well, {"/m/A.mov", "/m/B.mov", "/m/C.mov"});
    pass(PassCause::Well);
    pass(PassCause::Cancelled, {"/m/D\n.mov"});
    EXPECT_EQ(desktop.shown,
              (QStringList{QStringLiteral("3 new movies | A.mov, B.mov and one more"),
                           QStringLiteral("1 new movie | D\\x0a.mov")}));
    EXPECT_FALSE(desktop.notices.back().urgent);
}

TEST_F(PassNoticesTest, ArrivalsAndTurns_AreSwitchedApart) {
    defaults.setObject(prefShowArrivals, false);
    pass(PassCause::Well, {"A"});
    EXPECT_TRUE(desktop.shown.isEmpty());
    pass(PassCause::DiskFull);
    EXPECT_EQ(desktop.shown.size(), 1);
    defaults.setObject(prefShowArrivals, true);
    defaults.setObject(prefShowNotices, false);
    pass(PassCause::Well, {"A"});
    ASSERT_EQ(desktop.shown.size(), 2);
    EXPECT_TRUE(desktop.shown[1].startsWith(QStringLiteral("1 new movie")));
}

TEST_F(PassNoticesTest, TurnWithArrivals_IsOneNotice) {
    pass(PassCause::AfterFailed, {"A"});
    pass(PassCause::Well, {"B"});
    ASSERT_EQ(desktop.shown.size(), 2);
    EXPECT_TRUE(desktop.shown[0].startsWith(QStringLiteral("Kelvo Mirror is in trouble")));
    EXPECT_TRUE(desktop.shown[1].startsWith(QStringLiteral("Kelvo Mirror is well again")));
}

TEST_F(PassNoticesTest, TroubleThatOnlyAPersonMends_IsUrgent) {
    pass(PassCause::HostAway);
    EXPECT_FALSE(desktop.notices.back().urgent) << "a Mac may sleep at night";
    pass(PassCause::Well);
    EXPECT_FALSE(desktop.notices.back().urgent);
    pass(PassCause::CutOff);
    EXPECT_FALSE(desktop.notices.back().urgent) << "a network comes back";
    pass(PassCause::Well);
    EXPECT_FALSE(desktop.notices.back().urgent);
    pass(PassCause::DestinationTaken);
    EXPECT_FALSE(desktop.notices.back().urgent) << "the other program's pass ends";
    pass(PassCause::Well);
    pass(PassCause::KeyRefused);
    EXPECT_TRUE(desktop.notices.back().urgent);
}

TEST_F(PassNoticesTest, ShowOfAPassThatCouldNotBeWritten_AsksForTheRecordAsAWhole) {
    store.isWritable = false;
    pass(PassCause::DiskFull);
    EXPECT_TRUE(desktop.chooseShow());
    EXPECT_EQ(asked, std::vector<std::optional<qint64>>{std::nullopt});
}

TEST_F(PassNoticesTest, Show_AsksForThePassOfTheNotice) {
    pass(PassCause::DiskFull);
    pass(PassCause::DiskFull);
    EXPECT_TRUE(desktop.chooseShow());
    pass(PassCause::Well);
    EXPECT_TRUE(desktop.chooseShow());
    EXPECT_EQ(asked, (std::vector<std::optional<qint64>>{1, 3}));
}

} // namespace
} // namespace kelvo
