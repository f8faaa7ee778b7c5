#include "fakes/memory_defaults.h"
#include "fakes/virtual_queues.h"
#include "settings/preferences.h"
#include "sync/sample_path.h"

#include <QFile>
#include <QRegularExpression>
#include <QStringList>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

QStringList keysOfTable() {
    QStringList keys;
    for (const Preference& each : preferenceTable())
        keys.append(each.key.toString());
    return keys;
}

QString contentOf(const char* path) {
    QFile file(QString::fromLocal8Bit(path));
    EXPECT_TRUE(file.open(QFile::ReadOnly)) << path;
    return QString::fromUtf8(file.readAll());
}

TEST(PreferencesTest, Keys_AreStoredAsTheyAreSpelledHere) {
    const QStringList stored{
        "prefEnableScanning",
        "prefIsScanning",
        "prefDelayBetweenScans",
        "prefRsyncCommandString1",
        "prefRsyncCommandStringExample",
        "prefRsyncCommandOptionTag",
        "prefRsyncWithSSH",
        "prefPath1",
        "prefPath2",
        "prefRemoteUsername",
        "prefRemoteBonjourName",
        "prefRemotePath",
        "prefSampleRemoteFullPath",
        "prefRemoteDnssdServiceData",
        "prefScanningBonjour",
        "prefSelectedValidRow",
        "perfFirstLineMessage",
        "prefStatusTextfieldString",
        "prefVersionDisplayString",
        "prefAutoStartScanOnLaunch",
        "prefHideOnLaunch",
        "showNotices",
        "showArrivals",
        "commandAfterArrivals",
        "keepConnection",
        "quitWithoutAsking",
        "showDiagnostics",
        "mainWindowSize",
        "mainWindowPlace",
        "mainWindowMaximized",
        "mainWindowTab",
        "advancedShown",
        "passesHalves",
        "closedToTray",
        "recentLaunchDates",
        "relaunchGivenUp",
    };
    EXPECT_EQ(keysOfTable(), stored) << keysOfTable().join(u' ').toStdString();
}

TEST(PreferencesTest, Table_HoldsEveryKeyConstantInOrder) {
    static const QRegularExpression constant(QStringLiteral("QStringView p\\w+ = u\"(\\w+)\";"));
    QStringList keys;
    const QString header = contentOf(KELVO_PREFERENCE_KEYS);
    for (auto found = constant.globalMatch(header); found.hasNext();)
        keys.append(found.next().captured(1));
    EXPECT_EQ(keysOfTable(), keys) << keys.join(u' ').toStdString();
}

TEST(PreferencesTest, FactoryValue_HasTheTypeOfItsKey) {
    int values = 0;
    for (const Preference& each : preferenceTable()) {
        const QVariant value = factoryValue(each);
        if (!value.isValid())
            continue;
        ++values;
        QMetaType::Type type = QMetaType::UnknownType;
        switch (each.type) {
        case PreferenceType::Bool:
            type = QMetaType::Bool;
            break;
        case PreferenceType::Integer:
            type = QMetaType::LongLong;
            break;
        case PreferenceType::Double:
            type = QMetaType::Double;
            break;
        case PreferenceType::String:
            type = QMetaType::QString;
            break;
        case PreferenceType::Dictionary:
        case PreferenceType::Times:
            break;
        }
        EXPECT_EQ(value.typeId(), type) << each.key.toString().toStdString();
        EXPECT_EQ(each.kind, PreferenceKind::Setting) << each.key.toString().toStdString();
    }
    EXPECT_GT(values, 0);
}

TEST(PreferencesTest, Row_IsFoundByItsKeyOnly) {
    ASSERT_TRUE(preference(prefPath2));
    EXPECT_EQ(preference(prefPath2)->key, prefPath2);
    EXPECT_EQ(preference(u"prefPath3"), nullptr);
    EXPECT_TRUE(isState(prefIsScanning));
    EXPECT_FALSE(isState(prefPath2));
    EXPECT_FALSE(isState(u"prefPath3"));
}

// -- the manual

/// `text` as the manual's source has it, so that it is shown and copied as it is.
QString roff(QString text) {
    return text.replace(u'\\', QStringLiteral("\\e"))
        .replace(u'-', QStringLiteral("\\-"))
        .replace(u'\'', QStringLiteral("\\(aq"));
}

QString wordsFor(PreferenceType type) {
    switch (type) {
    case PreferenceType::Bool:
        return QStringLiteral("true or false");
    case PreferenceType::Integer:
        return QStringLiteral("a whole number");
    case PreferenceType::Double:
        return QStringLiteral("a number");
    case PreferenceType::String:
        return QStringLiteral("a text");
    case PreferenceType::Dictionary:
        return QStringLiteral("a JSON object");
    case PreferenceType::Times:
        return QStringLiteral("a list of times");
    }
    return {};
}

QString entriesFor(PreferenceKind kind) {
    QString entries;
    for (const Preference& each : preferenceTable()) {
        if (each.kind != kind)
            continue;
        entries += u".TP\n.BR " + each.key + u" \" (" + wordsFor(each.type) + u")\"\n" +
                   roff(each.purpose.toString()) + u'\n';
        if (!each.shownOn.isEmpty())
            entries += u"Shown on the tab " + each.shownOn + u".\n";
        if (const QVariant factory = factoryValue(each); factory.isValid())
            entries += u".br\nFactory value: " + roff(factory.toString()) + u'\n';
    }
    return entries;
}

TEST(PreferencesTest, Manual_SaysWhatTheTableSays) {
    const QString expected = u".SH SETTINGS\n" + entriesFor(PreferenceKind::Setting) +
                             u".SS Written by the program as it runs\n" +
                             entriesFor(PreferenceKind::State) + u".SH FILES\n";
    EXPECT_TRUE(contentOf(KELVO_MANUAL).contains(expected)) << "it should say:\n"
                                                            << expected.toStdString();
}

class SamplePathTest : public ::testing::Test {
protected:
    std::optional<QString> sample() const {
        return defaults.stringForKey(prefSampleRemoteFullPath);
    }

    MemoryDefaults defaults{{{prefRemoteUsername.toString(), QStringLiteral("mediauser")},
                             {prefRemoteBonjourName.toString(), QStringLiteral("RemoteMac")},
                             {prefRemotePath.toString(), QStringLiteral(" /Users/x y/Movies")}}};
    VirtualMainQueue mainQueue;
    SamplePath samplePath{defaults, mainQueue};
};

TEST_F(SamplePathTest, Update_JoinsTheThreeAsTheyAre) {
    samplePath.updateSampleString();
    EXPECT_EQ(sample(), std::nullopt) << "work of the main queue";
    mainQueue.runDue();
    EXPECT_EQ(sample(), QStringLiteral("mediauser@RemoteMac: /Users/x y/Movies"));
}

TEST_F(SamplePathTest, OneMissing_LeavesTheOldValue) {
    for (const QStringView key : {prefRemoteUsername, prefRemoteBonjourName, prefRemotePath}) {
        defaults.setObject(prefSampleRemoteFullPath, QStringLiteral("old"));
        const QVariant kept = defaults.object(key);
        defaults.removeObject(key);
        samplePath.updateSampleString();
        mainQueue.runDue();
        EXPECT_EQ(sample(), QStringLiteral("old")) << qPrintable(key.toString());
        defaults.setObject(key, kept);
    }
}

} // namespace
} // namespace kelvo
