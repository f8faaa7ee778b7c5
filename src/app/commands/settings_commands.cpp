#include "app/commands/settings_commands.h"

#include "ports/user_defaults.h"
#include "settings/preferences.h"
#include "support/property_value.h"
#include "support/stored_value.h"
#include "sync/rsync_command.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace kelvo {
namespace {

using Checked = std::variant<QVariant, QString>; ///< a value, or why the text is none

Checked boolFrom(const QString& text) {
    const QString lowered = text.toLower();
    for (const QStringView yes : {u"true", u"yes", u"on", u"1"}) {
        if (lowered == yes)
            return QVariant(true);
    }
    for (const QStringView no : {u"false", u"no", u"off", u"0"}) {
        if (lowered == no)
            return QVariant(false);
    }
    return QStringLiteral("true or false");
}

Checked integerFrom(const QString& text, QStringView key) {
    bool valid = false;
    const qint64 number = text.toLongLong(&valid);
    // The program ends at a tag that does not exist.
    if (key == prefRsyncCommandOptionTag && !(valid && optionStringForTag(number)))
        return QStringLiteral("one of 100, 101, 102 and 105");
    if (!valid)
        return QStringLiteral("a whole number");
    return QVariant(number);
}

Checked doubleFrom(const QString& text) {
    bool valid = false;
    const double number = text.toDouble(&valid);
    if (!valid || !std::isfinite(number))
        return QStringLiteral("a number");
    return QVariant(number);
}

Checked dictionaryFrom(const QString& text) {
    const QJsonDocument document = QJsonDocument::fromJson(text.toUtf8());
    if (!document.isObject())
        return QStringLiteral("a JSON object");
    return storedValue(document.object().toVariantMap());
}

/// The second alternative reads as "<key> takes <text>".
Checked checkedValue(const Preference& preference, const QString& text) {
    switch (preference.type) {
    case PreferenceType::Bool:
        return boolFrom(text);
    case PreferenceType::Integer:
        return integerFrom(text, preference.key);
    case PreferenceType::Double:
        return doubleFrom(text);
    case PreferenceType::String:
        return QVariant(text);
    case PreferenceType::Dictionary:
        return dictionaryFrom(text);
    case PreferenceType::Times:
        break;
    }
    return QStringLiteral("no value from outside");
}

/// The value as its type has it; null when it is not set or does not fit.
QJsonValue jsonValue(const Preference& preference, const UserDefaults& defaults) {
    const QVariant value = defaults.object(preference.key);
    if (!value.isValid())
        return QJsonValue::Null;
    switch (preference.type) {
    case PreferenceType::Bool:
        return boolValue(value);
    case PreferenceType::Integer:
        return integerValue(value);
    case PreferenceType::Double:
        return doubleValue(value);
    case PreferenceType::String:
        if (const auto text = stringValue(value))
            return *text;
        break;
    case PreferenceType::Dictionary:
        if (const auto dictionary = dictionaryValue(value))
            return QJsonObject::fromVariantMap(*dictionary);
        break;
    case PreferenceType::Times:
        if (value.typeId() == QMetaType::QVariantList)
            return QJsonArray::fromVariantList(value.toList());
        break;
    }
    return QJsonValue::Null;
}

QString plainText(const QJsonValue& value) {
    if (value.isString())
        return value.toString();
    if (value.isObject())
        return QString::fromUtf8(QJsonDocument(value.toObject()).toJson(QJsonDocument::Compact));
    if (value.isArray())
        return QString::fromUtf8(QJsonDocument(value.toArray()).toJson(QJsonDocument::Compact));
    return value.toVariant().toString();
}

QString allAsJson(const UserDefaults& defaults) {
    QJsonObject all;
    for (const Preference& each : preferenceTable())
        all.insert(each.key, jsonValue(each, defaults));
    return QString::fromUtf8(QJsonDocument(all).toJson());
}

/// Why a key cannot be set or unset; empty when it can.
QString stateRefusal(const Preference& preference) {
    if (preference.kind != PreferenceKind::State)
        return {};
    QString reason = preference.key + u" is no setting: the program writes it as it runs";
    if (preference.key == prefEnableScanning)
        reason += u"; the start button switches syncing on and off, and 'kelvo-mirror --once' "
                  u"runs one pass";
    return reason;
}

CommandAnswer refused(const QString& reason, int exitCode = cExitBadSetting) {
    return {exitCode, {}, QString(u"kelvo-mirror: " + reason + u'\n')};
}

} // namespace

CommandAnswer settingsUnknown(const QString& why) {
    return refused(why, cExitSettingsUnknown);
}

std::variant<std::monostate, SettingsRequest, QString>
settingsRequest(const QStringList& arguments) {
    struct Verb {
        QStringView option;
        SettingsVerb verb;
        qsizetype words;
        QStringView usage;
    };
    static constexpr Verb cVerbs[] = {
        {u"--get", SettingsVerb::Get, 1, u"--get KEY"},
        {u"--set", SettingsVerb::Set, 2, u"--set KEY VALUE"},
        {u"--unset", SettingsVerb::Unset, 1, u"--unset KEY"},
        {u"--settings", SettingsVerb::List, 0, u"--settings"},
    };
    if (arguments.size() < 2)
        return {};
    for (const Verb& each : cVerbs) {
        if (arguments[1] != each.option)
            continue;
        if (arguments.size() != 2 + each.words)
            return QString(u"it is '" + each.usage + u"', and nothing else with it");
        return SettingsRequest{each.verb, arguments.value(2), arguments.value(3)};
    }
    return {};
}

CommandAnswer answerSettings(const SettingsRequest& request, UserDefaults& defaults) {
    if (request.verb == SettingsVerb::List)
        return {0, allAsJson(defaults), {}};
    const Preference* known = preference(request.key);
    if (!known)
        return refused(u"there is no setting '" + request.key +
                       u"'; 'kelvo-mirror --settings' prints them all");
    if (request.verb == SettingsVerb::Get) {
        const QJsonValue value = jsonValue(*known, defaults);
        if (value.isNull())
            return refused(QString(request.key + u" is not set"), cExitNotSet);
        return {0, QString(plainText(value) + u'\n'), {}};
    }
    if (const QString reason = stateRefusal(*known); !reason.isEmpty())
        return refused(reason);
    if (request.verb == SettingsVerb::Unset) {
        defaults.removeObject(known->key);
        return {};
    }
    const Checked value = checkedValue(*known, request.value);
    if (const auto* wanted = std::get_if<QString>(&value))
        return refused(u'\'' + request.value + u"' does not fit: " + request.key + u" takes " +
                       *wanted);
    defaults.setObject(known->key, std::get<QVariant>(value));
    return {};
}

} // namespace kelvo
