// Any command line, its words apart by zero bytes: it is understood or refused in words, and a
// setting is changed only by a value that it then has.
#include "app/commands/command_line.h"
#include "fakes/memory_defaults.h"
#include "fuzz_input.h"
#include "settings/preferences.h"
#include "support/stored_value.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace {

using namespace kelvo;

/// Every setting, as other programs would find it.
QVariantMap allOf(const UserDefaults& defaults) {
    QVariantMap all;
    for (const Preference& each : preferenceTable()) {
        if (const QVariant value = defaults.object(each.key); value.isValid())
            all.insert(each.key.toString(), value);
    }
    return all;
}

void checkSet(const SettingsRequest& request, const CommandAnswer& answer,
              const QVariantMap& before, UserDefaults& defaults) {
    const Preference* const row = preference(request.key);
    const QVariantMap after = allOf(defaults);
    if (answer.exitCode != 0) {
        require(answer.exitCode == cExitBadSetting && sameStoredValue(before, after));
        return;
    }
    require(row != nullptr && answer.output.isEmpty());
    const CommandAnswer read = answerSettings({SettingsVerb::Get, request.key, {}}, defaults);
    require(read.exitCode == 0 && read.output.endsWith(u'\n'));
    if (row->type == PreferenceType::String)
        require(read.output == QString(request.value + u'\n'));
    if (row->type == PreferenceType::Bool)
        require(read.output == u"true\n" || read.output == u"false\n");
    // What is printed is taken again, and stands for the same value.
    const QVariant value = defaults.object(row->key);
    require(sameStoredValue(storedValue(value), value));
    const CommandAnswer again =
        answerSettings({SettingsVerb::Set, request.key, read.output.chopped(1)}, defaults);
    require(again.exitCode == 0 && sameStoredValue(defaults.object(row->key), value));
    (void)answerSettings({SettingsVerb::Unset, request.key, {}}, defaults);
    require(!defaults.object(row->key).isValid());
}

void checkRequest(const SettingsRequest& request) {
    MemoryDefaults defaults({{QStringLiteral("prefPath1"), QStringLiteral("/a")},
                             {QStringLiteral("prefDelayBetweenScans"), 30.0}});
    const QVariantMap before = allOf(defaults);
    const CommandAnswer answer = answerSettings(request, defaults);
    require(answer.exitCode >= 0 && answer.exitCode <= 2);
    require((answer.exitCode == 0) == answer.errors.isEmpty());
    require(answer.errors.isEmpty() || answer.errors.startsWith(u"kelvo-mirror: "));
    if (request.verb == SettingsVerb::Set) {
        checkSet(request, answer, before, defaults);
        return;
    }
    if (request.verb == SettingsVerb::Get || request.verb == SettingsVerb::List)
        require(sameStoredValue(before, allOf(defaults)));
    if (request.verb == SettingsVerb::List)
        require(QJsonDocument::fromJson(answer.output.toUtf8()).object().size() ==
                static_cast<qsizetype>(preferenceTable().size()));
}

/// A moment is one that the calendar has; one that is counted back from now lies in the past.
void checkPasses(const PassesRequest& request, const QStringList& arguments) {
    require(arguments.contains(QStringLiteral("--passes")));
    require(request.json == arguments.contains(QStringLiteral("--json")));
    if (!request.since)
        return;
    require(request.since->isValid());
    const QDateTime day = QDate(2026, 11, 22).startOfDay(Qt::UTC);
    for (const QString& text : arguments) {
        const auto moment = momentFrom(text, day);
        require(!moment || moment->isValid());
        if (moment && (text.endsWith(u"min") || text.endsWith(u'h') || text.endsWith(u'd')))
            require(*moment <= day);
    }
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    std::string_view rest = inputText(data, size);
    QStringList arguments{QStringLiteral("kelvo-mirror")};
    while (!rest.empty())
        arguments.append(asText(nextText(rest)));

    const CommandLine line = parseCommandLine(arguments);
    // A profile stands before a request for settings.
    const bool badProfile = !takeProfile(arguments).problem.isEmpty();
    if (badProfile) {
        require(line.kind == LaunchKind::Refuse);
        return 0;
    }
    const auto request = settingsRequest(arguments);
    const bool complete = std::holds_alternative<SettingsRequest>(request);
    require(complete == (line.kind == LaunchKind::Settings));
    if (std::holds_alternative<QString>(request))
        require(line.kind == LaunchKind::Refuse);
    if (line.kind == LaunchKind::Refuse)
        require(line.message.startsWith(u"kelvo-mirror: ") &&
                line.message.endsWith(u"\nTry 'kelvo-mirror --help'.\n"));
    const bool printed =
        line.kind == LaunchKind::PrintHelp || line.kind == LaunchKind::PrintVersion;
    require((line.kind == LaunchKind::Refuse || printed) == !line.message.isEmpty());
    require(!line.json || line.kind == LaunchKind::Once || line.kind == LaunchKind::Profiles);
    require(!line.copy.maxAge || (line.kind == LaunchKind::Ask && *line.copy.maxAge >= 0 &&
                                  line.copy.verb == CopyVerb::Status));
    require(!line.copy.json || line.kind == LaunchKind::Ask);
    require(!line.profile.isNamed() || profileNameFault(line.profile.name).isEmpty());
    if (complete)
        checkRequest(line.settings);
    if (line.kind == LaunchKind::Passes)
        checkPasses(line.passes, arguments);
    return 0;
}
