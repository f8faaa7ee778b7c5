// What every DnssdBrowser does, on a network of any kind: the fake one, or two real hosts.
#pragma once

#include "ports/dnssd_browser.h"
#include "support/service_name_rules.h"

#include <QDateTime>

#include <gtest/gtest.h>

#include <algorithm>
#include <functional>

namespace kelvo {

/// `Network` has: prepare() (the reason why it cannot be had, or empty), browser(), announce(name,
/// port), withdraw(name), setRunning(running) for this machine's discovery service, and
/// becomes(condition, seconds), which waits.
template <typename Network>
class DnssdBrowserContractTest : public ::testing::Test {
protected:
    void SetUp() override {
        if (const QString reason = network.prepare(); !reason.isEmpty())
            GTEST_SKIP() << reason.toStdString();
    }

    /// A name that no other test uses.
    static QString named(const QString& name) {
        static int count = 0;
        const auto* test = ::testing::UnitTest::GetInstance()->current_test_info();
        return QStringLiteral("%1 %2 %3")
            .arg(name)
            .arg(++count)
            .arg(QString::fromLatin1(test->name()).left(24));
    }

    std::optional<DNSSD_Service> find(const QString& name) {
        const DNSSD_Services all = network.browser().services();
        const auto found = std::ranges::find(all, name, &DNSSD_Service::name);
        return found == all.end() ? std::nullopt : std::optional(*found);
    }
    bool isAvailable(const QString& name) {
        const auto record = find(name);
        return record && record->available;
    }
    bool isResolved(const QString& name) {
        const auto record = find(name);
        return record && record->available && !record->ip4Address.isEmpty();
    }
    bool becomes(const std::function<bool()>& condition) { return network.becomes(condition); }
    void browse() { network.browser().browseForType(QStringLiteral("_smb")); }

    Network network;
};

TYPED_TEST_SUITE_P(DnssdBrowserContractTest);

TYPED_TEST_P(DnssdBrowserContractTest, BeforeAnySearch_NothingIsKnown) {
    this->network.announce(this->named(QStringLiteral("Mac")), 445);
    EXPECT_TRUE(this->network.browser().services().isEmpty());
}

TYPED_TEST_P(DnssdBrowserContractTest, AnnouncedService_IsFoundWithEveryField) {
    const QString name = this->named(QStringLiteral("Ann's é (1.0)"));
    const qint64 before = QDateTime::currentSecsSinceEpoch();
    this->network.announce(name, 4450);
    this->browse();
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    const DNSSD_Service record = this->find(name).value();
    EXPECT_EQ(record.type, u"_smb._tcp");
    EXPECT_EQ(record.scheme, u"smb");
    EXPECT_EQ(record.domain, u"local");
    EXPECT_EQ(record.hostTarget, u"Remote-Mac.local");
    EXPECT_EQ(record.ip4Address, u"10.77.0.2");
    EXPECT_EQ(record.fullName, fullServiceName(name, u"_smb._tcp", u"local"));
    EXPECT_GE(record.dateAdded.toSecsSinceEpoch(), before);
    EXPECT_LE(record.dateAdded.toSecsSinceEpoch(), QDateTime::currentSecsSinceEpoch());
    EXPECT_EQ(record.dateAdded.time().msec(), 0);
    EXPECT_GT(record.interface, 0U);
    EXPECT_EQ(record.hostPort, 4450U);
}

TYPED_TEST_P(DnssdBrowserContractTest, LaterServices_StandBehindEarlierOnes) {
    this->browse();
    const QStringList names{this->named(QStringLiteral("Zoe")), this->named(QStringLiteral("Ann")),
                            this->named(QStringLiteral("Max"))};
    for (const QString& name : names) {
        this->network.announce(name, 445);
        ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    }
    const auto found = [&] {
        QStringList order;
        for (const DNSSD_Service& record : this->network.browser().services()) {
            if (names.contains(record.name))
                order.append(record.name);
        }
        return order;
    };
    EXPECT_EQ(found(), names);
    this->browse();
    EXPECT_EQ(found(), names);
}

TYPED_TEST_P(DnssdBrowserContractTest, VanishedService_StaysUntilTheNextSearch) {
    const QString name = this->named(QStringLiteral("Leaver"));
    this->browse();
    this->network.announce(name, 445);
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    this->network.withdraw(name);
    ASSERT_TRUE(this->becomes([&] { return !this->isAvailable(name); }));
    ASSERT_TRUE(this->find(name));
    EXPECT_EQ(this->find(name)->ip4Address, u"10.77.0.2");
    this->browse();
    EXPECT_FALSE(this->find(name));
}

TYPED_TEST_P(DnssdBrowserContractTest, ReturningService_TakesItsOldPlace) {
    const QString name = this->named(QStringLiteral("Returner"));
    this->browse();
    this->network.announce(name, 445);
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    this->network.withdraw(name);
    ASSERT_TRUE(this->becomes([&] { return !this->isAvailable(name); }));
    this->network.announce(name, 446);
    ASSERT_TRUE(this->becomes(
        [&] { return this->isAvailable(name) && this->find(name)->hostPort == 446; }));
    const DNSSD_Services all = this->network.browser().services();
    EXPECT_EQ(std::ranges::count(all, name, &DNSSD_Service::name), 1);
}

TYPED_TEST_P(DnssdBrowserContractTest, ChangedService_IsSeenByTheNextSearch) {
    const QString name = this->named(QStringLiteral("Changer"));
    this->network.announce(name, 445);
    this->browse();
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    this->network.announce(name, 1445);
    EXPECT_TRUE(this->becomes([&] {
        this->browse();
        return this->network.becomes(
            [&] { return this->isAvailable(name) && this->find(name)->hostPort == 1445; }, 3);
    }));
}

TYPED_TEST_P(DnssdBrowserContractTest, DiscoveryServiceGone_KeepsTheListAndFindsBack) {
    const QString name = this->named(QStringLiteral("Stayer"));
    this->network.announce(name, 445);
    this->browse();
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    this->network.setRunning(false);
    ASSERT_TRUE(this->becomes([&] { return !this->isAvailable(name); }));
    EXPECT_TRUE(this->find(name));
    this->network.setRunning(true);
    EXPECT_TRUE(this->becomes([&] { return this->isResolved(name); }));
}

TYPED_TEST_P(DnssdBrowserContractTest, SearchWithoutDiscoveryService_GoesOnOnceThereIsOne) {
    const QString name = this->named(QStringLiteral("Early"));
    this->network.announce(name, 445);
    this->network.setRunning(false);
    this->browse();
    EXPECT_TRUE(this->network.browser().services().isEmpty());
    this->network.setRunning(true);
    EXPECT_TRUE(this->becomes([&] { return this->isResolved(name); }));
}

TYPED_TEST_P(DnssdBrowserContractTest, DiscoveryService_IsToldOfAsItGoesAndComes) {
    std::vector<DiscoveryState> told;
    auto watch =
        this->network.browser().observeState([&](DiscoveryState state) { told.push_back(state); });
    EXPECT_EQ(told, std::vector{DiscoveryState::Unknown});
    this->browse();
    const auto isRunning = [&] { return told.back() == DiscoveryState::Running; };
    const auto isAway = [&] {
        return told.back() == DiscoveryState::NotRunning ||
               told.back() == DiscoveryState::NotInstalled;
    };
    ASSERT_TRUE(this->becomes(isRunning));
    this->network.setRunning(false);
    ASSERT_TRUE(this->becomes(isAway));
    this->network.setRunning(true);
    ASSERT_TRUE(this->becomes(isRunning));
    EXPECT_EQ(told.size(), 4U);
    watch.reset();
    this->network.setRunning(false);
    std::optional<DiscoveryState> later;
    auto other = this->network.browser().observeState([&](DiscoveryState state) { later = state; });
    EXPECT_TRUE(this->becomes([&] { return later != DiscoveryState::Running; }));
    EXPECT_EQ(told.size(), 4U);
    this->network.setRunning(true);
    EXPECT_TRUE(this->becomes([&] { return later == DiscoveryState::Running; }));
}

TYPED_TEST_P(DnssdBrowserContractTest, ObserverEndedByAnother_HearsNoMore) {
    std::vector<Subscription> watches;
    int heard = 0;
    bool ends = false;
    for (int number = 0; number < 2; ++number) {
        watches.push_back(this->network.browser().observeState([&](DiscoveryState) {
            ++heard;
            if (ends)
                watches.clear();
        }));
    }
    EXPECT_EQ(heard, 2);
    ends = true;
    std::optional<DiscoveryState> later;
    auto last = this->network.browser().observeState([&](DiscoveryState state) { later = state; });
    this->browse();
    EXPECT_TRUE(this->becomes([&] { return later == DiscoveryState::Running; }));
    EXPECT_EQ(heard, 3);
}

TYPED_TEST_P(DnssdBrowserContractTest, AnotherType_ForgetsEverything) {
    const QString name = this->named(QStringLiteral("Server"));
    this->network.announce(name, 445);
    this->browse();
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(name); }));
    this->network.browser().browseForType(QStringLiteral("_kelvo-nothing"));
    EXPECT_TRUE(this->network.browser().services().isEmpty());
    this->browse();
    EXPECT_TRUE(this->becomes([&] { return this->isResolved(name); }));
}

TYPED_TEST_P(DnssdBrowserContractTest, NamesThatMustNotReachAShell_AreLeftOut) {
    const QString good = this->named(QStringLiteral("Bob's [Mac]"));
    const QString bad = this->named(QStringLiteral("$(id) `id` \"x\""));
    this->browse();
    this->network.announce(bad, 445);
    this->network.announce(good, 445);
    ASSERT_TRUE(this->becomes([&] { return this->isResolved(good); }));
    ASSERT_TRUE(this->becomes([&] { return this->network.wasRefused(bad); }));
    EXPECT_FALSE(this->find(bad));
}

REGISTER_TYPED_TEST_SUITE_P(DnssdBrowserContractTest, BeforeAnySearch_NothingIsKnown,
                            AnnouncedService_IsFoundWithEveryField,
                            LaterServices_StandBehindEarlierOnes,
                            VanishedService_StaysUntilTheNextSearch,
                            ReturningService_TakesItsOldPlace, ChangedService_IsSeenByTheNextSearch,
                            DiscoveryServiceGone_KeepsTheListAndFindsBack,
                            SearchWithoutDiscoveryService_GoesOnOnceThereIsOne,
                            DiscoveryService_IsToldOfAsItGoesAndComes,
                            ObserverEndedByAnother_HearsNoMore, AnotherType_ForgetsEverything,
                            NamesThatMustNotReachAShell_AreLeftOut);

} // namespace kelvo
