// Each setting is on the tab of the window that the table names.
#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/sync_tab.h"

#include <QSet>
#include <QTabWidget>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

/// Notes which keys are observed.
class NotingDefaults final : public UserDefaults {
public:
    QVariant object(QStringView key) const override { return fValues.object(key); }
    void setObject(QStringView key, const QVariant& value) override {
        fValues.setObject(key, value);
    }
    void removeObject(QStringView key) override { fValues.removeObject(key); }
    void registerDefaults(const QVariantMap& defaults) override {
        fValues.registerDefaults(defaults);
    }
    void synchronize() override {}
    bool areKnown() const override { return true; }
    Subscription observe(QStringView key, DefaultsObserver observer) override {
        observed.insert(key.toString());
        return fValues.observe(key, std::move(observer));
    }

    QSet<QString> observed;

private:
    MemoryDefaults fValues;
};

template <typename Tab>
QSet<QString> keysOn() {
    NotingDefaults defaults;
    VirtualMainQueue mainQueue;
    Bindings bindings(defaults, mainQueue);
    Tab tab(bindings);
    tab.show(); // A tab may make its controls only now.
    return defaults.observed;
}

TEST(SettingsPlacesTest, EachTab_FollowsTheSettingsThatTheTableGivesIt) {
    const QMap<QString, QSet<QString>> tabs{{QStringLiteral("Sync"), keysOn<SyncTab>()},
                                            {QStringLiteral("Remote Mac"), keysOn<RemoteTab>()},
                                            {QStringLiteral("Settings"), keysOn<SettingsTab>()}};
    for (const Preference& each : preferenceTable()) {
        if (each.key == prefEnableScanning)
            continue; // the start button, which is not bound to it
        const QString key = each.key.toString();
        if (!each.shownOn.isEmpty())
            EXPECT_TRUE(tabs.value(each.shownOn.toString()).contains(key)) << key.toStdString();
        else
            for (const QSet<QString>& keys : tabs)
                EXPECT_FALSE(keys.contains(key)) << key.toStdString();
    }
}

TEST(SettingsPlacesTest, Titles_AreThoseOfTheWindow) {
    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    MainWindow window(defaults, mainQueue);
    const auto& view = *window.findChild<QTabWidget*>(QStringLiteral("tabView"));
    QSet<QString> titles;
    for (int index = 0; index < view.count(); ++index)
        titles.insert(view.tabText(index).remove(u'&'));
    for (const Preference& each : preferenceTable())
        EXPECT_TRUE(each.shownOn.isEmpty() || titles.contains(each.shownOn.toString()))
            << each.shownOn.toString().toStdString();
}

} // namespace
} // namespace kelvo
