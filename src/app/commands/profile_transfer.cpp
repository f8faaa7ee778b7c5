#include "app/commands/profile_transfer.h"

#include "ports/user_defaults.h"
#include "settings/preferences.h"
#include "settings/remote_account.h"
#include "support/plain_line.h"
#include "support/property_value.h"
#include "support/shell_reader.h"
#include "sync/rsync_command.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>
#include <array>
#include <cmath>

namespace kelvo {
namespace {

constexpr QLatin1StringView cFormat("kelvo-mirror-profile");
constexpr QLatin1StringView cSettings("settings");
constexpr int cFormatVersion = 1;
constexpr qsizetype cLongestText = qsizetype{16} * 1024;

constexpr std::array cExported = {
    prefDelayBetweenScans, prefRsyncCommandString1,   prefRsyncCommandOptionTag,
    prefRsyncWithSSH,      prefRemoteUsername,        prefRemoteBonjourName,
    prefRemotePath,        prefKeepConnection,        prefShowNotices,
    prefShowArrivals,      prefAutoStartScanOnLaunch,
};

using Checked = std::variant<QVariant, QString>; ///< a value, or what it should be

Checked integerFrom(const QJsonValue& value, QStringView key) {
    const double number = value.toDouble(NAN);
    // Beyond that a double is not sure of its last digit.
    constexpr double cLargest = 9007199254740992.0;
    if (!(std::abs(number) <= cLargest) || number != std::floor(number))
        return QStringLiteral("a whole number");
    const auto whole = static_cast<qint64>(number);
    // The program ends at a tag that does not exist.
    if (key == prefRsyncCommandOptionTag && !optionStringForTag(whole))
        return QStringLiteral("one of 100, 101, 102 and 105");
    return QVariant(whole);
}

Checked valueFrom(const QJsonValue& value, const Preference& preference) {
    switch (preference.type) {
    case PreferenceType::Bool:
        return value.isBool() ? Checked(QVariant(value.toBool()))
                              : Checked(QStringLiteral("true or false"));
    case PreferenceType::Integer:
        return integerFrom(value, preference.key);
    case PreferenceType::Double:
        return value.isDouble() ? Checked(QVariant(value.toDouble()))
                                : Checked(QStringLiteral("a number"));
    case PreferenceType::String:
        return value.isString() && value.toString().size() <= cLongestText &&
                       !value.toString().contains(QChar(u'\0'))
                   ? Checked(QVariant(value.toString()))
                   : Checked(QStringLiteral("a text of at most 16 KiB"));
    case PreferenceType::Dictionary:
    case PreferenceType::Times:
        break;
    }
    return QStringLiteral("no value from outside");
}

QString textOf(const QVariantMap& settings, QStringView key, const QString& missing) {
    return stringValue(settings.value(key.toString())).value_or(missing);
}

QString templateIn(const QVariantMap& settings) {
    return textOf(settings, prefRsyncCommandString1,
                  factoryValue(*preference(prefRsyncCommandString1)).toString());
}

/// Why no pass could run with `settings`; the folder here is chosen later.
QString commandFaultOf(const QVariantMap& settings) {
    const RemoteAccount account{textOf(settings, prefRemoteUsername, QStringLiteral("user")),
                                textOf(settings, prefRemoteBonjourName, QStringLiteral("host"))};
    const QString key = QStringLiteral("/key");
    if (QString fault = accountFault(account, key); !fault.isEmpty())
        return fault;
    return commandFault(templateIn(settings),
                        {.srcpath = QString(account.destination() + u':' +
                                            textOf(settings, prefRemotePath, QString())),
                         .dstpath = QStringLiteral("/destination"),
                         .sshfilepath = key});
}

QString shown(const QVariant& value) {
    return value.typeId() == QMetaType::QString ? u'"' + oneLine(value.toString()) + u'"'
                                                : value.toString();
}

/// Whether the shell reads more in `piece` than a word.
bool holdsShellSigns(const QString& piece) {
    ShellReader reader(piece);
    for (qsizetype at = 0; at < piece.size(); ++at) {
        const Quoting quoting = reader.placeAt(at).quoting;
        const QStringView signs = quoting == Quoting::Single   ? QStringView()
                                  : quoting == Quoting::Double ? QStringView(u"`$")
                                                               : QStringView(u";|&<>(){}`$\n");
        if (quoting == Quoting::Unclear || signs.contains(piece[at]))
            return true;
    }
    return false;
}

} // namespace

bool isExported(QStringView key) {
    return std::ranges::find(cExported, key) != cExported.end();
}

QByteArray exportedProfile(const UserDefaults& defaults) {
    QJsonObject settings;
    for (const QStringView key : cExported) {
        if (const QVariant value = defaults.object(key); value.isValid())
            settings.insert(key, QJsonValue::fromVariant(value));
    }
    return QJsonDocument(QJsonObject{{cFormat, cFormatVersion}, {cSettings, settings}}).toJson();
}

std::variant<QVariantMap, QString> importedProfile(const QByteArray& bytes) {
    if (bytes.size() > cLargestExport)
        return QStringLiteral("it is larger than 64 KiB");
    const QJsonObject root = QJsonDocument::fromJson(bytes).object();
    const QJsonValue version = root.value(cFormat);
    if (!version.isDouble() || !root.value(cSettings).isObject())
        return QStringLiteral("it is no exported profile");
    if (version.toInt() != cFormatVersion)
        return QStringLiteral("a newer Kelvo Mirror has written it");
    if (root.size() != 2)
        return QStringLiteral("it holds more than a profile");
    QVariantMap settings;
    const QJsonObject values = root.value(cSettings).toObject();
    for (auto each = values.begin(); each != values.end(); ++each) {
        const Preference* const known = preference(each.key());
        if (!known || !isExported(each.key()))
            return QString(u"it holds " + oneLine(each.key()) +
                           u", which no exported profile holds");
        const Checked value = valueFrom(each.value(), *known);
        if (const auto* wanted = std::get_if<QString>(&value))
            return QString(u"its " + each.key() + u" is not " + *wanted);
        settings.insert(each.key(), std::get<QVariant>(value));
    }
    if (const QString fault = commandFaultOf(settings); !fault.isEmpty())
        return QString(u"no pass could run with it: " + fault);
    return settings;
}

QStringList shellPieces(const QString& command) {
    ShellReader reader(command);
    QStringList pieces;
    QString piece;
    const auto end = [&] {
        if (!piece.isEmpty())
            pieces.append(std::exchange(piece, {}));
    };
    bool escaped = false; // the reader does not tell of a sign behind a backslash
    for (qsizetype at = 0; at < command.size(); ++at) {
        const QChar sign = command[at];
        const Quoting quoting = reader.placeAt(at).quoting;
        if (quoting == Quoting::Unclear && !escaped) {
            piece += command.sliced(at);
            break;
        }
        const bool parts = quoting == Quoting::Bare && !escaped &&
                           (sign == u' ' || sign == u'\t' || sign == u'\n');
        escaped = quoting == Quoting::Bare && !escaped && sign == u'\\';
        // A line end is a sign of the shell too, not only a blank.
        if (!parts || sign == u'\n')
            piece += sign;
        if (parts)
            end();
    }
    end();
    return pieces;
}

QString importPreview(const QVariantMap& settings, const Profile& profile, bool isThere) {
    QString text = isThere ? QStringLiteral("The profile %1 is there already. These settings take "
                                            "the place of those it has:\n")
                           : QStringLiteral("The profile %1 will be made, with these settings:\n");
    text = text.arg(profile.name);
    for (const QStringView key : cExported) {
        const QVariant value = settings.value(key.toString());
        text += u"  " + key.toString().leftJustified(27) +
                (value.isValid() ? shown(value) : QStringLiteral("factory value")) + u'\n';
    }
    const QString command = templateIn(settings);
    const bool isFactory = command == factoryValue(*preference(prefRsyncCommandString1)).toString();
    text += isFactory ? QStringLiteral("Each pass runs the command that the program comes with, "
                                       "read by the shell:\n  ")
                      : QStringLiteral("Each pass runs a command that is NOT the one that the "
                                       "program comes with, read by the shell:\n  ");
    text += oneLine(command) + u"\nIts words:\n";
    int number = 0;
    for (const QString& piece : shellPieces(command))
        text += u"  " + QString::number(++number).rightJustified(3) + u"  " + oneLine(piece) +
                (holdsShellSigns(piece) ? u"    <- more than a word to the shell\n" : u"\n");
    return text + QStringLiteral("In it %@1 stands for the folder on the Mac, %@2 for the "
                                 "destination here, %@98 for the\noptions of ssh, %@99 for the "
                                 "option.\n");
}

CommandAnswer answerImport(const TransferRequest& request, const QByteArray& bytes,
                           const Profile& profile, const ImportParts& parts) {
    const auto failed = [](int code, const QString& why) {
        return CommandAnswer{code, {}, QString(u"kelvo-mirror: " + why + u".\n")};
    };
    const auto read = importedProfile(bytes);
    if (const auto* fault = std::get_if<QString>(&read))
        return failed(cExitBadProfile,
                      QString(oneLine(request.file) + u" was not imported: " + *fault));
    const auto& settings = std::get<QVariantMap>(read);
    const QString preview = importPreview(settings, profile, parts.isThere);
    CommandAnswer answer;
    if (request.accept) {
        answer.output = preview;
    } else if (const auto accepted = parts.ask(preview); !accepted) {
        answer = failed(cExitNotAccepted,
                        QStringLiteral("nothing was imported: there is no terminal to ask on. "
                                       "--accept takes it over without a question"));
        answer.output = preview;
        return answer;
    } else if (!*accepted) {
        return failed(cExitNotAccepted, QStringLiteral("nothing was imported"));
    }
    if (const QString fault = parts.store(settings); !fault.isEmpty()) {
        answer.exitCode = cExitNotStored;
        answer.errors = u"kelvo-mirror: the profile could not be stored. " + fault + u'\n';
        return answer;
    }
    answer.output += QStringLiteral("The profile %1 is imported. It needs a destination here: "
                                    "kelvo-mirror --profile %1 --set prefPath2 FOLDER\n")
                         .arg(profile.name);
    return answer;
}

} // namespace kelvo
