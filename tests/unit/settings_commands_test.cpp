#include "app/commands/settings_commands.h"
#include "fakes/memory_defaults.h"
#include "settings/overlay_defaults.h"
#include "settings/preferences.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class SettingsCommandsTest : public ::testing::Test {
protected:
    CommandAnswer set(QStringView key, const char* value) {
        return answerSettings({SettingsVerb::Set, key.toString(), QString::fromUtf8(value)},
                              defaults);
    }
    CommandAnswer get(QStringView key) {
        return answerSettings({SettingsVerb::Get, key.toString(), {}}, defaults);
    }

    MemoryDefaults defaults;
};

struct Sample {
    const char* good;
    QVariant stored;
    const char* printed;
    QStringList bad;
};

Sample sampleFor(const Preference& preference) {
    switch (preference.type) {
    case PreferenceType::Bool:
        return {"Yes", true, "true\n", {QStringLiteral("maybe"), QString(), QStringLiteral("2")}};
    case PreferenceType::Integer:
        return {"102",
                qint64{102},
                "102\n",
                {QStringLiteral("103"), QStringLiteral("101x"), QStringLiteral("1.5")}};
    case PreferenceType::Double:
        return {"-2.5",
                -2.5,
                "-2.5\n",
                {QStringLiteral("soon"), QStringLiteral("nan"), QStringLiteral("1e999")}};
    case PreferenceType::String:
        return {"--a 'b' ü", QStringLiteral("--a 'b' ü"), "--a 'b' ü\n", {}};
    case PreferenceType::Dictionary:
        return {R"({"name":"Mac"})",
                QVariantMap{{QStringLiteral("name"), QStringLiteral("Mac")}},
                "{\"name\":\"Mac\"}\n",
                {QStringLiteral("[]"), QStringLiteral("{"), QStringLiteral("Mac")}};
    case PreferenceType::Times:
        break;
    }
    return {};
}

TEST_F(SettingsCommandsTest, EverySetting_IsSetPrintedAndUnset) {
    for (const Preference& each : preferenceTable()) {
        if (each.kind != PreferenceKind::Setting)
            continue;
        const Sample sample = sampleFor(each);
        const std::string name = each.key.toUtf8().toStdString();
        EXPECT_EQ(get(each.key).exitCode, cExitNotSet) << name;
        EXPECT_EQ(set(each.key, sample.good).exitCode, 0) << name;
        EXPECT_EQ(defaults.object(each.key), sample.stored) << name;
        EXPECT_EQ(defaults.object(each.key).typeId(), sample.stored.typeId()) << name;
        EXPECT_EQ(get(each.key).output, QString::fromUtf8(sample.printed)) << name;
        EXPECT_EQ(answerSettings({SettingsVerb::Unset, each.key.toString(), {}}, defaults).exitCode,
                  0);
        EXPECT_FALSE(defaults.object(each.key).isValid()) << name;
    }
}

TEST_F(SettingsCommandsTest, State_IsPrintedButNeitherSetNorUnset) {
    int refused = 0;
    for (const Preference& each : preferenceTable()) {
        if (each.kind != PreferenceKind::State || each.type == PreferenceType::Times)
            continue;
        const Sample sample = sampleFor(each);
        const std::string name = each.key.toUtf8().toStdString();
        defaults.setObject(each.key, sample.stored);
        EXPECT_EQ(get(each.key).output, QString::fromUtf8(sample.printed)) << name;
        for (const SettingsVerb verb : {SettingsVerb::Set, SettingsVerb::Unset}) {
            const auto answer =
                answerSettings({verb, each.key.toString(), QStringLiteral("false")}, defaults);
            EXPECT_EQ(answer.exitCode, cExitBadSetting) << name;
            EXPECT_TRUE(answer.errors.startsWith(
                QString(u"kelvo-mirror: " + each.key + u" is no setting: the program writes it")))
                << answer.errors.toStdString();
            EXPECT_EQ(answer.errors,
                      QString(u"kelvo-mirror: " + each.key +
                              u" is no setting: the program writes it as it runs" +
                              (each.key == prefEnableScanning
                                   ? u"; the start button switches syncing on and off, and "
                                     u"'kelvo-mirror --once' runs one pass\n"
                                   : u"\n")));
            EXPECT_EQ(defaults.object(each.key), sample.stored) << name;
            ++refused;
        }
    }
    EXPECT_GT(refused, 10);
}

TEST_F(SettingsCommandsTest, Times_AreOnlyPrinted) {
    const QVariantList times{1774747807.25, 1774747809.0};
    EXPECT_EQ(get(prefRecentLaunchDates).exitCode, cExitNotSet);
    defaults.setObject(prefRecentLaunchDates, times);
    EXPECT_EQ(get(prefRecentLaunchDates).output, QStringLiteral("[1774747807.25,1774747809]\n"));
    EXPECT_EQ(get(prefRecentLaunchDates).exitCode, 0);
    for (const SettingsVerb verb : {SettingsVerb::Set, SettingsVerb::Unset})
        EXPECT_EQ(
            answerSettings({verb, prefRecentLaunchDates.toString(), QStringLiteral("[]")}, defaults)
                .exitCode,
            cExitBadSetting);
    EXPECT_EQ(defaults.object(prefRecentLaunchDates), QVariant(times));
    defaults.setObject(prefRecentLaunchDates, true);
    EXPECT_EQ(get(prefRecentLaunchDates).exitCode, cExitNotSet) << "no list";
}

TEST_F(SettingsCommandsTest, BadValue_IsRefusedAndChangesNothing) {
    int refused = 0;
    for (const Preference& each : preferenceTable()) {
        if (each.kind != PreferenceKind::Setting)
            continue;
        const Sample sample = sampleFor(each);
        set(each.key, sample.good);
        for (const QString& bad : sample.bad) {
            const auto answer = set(each.key, bad.toUtf8().constData());
            EXPECT_EQ(answer.exitCode, cExitBadSetting) << bad.toStdString();
            EXPECT_TRUE(answer.errors.contains(each.key));
            EXPECT_TRUE(answer.output.isEmpty());
            EXPECT_EQ(defaults.object(each.key), sample.stored) << bad.toStdString();
            ++refused;
        }
    }
    EXPECT_GT(refused, 20);
}

TEST_F(SettingsCommandsTest, EachRefusal_SaysWhatTheSettingTakes) {
    struct Case {
        QStringView key;
        const char* value;
        const char* wanted;
    };
    for (const Case& c : {Case{prefRsyncWithSSH, "maybe", "true or false"},
                          Case{prefRsyncCommandOptionTag, "103", "one of 100, 101, 102 and 105"},
                          Case{prefRsyncCommandOptionTag, "x", "one of 100, 101, 102 and 105"},
                          Case{prefDelayBetweenScans, "soon", "a number"},
                          Case{prefRemoteDnssdServiceData, "[]", "a JSON object"}})
        EXPECT_EQ(set(c.key, c.value).errors,
                  QStringLiteral("kelvo-mirror: '%1' does not fit: %2 takes %3\n")
                      .arg(QString::fromLatin1(c.value), c.key.toString(),
                           QString::fromLatin1(c.wanted)));
    EXPECT_EQ(get(prefPath1).errors, QStringLiteral("kelvo-mirror: prefPath1 is not set\n"));
    EXPECT_EQ(settingsUnknown(QStringLiteral("no file")).errors,
              QStringLiteral("kelvo-mirror: no file\n"));
    EXPECT_EQ(settingsUnknown(QStringLiteral("no file")).exitCode, cExitSettingsUnknown);
}

TEST_F(SettingsCommandsTest, Switch_IsTurnedByEachOfItsWords) {
    for (const char* yes : {"true", "yes", "on", "1", "TRUE", "On"}) {
        defaults.setObject(prefRsyncWithSSH, false);
        EXPECT_EQ(set(prefRsyncWithSSH, yes).exitCode, 0) << yes;
        EXPECT_EQ(defaults.object(prefRsyncWithSSH), QVariant(true)) << yes;
    }
    for (const char* no : {"false", "no", "off", "0", "False"}) {
        defaults.setObject(prefRsyncWithSSH, true);
        EXPECT_EQ(set(prefRsyncWithSSH, no).exitCode, 0) << no;
        EXPECT_EQ(defaults.object(prefRsyncWithSSH), QVariant(false)) << no;
    }
}

TEST_F(SettingsCommandsTest, UnknownKey_IsRefusedByAll) {
    for (const SettingsVerb verb : {SettingsVerb::Get, SettingsVerb::Set, SettingsVerb::Unset}) {
        const auto answer =
            answerSettings({verb, QStringLiteral("prefColour"), QStringLiteral("1")}, defaults);
        EXPECT_EQ(answer.exitCode, cExitBadSetting);
        EXPECT_EQ(answer.errors,
                  QStringLiteral("kelvo-mirror: there is no setting 'prefColour'; 'kelvo-mirror "
                                 "--settings' prints them all\n"));
    }
    EXPECT_FALSE(defaults.object(u"prefColour").isValid());
}

TEST_F(SettingsCommandsTest, List_HoldsEveryKeyWithItsType) {
    defaults.registerDefaults({{QStringLiteral("prefDelayBetweenScans"), 30.0}});
    defaults.setObject(prefEnableScanning, qint64{1}); // as the start button stores it
    const auto answer = answerSettings({SettingsVerb::List, {}, {}}, defaults);
    const QJsonObject all = QJsonDocument::fromJson(answer.output.toUtf8()).object();
    EXPECT_EQ(all.size(), static_cast<qsizetype>(preferenceTable().size()));
    EXPECT_EQ(all.value(prefDelayBetweenScans), QJsonValue(30.0));
    EXPECT_EQ(all.value(prefEnableScanning), QJsonValue(true));
    EXPECT_TRUE(all.contains(prefPath1) && all.value(prefPath1).isNull());
}

// -- the command line

QStringList words(const char* text) {
    return QString::fromUtf8(text).split(u' ');
}

TEST(SettingsRequestTest, CompleteRequests_AreRead) {
    const auto set = settingsRequest(words("kelvo-mirror --set prefPath2 -rf"));
    ASSERT_TRUE(std::holds_alternative<SettingsRequest>(set));
    EXPECT_EQ(std::get<SettingsRequest>(set).verb, SettingsVerb::Set);
    EXPECT_EQ(std::get<SettingsRequest>(set).key, QStringLiteral("prefPath2"));
    EXPECT_EQ(std::get<SettingsRequest>(set).value, QStringLiteral("-rf"));
    EXPECT_TRUE(
        std::holds_alternative<SettingsRequest>(settingsRequest(words("kelvo-mirror --settings"))));
}

TEST(SettingsRequestTest, HalfOrCrowdedRequests_AreRefused) {
    for (const char* text : {"m --set", "m --set a", "m --set a b c", "m --get", "m --get a b",
                             "m --unset", "m --settings --json"}) {
        EXPECT_TRUE(std::holds_alternative<QString>(settingsRequest(words(text)))) << text;
    }
    EXPECT_TRUE(std::holds_alternative<std::monostate>(settingsRequest(words("m --headless"))));
    EXPECT_TRUE(std::holds_alternative<std::monostate>(settingsRequest(words("m"))));
}

// -- settings nobody else sees

TEST(OverlayDefaultsTest, Changes_StayInTheOverlay) {
    MemoryDefaults stored;
    stored.setObject(u"a", 1);
    stored.setObject(u"b", 2);
    OverlayDefaults overlay(stored);
    overlay.setObject(u"a", true);
    overlay.removeObject(u"b");
    EXPECT_EQ(overlay.object(u"a"), QVariant(true));
    EXPECT_FALSE(overlay.object(u"b").isValid());
    overlay.registerDefaults({{QStringLiteral("b"), 7}, {QStringLiteral("c"), 8}});
    EXPECT_EQ(overlay.integerForKey(u"b"), 7);
    EXPECT_EQ(overlay.integerForKey(u"c"), 8);
    EXPECT_EQ(stored.integerForKey(u"a"), 1);
    EXPECT_EQ(stored.integerForKey(u"b"), 2);
    stored.setObject(u"c", 9);
    EXPECT_EQ(overlay.integerForKey(u"c"), 9);
}

TEST(OverlayDefaultsTest, ObserversBeneath_HearNothingOfTheOverlay) {
    MemoryDefaults stored;
    OverlayDefaults overlay(stored);
    int told = 0;
    const auto beneath = stored.observe(u"a", [&](const DefaultsChange&) { ++told; });
    overlay.setObject(u"a", 1);
    overlay.removeObject(u"a");
    EXPECT_EQ(told, 0);
    EXPECT_TRUE(stored.changes().empty());
}

TEST(OverlayDefaultsTest, ChangeBeneath_IsToldWhileItShowsThrough) {
    MemoryDefaults stored;
    OverlayDefaults overlay(stored);
    std::vector<std::optional<QVariant>> seen;
    const auto watch = overlay.observe(
        u"a", [&](const DefaultsChange& change) { seen.push_back(change.newValue); });
    stored.setObject(u"a", "beneath");
    overlay.setObject(u"a", "own");
    stored.setObject(u"a", "hidden");
    overlay.removeObject(u"a");
    stored.setObject(u"a", "hidden");
    EXPECT_EQ(seen, (std::vector<std::optional<QVariant>>{QVariant("beneath"), QVariant("own"),
                                                          std::nullopt}));
}

} // namespace
} // namespace kelvo
