#include "app/start/service_report.h"
#include "fakes/memory_pass_store.h"
#include "fakes/virtual_queues.h"

#include <QList>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class ServiceReportTest : public ::testing::Test {
protected:
    ServiceReport::Parts parts() {
        return {.mainQueue = mainQueue,
                .passes = passes,
                .now = [this] { return now; },
                .tell = [this](QByteArrayView state) { told.append(state.toByteArray()); },
                .watchdogSeconds = watchdog};
    }
    void passAt(const QDateTime& began, PassCause cause) {
        PassRecord record;
        record.began = began;
        record.cause = cause;
        passes.append(record);
        mainQueue.runDue();
    }
    static WorkState in(WorkPhase phase) {
        WorkState work;
        work.phase = phase;
        return work;
    }

    VirtualMainQueue mainQueue;
    MemoryPassStore passes{mainQueue};
    QDateTime now{{2026, 11, 22}, {12, 30}};
    std::optional<double> watchdog;
    QList<QByteArray> told;
};

TEST_F(ServiceReportTest, Start_IsToldOnceAndThenHowItIs) {
    ServiceReport report(parts());
    report.show(in(WorkPhase::Off));
    report.ready();
    mainQueue.runDue();
    report.show(in(WorkPhase::Off));
    EXPECT_EQ(told, (QList<QByteArray>{"STATUS=Syncing is off", "READY=1"}));
    report.show(in(WorkPhase::Running));
    passAt(QDateTime({2026, 11, 22}, {12, 4}), PassCause::Well);
    report.show(in(WorkPhase::Resting));
    EXPECT_EQ(told.mid(2),
              (QList<QByteArray>{"STATUS=Syncing", "STATUS=Syncing, last success 12:04",
                                 "STATUS=Resting, last success 12:04"}));
}

TEST_F(ServiceReportTest, SuccessOfAnotherDay_HasItsDateAndTroubleItsSentence) {
    WorkState work = in(WorkPhase::Resting);
    work.health = {.sign = HealthSign::Trouble, .text = QStringLiteral("The Mac\nis away.")};
    EXPECT_EQ(serviceStatus(work, QDateTime({2026, 11, 21}, {23, 59}), now),
              QStringLiteral("Resting, last success 2026-11-21 23:59. The Mac\\x0ais away."));
    work.health.sign = HealthSign::Well;
    EXPECT_EQ(serviceStatus(work, std::nullopt, now), QStringLiteral("Resting"));
}

TEST_F(ServiceReportTest, EachPhase_HasItsWords) {
    for (const auto& [phase, words] :
         {std::pair(WorkPhase::Off, u"Syncing is off"), std::pair(WorkPhase::Running, u"Syncing"),
          std::pair(WorkPhase::Missing, u"Waiting for what is missing"),
          std::pair(WorkPhase::Finishing, u"Finishing this pass"),
          std::pair(WorkPhase::Cancelling, u"Cancelling this pass"),
          std::pair(WorkPhase::Resting, u"Resting")})
        EXPECT_EQ(serviceStatus(in(phase), std::nullopt, now), QStringView(words));
}

TEST_F(ServiceReportTest, RecordOfEarlierRuns_Counts) {
    passAt(QDateTime({2026, 11, 22}, {8, 1}), PassCause::Well);
    passAt(QDateTime({2026, 11, 22}, {8, 2}), PassCause::HostAway);
    ServiceReport report(parts());
    report.ready();
    mainQueue.runDue();
    report.show(in(WorkPhase::Missing));
    EXPECT_EQ(told.last(), "STATUS=Waiting for what is missing, last success 08:01");
}

TEST_F(ServiceReportTest, SignsOfLife_ComeTwiceWithinThePatienceAndOnlyWhenWanted) {
    watchdog = 600;
    {
        ServiceReport report(parts());
        report.ready();
        mainQueue.advance(599);
        EXPECT_EQ(told.count("WATCHDOG=1"), 2);
        mainQueue.advance(3001);
        EXPECT_EQ(told.count("WATCHDOG=1"), 13);
        report.stopping();
        mainQueue.advance(3000);
        EXPECT_EQ(told.count("WATCHDOG=1"), 13) << "it is on its way out";
        EXPECT_EQ(told.last(), "STOPPING=1");
        EXPECT_FALSE(told.contains("STATUS=")) << "there was nothing to say";
    }
    mainQueue.advance(3000);
    told.clear();
    watchdog.reset();
    ServiceReport quiet(parts());
    quiet.ready();
    mainQueue.runDue();
    EXPECT_TRUE(mainQueue.idle()) << "nothing wakes up";
}

TEST_F(ServiceReportTest, EndWithoutWork_SaysWhyAndNothingAfterThat) {
    ServiceReport report(parts());
    report.ready();
    report.stopping(QStringLiteral("Kelvo Mirror is running already"));
    report.stopping();
    report.show(in(WorkPhase::Resting));
    mainQueue.runDue();
    EXPECT_EQ(told, (QList<QByteArray>{"READY=1", "STATUS=Kelvo Mirror is running already",
                                       "STOPPING=1"}));
}

} // namespace
} // namespace kelvo
