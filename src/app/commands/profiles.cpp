#include "app/commands/profiles.h"

#include "app/commands/passes.h"
#include "support/plain_line.h"
#include "ui/pass_words.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace kelvo {
namespace {

constexpr QStringView cOption = u"--profile";
constexpr QStringView cOptionWithValue = u"--profile=";

bool isOption(QStringView word) {
    return word == cOption || word.startsWith(cOptionWithValue);
}

/// Takes the option that stands at `at`; what is wrong with it.
QString takeAt(QStringList& arguments, qsizetype at, Profile& profile) {
    const QString word = arguments.takeAt(at);
    QString name;
    if (word.startsWith(cOptionWithValue))
        name = word.sliced(cOptionWithValue.size());
    else if (at < arguments.size() && !arguments[at].startsWith(u"--"))
        name = arguments.takeAt(at);
    else
        return QStringLiteral("--profile takes a name");
    if (profile.isNamed())
        return QStringLiteral("--profile is given twice");
    if (const QString fault = profileNameFault(name); !fault.isEmpty())
        return QStringLiteral("'%1' is no name of a profile: %2. A name is 1 to 64 letters (A to "
                              "Z, a to z), digits, \"-\" and \"_\"")
            .arg(oneLine(name), fault);
    profile.name = name;
    return {};
}

bool readsOrChangesSettings(const QStringList& arguments) {
    return !std::holds_alternative<std::monostate>(settingsRequest(arguments));
}

QString orNone(const QString& text, QStringView none) {
    return text.isEmpty() ? none.toString() : oneLine(text);
}

QString lineOf(const ProfileState& state, qsizetype nameWidth) {
    QString line = orNone(state.profile.name, u"(no profile)").leftJustified(nameWidth) +
                   (state.isRunning ? u"  running      " : u"  not running  ") +
                   orNone(state.mac, u"no Mac") +
                   (state.lastSuccess.isValid()
                        ? QString(u", last success " + localTimeText(state.lastSuccess))
                        : QStringLiteral(", no success yet"));
    if (state.trouble)
        line += u". " + wordsFor(*state.trouble).sentence;
    if (!state.fault.isEmpty())
        line += u". " + oneLine(state.fault) + u'.';
    return line;
}

QJsonValue orNull(const QString& text) {
    return text.isEmpty() ? QJsonValue(QJsonValue::Null) : QJsonValue(text);
}

QJsonObject jsonOf(const ProfileState& state) {
    return {
        {QStringLiteral("name"), orNull(state.profile.name)},
        {QStringLiteral("mac"), orNull(state.mac)},
        {QStringLiteral("running"), state.isRunning},
        {QStringLiteral("lastSuccess"), orNull(state.lastSuccess.toString(Qt::ISODateWithMs))},
        {QStringLiteral("trouble"),
         orNull(state.trouble ? wordsFor(*state.trouble).name.toString() : QString())},
        {QStringLiteral("fault"), orNull(state.fault)},
    };
}

} // namespace

TakenProfile takeProfile(QStringList& arguments) {
    TakenProfile taken;
    while (taken.problem.isEmpty() && arguments.size() > 1 && isOption(arguments[1]))
        taken.problem = takeAt(arguments, 1, taken.profile);
    for (qsizetype at = 2; taken.problem.isEmpty() && at < arguments.size() &&
                           arguments[at] != u"--" && !readsOrChangesSettings(arguments);) {
        if (isOption(arguments[at]))
            taken.problem = takeAt(arguments, at, taken.profile);
        else
            ++at;
    }
    return taken;
}

QString profilesText(const std::vector<ProfileState>& states, bool json) {
    qsizetype width = 0;
    for (const ProfileState& each : states)
        width = std::max(width, orNone(each.profile.name, u"(no profile)").size());
    QString text;
    for (const ProfileState& each : states)
        text +=
            (json ? QString::fromUtf8(QJsonDocument(jsonOf(each)).toJson(QJsonDocument::Compact))
                  : lineOf(each, width)) +
            u'\n';
    return text;
}

} // namespace kelvo
