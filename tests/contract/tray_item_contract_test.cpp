// The contract of TrayItem on the fake and on a bus with a panel; then what panels read on the bus.
#include "adapters/desktop/activation_token.h"
#include "adapters/display/status_notifier_item.h"
#include "fakes/fake_tray_item.h"
#include "support/session_bus.h"
#include "support/startable_service.h"
#include "support/tray_panel.h"
#include "support/wait_in_loop.h"

#include <QDBusArgument>
#include <QDBusConnectionInterface>

#include <gtest/gtest.h>

#include <limits>
#include <memory>

namespace kelvo {
namespace {

TrayLook look(const char* tip, bool needsAttention = false) {
    return {.needsAttention = needsAttention,
            .pictures = {{.side = 1, .argb = QByteArray("\xff\x01\x02\x03", 4)}},
            .tip = QString::fromLatin1(tip)};
}

struct FakeWorld {
    FakeTrayItem item;

    TrayItem& trayItem() { return item; }
    bool ready() const { return true; }
    bool becomes(bool shown) const { return item.visible.has_value() == shown; }
    QString tip() const { return item.visible->tip; }
    QStringList titles() const {
        QStringList all;
        for (const TrayEntry& entry : item.entries)
            all.append(entry.isVisible ? entry.title : QStringLiteral("(hidden)"));
        return all;
    }
    void activate() { item.activate(); }
    void choose(int entry) { item.choose(static_cast<std::size_t>(entry)); }
    void openMenu(int x, int y) { item.openMenu(x, y); }
    void tellMenuShown(bool shown) { item.tellMenuShown(shown); }
};

struct BusWorld {
    PrivateBus daemon;
    BusConnection panels{daemon.address(), QStringLiteral("tray item panel")};
    TrayService watcher{panels.get()};
    StatusNotifierItem item{[this](const QString& name) {
        return QDBusConnection::connectToBus(daemon.address(), name);
    }};
    std::unique_ptr<TrayPanel> panel;

    TrayItem& trayItem() { return item; }
    bool ready() { return panels.get().isConnected() && watcher.appear(true); }
    /// The panel looks at the item that registered last.
    bool meet(qsizetype registrations = 1) {
        if (!waitInLoop([&] { return watcher.items().size() >= registrations; }))
            return false;
        panel = std::make_unique<TrayPanel>(panels.get(), watcher.items().constLast());
        return true;
    }
    bool becomes(bool shown) {
        return waitInLoop([&] {
            return (!watcher.items().isEmpty() && meet() && !panel->properties().isEmpty()) ==
                   shown;
        });
    }
    QString tip() {
        const auto tip =
            panel->properties().value(QStringLiteral("ToolTip")).value<QDBusArgument>();
        BusToolTip read;
        tip >> read;
        return read.text;
    }
    QStringList titles() {
        QStringList all;
        for (const TrayPanel::Line& line : panel->menu())
            all.append(line.properties.value(QStringLiteral("visible")).toBool()
                           ? line.properties.value(QStringLiteral("label")).toString()
                           : QStringLiteral("(hidden)"));
        return all;
    }
    void activate() { panel->askItem(QStringLiteral("Activate"), {0, 0}); }
    void choose(int entry) {
        panel->askMenu(QStringLiteral("Event"),
                       {entry + 1, QStringLiteral("clicked"),
                        QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(0U)});
    }
    void tellMenuShown(bool shown) {
        panel->askMenu(QStringLiteral("Event"),
                       {0, shown ? QStringLiteral("opened") : QStringLiteral("closed"),
                        QVariant::fromValue(QDBusVariant(QString())), QVariant::fromValue(0U)});
    }
    void openMenu(int x, int y) { panel->askItem(QStringLiteral("ContextMenu"), {x, y}); }
};

template <typename World>
class TrayItemContractTest : public ::testing::Test {
protected:
    void SetUp() override { ASSERT_TRUE(world.ready()) << "no message bus"; }
    World world;
};

using Worlds = ::testing::Types<FakeWorld, BusWorld>;
TYPED_TEST_SUITE(TrayItemContractTest, Worlds);

TYPED_TEST(TrayItemContractTest, ShowAndHide_AreSeenAndTheLatestLookCounts) {
    EXPECT_TRUE(this->world.becomes(false));
    this->world.trayItem().show(look("first"));
    ASSERT_TRUE(this->world.becomes(true));
    EXPECT_EQ(this->world.tip(), u"first");
    this->world.trayItem().show(look("second"));
    EXPECT_EQ(this->world.tip(), u"second");
    this->world.trayItem().hide();
    this->world.trayItem().hide();
    EXPECT_TRUE(this->world.becomes(false));
    this->world.trayItem().show(look("third"));
    ASSERT_TRUE(this->world.becomes(true));
    EXPECT_EQ(this->world.tip(), u"third");
}

TYPED_TEST(TrayItemContractTest, Entries_AreKeptWhileHidden) {
    this->world.trayItem().setEntries({{.title = QStringLiteral("A")}});
    this->world.trayItem().setEntries(
        {{.title = QStringLiteral("B")}, {.title = QStringLiteral("C"), .isVisible = false}});
    this->world.trayItem().show(look("tip"));
    ASSERT_TRUE(this->world.becomes(true));
    EXPECT_EQ(this->world.titles().join(u' '), u"B (hidden)");
}

TYPED_TEST(TrayItemContractTest, Choices_AreCalledOnceAndOnlyForWhatCanBeChosen) {
    QStringList done;
    this->world.trayItem().setChoices({
        .activate = [&] { done.append(QStringLiteral("activate")); },
        .choose = [&](std::size_t entry) { done.append(QString::number(entry)); },
        .openMenu = [&](int x, int y) { done.append(QStringLiteral("menu %1 %2").arg(x).arg(y)); },
    });
    this->world.trayItem().setEntries({
        {.title = QStringLiteral("disabled"), .isEnabled = false},
        {.isSeparator = true},
        {.title = QStringLiteral("hidden"), .isVisible = false},
        {.title = QStringLiteral("ordinary")},
    });
    this->world.trayItem().show(look("tip"));
    ASSERT_TRUE(this->world.becomes(true));
    for (int entry = 0; entry < 4; ++entry)
        this->world.choose(entry);
    this->world.activate();
    this->world.openMenu(7, 9);
    EXPECT_TRUE(waitInLoop([&] { return done.size() >= 3; }));
    EXPECT_EQ(done.join(u' '), u"3 activate menu 7 9");
    this->world.trayItem().setChoices({});
    this->world.choose(3);
    this->world.activate();
    EXPECT_EQ(done.size(), 3);
}

TYPED_TEST(TrayItemContractTest, OpenedMenu_IsTold) {
    QStringList told;
    this->world.trayItem().setChoices(
        {.menuShown = [&](bool shown) { told.append(QString::number(int(shown))); }});
    this->world.trayItem().setEntries({{.title = QStringLiteral("Any")}});
    this->world.trayItem().show(look("tip"));
    ASSERT_TRUE(this->world.becomes(true));
    this->world.tellMenuShown(true);
    this->world.tellMenuShown(false);
    EXPECT_TRUE(waitInLoop([&] { return told.size() == 2; }));
    EXPECT_EQ(told.join(u' '), u"1 0");
}

TYPED_TEST(TrayItemContractTest, Choice_MayHideTheItem) {
    int done = 0;
    this->world.trayItem().setChoices({.choose = [&](std::size_t) {
        ++done;
        this->world.trayItem().hide();
    }});
    this->world.trayItem().setEntries({{.title = QStringLiteral("Hide")}});
    this->world.trayItem().show(look("tip"));
    ASSERT_TRUE(this->world.becomes(true));
    this->world.choose(0);
    EXPECT_TRUE(waitInLoop([&] { return done == 1; }));
    EXPECT_TRUE(this->world.becomes(false));
}

class StatusNotifierItemTest : public ::testing::Test {
protected:
    void SetUp() override {
        ASSERT_TRUE(world.ready()) << "no message bus";
        world.item.setEntries({{.title = QStringLiteral("Sync &Now"), .isEnabled = false},
                               {.isSeparator = true},
                               {.title = QStringLiteral("A_B && &C")}});
        world.item.show(look("Syncing: <b>48</b> %"));
        ASSERT_TRUE(world.meet());
    }

    bool hears(const char* signal) {
        return waitInLoop([&] { return world.panel->heard.contains(QString::fromLatin1(signal)); });
    }

    BusWorld world;
};

TEST_F(StatusNotifierItemTest, Panel_ReadsEveryProperty) {
    const QVariantMap all = world.panel->properties();
    const std::pair<const char*, const char*> texts[]{
        {"Category", "ApplicationStatus"},
        {"Id", "kelvo-mirror"},
        {"Title", "Kelvo Mirror"},
        {"Status", "Active"},
        {"IconName", ""},
        {"AttentionIconName", ""},
        {"OverlayIconName", ""},
    };
    for (const auto& [name, text] : texts) {
        const QVariant value = all.value(QString::fromLatin1(name));
        EXPECT_EQ(value.typeId(), QMetaType::QString) << name;
        EXPECT_EQ(value.toString().toStdString(), text);
    }
    EXPECT_EQ(all.value(QStringLiteral("ItemIsMenu")), QVariant(false));
    EXPECT_EQ(all.value(QStringLiteral("WindowId")), QVariant(0));
    for (const char* name : {"IconPixmap", "AttentionIconPixmap"}) {
        const auto pixmaps = all.value(QString::fromLatin1(name)).value<QDBusArgument>();
        ASSERT_EQ(pixmaps.currentSignature(), u"a(iiay)") << name;
        const auto pictures = qdbus_cast<BusPictures>(pixmaps);
        ASSERT_EQ(pictures.size(), 1);
        EXPECT_EQ(pictures[0].width, 1);
        EXPECT_EQ(pictures[0].height, 1);
        EXPECT_EQ(pictures[0].argb, QByteArray("\xff\x01\x02\x03", 4));
    }
    const auto tip = all.value(QStringLiteral("ToolTip")).value<QDBusArgument>();
    ASSERT_EQ(tip.currentSignature(), u"(sa(iiay)ss)");
    const auto read = qdbus_cast<BusToolTip>(tip);
    EXPECT_EQ(read.title, u"Kelvo Mirror");
    EXPECT_EQ(read.text, u"Syncing: &lt;b&gt;48&lt;/b&gt; %");
}

TEST_F(StatusNotifierItemTest, Panel_ReadsTheMenuWithItsMnemonics) {
    const auto lines = world.panel->menu();
    ASSERT_EQ(lines.size(), 3);
    EXPECT_EQ(lines[0].properties,
              (QVariantMap{{QStringLiteral("label"), QStringLiteral("Sync _Now")},
                           {QStringLiteral("enabled"), false},
                           {QStringLiteral("visible"), true}}));
    EXPECT_EQ(lines[1].properties.value(QStringLiteral("type")), QStringLiteral("separator"));
    EXPECT_EQ(lines[2].properties.value(QStringLiteral("label")), QStringLiteral("A__B & _C"));
    for (const TrayPanel::Line& line : world.panel->menu({QStringLiteral("visible")}))
        EXPECT_EQ(line.properties.keys(), QStringList{QStringLiteral("visible")});

    const QDBusMessage group = world.panel->askMenu(
        QStringLiteral("GetGroupProperties"),
        {QVariant::fromValue(QList<int>{3, 77}), QStringList{QStringLiteral("label")}});
    ASSERT_EQ(group.signature(), u"a(ia{sv})");
    const auto found = qdbus_cast<EntryProperties>(group.arguments().constFirst());
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].first, 3);
    EXPECT_EQ(world.panel->askMenu(QStringLiteral("GetProperty"), {1, QStringLiteral("enabled")})
                  .arguments()
                  .constFirst()
                  .value<QDBusVariant>()
                  .variant(),
              QVariant(false));
    EXPECT_EQ(world.panel->askMenu(QStringLiteral("AboutToShow"), {0}).arguments().constFirst(),
              QVariant(false));
    EXPECT_EQ(
        world.panel
            ->askMenu(QStringLiteral("AboutToShowGroup"), {QVariant::fromValue(QList<int>{0, 1})})
            .signature(),
        u"aiai");
}

TEST_F(StatusNotifierItemTest, EventGroup_ChoosesEntriesAndNamesTheUnknown) {
    QList<std::size_t> chosen;
    world.item.setChoices({.choose = [&](std::size_t entry) { chosen.append(entry); }});
    const MenuEvents events{
        {3, QStringLiteral("clicked"), QDBusVariant(QString()), 0},
        {3, QStringLiteral("hovered"), QDBusVariant(QString()), 0},
        {9, QStringLiteral("clicked"), QDBusVariant(QString()), 0},
    };
    const QDBusMessage answer =
        world.panel->askMenu(QStringLiteral("EventGroup"), {QVariant::fromValue(events)});
    EXPECT_EQ(qdbus_cast<QList<int>>(answer.arguments().value(0)), QList<int>{9});
    EXPECT_TRUE(waitInLoop([&] { return !chosen.isEmpty(); }));
    EXPECT_EQ(chosen, QList<std::size_t>{2});
}

TEST_F(StatusNotifierItemTest, Changes_AreSignalledAndNothingElseIs) {
    world.item.show(look("Syncing: <b>48</b> %"));
    world.item.show(look("Syncing: <b>48</b> %", true));
    ASSERT_TRUE(hears("NewStatus NeedsAttention"));
    EXPECT_EQ(world.panel->properties().value(QStringLiteral("Status")),
              QStringLiteral("NeedsAttention"));
    world.item.show(look("other", true));
    ASSERT_TRUE(hears("NewToolTip"));
    TrayLook drawn = look("other", true);
    drawn.pictures[0].argb[1] = 9;
    world.item.show(drawn);
    ASSERT_TRUE(hears("NewAttentionIcon"));
    world.item.setEntries({{.title = QStringLiteral("Sync &Now")},
                           {.isSeparator = true},
                           {.title = QStringLiteral("A_B && &C")}});
    ASSERT_TRUE(hears("ItemsPropertiesUpdated"));
    world.item.setEntries({{.title = QStringLiteral("Sync &Now")}});
    ASSERT_TRUE(hears("LayoutUpdated 3 0"));
    EXPECT_EQ(world.panel->heard.join(u'|'),
              u"NewStatus NeedsAttention|NewToolTip|NewIcon|NewAttentionIcon|"
              u"ItemsPropertiesUpdated|LayoutUpdated 3 0");
}

TEST_F(StatusNotifierItemTest, TokenOfAPanel_IsThereForTheWindowThatIsActivated) {
    QByteArray token;
    world.item.setChoices({.activate = [&] { token = activationToken(); }});
    world.panel->askItem(QStringLiteral("ProvideXdgActivationToken"), {QStringLiteral("panel-17")});
    world.panel->askItem(QStringLiteral("Activate"), {0, 0});
    EXPECT_TRUE(waitInLoop([&] { return !token.isEmpty(); }));
    EXPECT_EQ(token, "panel-17");
    EXPECT_EQ(activationToken(), "") << "nobody comes across it later";
}

TEST_F(StatusNotifierItemTest, BadCalls_AreAnsweredWithErrors) {
    int chosen = 0;
    world.item.setChoices({.choose = [&](std::size_t) { ++chosen; }});
    const auto text = [](const char* value) { return QVariant(QString::fromLatin1(value)); };
    const QVariant nothing = QVariant::fromValue(QDBusVariant(QString()));
    const QVariant now = QVariant::fromValue(0U);
    const std::pair<const char*, QVariantList> bad[]{
        {"GetLayout", {44, -1, QStringList()}},
        {"GetLayout", {-1, -1, QStringList()}},
        {"GetLayout", {text("0"), -1, QStringList()}},
        {"GetLayout", {}},
        {"GetProperty", {4, text("label")}},
        {"GetProperty", {1, text("colour")}},
        {"Event", {4, text("clicked"), nothing, now}},
        {"Event", {std::numeric_limits<int>::min(), text("clicked"), nothing, now}},
        {"Event", {std::numeric_limits<int>::max(), text("clicked"), nothing, now}},
        {"Event", {text("3"), text("clicked"), nothing, now}},
        {"EventGroup", {text("3")}},
        {"EventGroup",
         {QVariant::fromValue(MenuEvents{{9, QStringLiteral("clicked"), QDBusVariant(0), 0}})}},
        {"AboutToShow", {-5}},
        {"deleteLater", {}},
        {"setEntries", {}},
    };
    for (const auto& [member, arguments] : bad) {
        const QDBusMessage answer = world.panel->askMenu(QString::fromLatin1(member), arguments);
        EXPECT_EQ(answer.type(), QDBusMessage::ErrorMessage) << member;
    }
    for (const char* member : {"Activate", "deleteLater", "hide", "Scroll"}) {
        EXPECT_EQ(world.panel->askItem(QString::fromLatin1(member)).type(),
                  QDBusMessage::ErrorMessage)
            << member;
    }
    EXPECT_EQ(world.panel->menu().size(), 3);
    EXPECT_EQ(chosen, 0);
}

TEST_F(StatusNotifierItemTest, Layout_IsOfTheEntryAndTheDepthAskedFor) {
    const auto layout = [this](int parent, int depth) {
        const QDBusMessage answer =
            world.panel->askMenu(QStringLiteral("GetLayout"), {parent, depth, QStringList()});
        MenuLayout read;
        answer.arguments().at(1).value<QDBusArgument>() >> read;
        return read;
    };
    const QString display = QStringLiteral("children-display");
    for (const int depth : {-1, 1, 0}) {
        const MenuLayout root = layout(0, depth);
        EXPECT_EQ(root.id, 0);
        EXPECT_EQ(root.properties.value(display), QStringLiteral("submenu"));
        EXPECT_EQ(root.children.size(), depth == 0 ? 0 : 3) << depth;
    }
    const MenuLayout third = layout(3, -1);
    EXPECT_EQ(third.id, 3);
    EXPECT_EQ(third.properties.value(QStringLiteral("label")), QStringLiteral("A__B & _C"));
    EXPECT_TRUE(third.children.isEmpty());
}

TEST_F(StatusNotifierItemTest, Refusals_SayWhatIsNotThere) {
    const QVariant nothing = QVariant::fromValue(QDBusVariant(QString()));
    const QVariant clicked = QStringLiteral("clicked");
    const MenuEvents unknown{{9, QStringLiteral("clicked"), QDBusVariant(0), 0}};
    const std::pair<const char*, QVariantList> calls[]{
        {"GetLayout", {44, -1, QStringList()}},
        {"Event", {44, clicked, nothing, QVariant::fromValue(0U)}},
        {"AboutToShow", {44}},
        {"GetProperty", {1, QStringLiteral("colour")}},
        {"EventGroup", {QVariant::fromValue(unknown)}},
    };
    QStringList reasons;
    for (const auto& [member, arguments] : calls) {
        const QDBusMessage answer = world.panel->askMenu(QString::fromLatin1(member), arguments);
        EXPECT_EQ(answer.errorName(), u"org.freedesktop.DBus.Error.InvalidArgs") << member;
        reasons.append(answer.errorMessage());
    }
    EXPECT_EQ(reasons.join(u'|'),
              u"there is no entry 44|there is no entry 44|there is no entry 44|"
              u"there is no entry 1 with such a property|there is none of these entries");
}

TEST_F(StatusNotifierItemTest, PanelStartedAnew_GetsTheItemAgain) {
    ASSERT_TRUE(world.watcher.disappear());
    ASSERT_TRUE(world.watcher.appear(true));
    ASSERT_TRUE(world.meet(2));
    EXPECT_EQ(world.panel->properties().value(QStringLiteral("Id")),
              QStringLiteral("kelvo-mirror"));
}

TEST_F(StatusNotifierItemTest, PanelReplacedByAnother_GetsTheItem) {
    BusConnection others(world.daemon.address(), QStringLiteral("another panel"));
    TrayService another(others.get());
    ASSERT_FALSE(another.appear(true)) << "the name should be taken";
    others.get().interface()->registerService(QStringLiteral("org.kde.StatusNotifierWatcher"),
                                              QDBusConnectionInterface::QueueService);
    ASSERT_TRUE(world.watcher.disappear());
    EXPECT_TRUE(waitInLoop([&] { return !another.items().isEmpty(); }));
}

TEST_F(StatusNotifierItemTest, Hidden_LeavesTheBus) {
    const QString service = world.watcher.items().constLast();
    EXPECT_TRUE(world.panels.get().interface()->isServiceRegistered(service));
    world.item.hide();
    EXPECT_TRUE(waitInLoop(
        [&] { return !world.panels.get().interface()->isServiceRegistered(service).value(); }));
}

TEST(StatusNotifierItemAloneTest, PanelThatIsNotThere_IsNotStarted) {
    const StartableService watcher(QStringLiteral("org.kde.StatusNotifierWatcher"));
    const StartableService other(QStringLiteral("org.kelvo.Other"));
    const PrivateBus bus;
    ASSERT_FALSE(bus.address().isEmpty()) << "no message bus";
    QDBusConnection own{QString()};
    StatusNotifierItem item([&](const QString& name) {
        return own = QDBusConnection::connectToBus(bus.address(), name);
    });
    item.show(look("tip"));
    other.call(own);
    EXPECT_TRUE(waitInLoop([&] { return other.wasStarted(); })) << "this bus starts services";
    EXPECT_FALSE(watcher.wasStarted());
    item.hide();
}

TEST(StatusNotifierItemAloneTest, EachProfile_HasAnItemOfItsOwn) {
    const StatusNotifierItem item([](const QString& name) { return QDBusConnection(name); },
                                  {.name = QStringLiteral("East_1")});
    EXPECT_EQ(item.id(), u"kelvo-mirror-East_1");
    EXPECT_EQ(item.title(), u"Kelvo Mirror – East_1");
    EXPECT_EQ(item.toolTip().title, u"Kelvo Mirror – East_1");
}

TEST(StatusNotifierItemAloneTest, NoBus_ChangesNothing) {
    StatusNotifierItem item([](const QString& name) { return QDBusConnection(name); });
    item.show(look("tip"));
    item.show(look("tip", true));
    item.setEntries({{.title = QStringLiteral("A")}});
    item.hide();
}

} // namespace
} // namespace kelvo
