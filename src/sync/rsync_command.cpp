#include "sync/rsync_command.h"

#include "ports/console.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "support/property_value.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <algorithm>

namespace kelvo {
namespace {

constexpr QStringView cSshPart = u"2>&1 --timeout=5  -e 'ssh -i %@3'";

/// How long the end of the program waits for its reason to be written.
constexpr std::chrono::seconds cLastWords{1};

const QString cSource = QStringLiteral("%@1");
const QString cDestination = QStringLiteral("%@2");
const QString cKeyFile = QStringLiteral("%@3");
const QString cSsh = QStringLiteral("%@98");
const QString cOption = QStringLiteral("%@99");

/// Where the path begins when rsync would read `place` as one on a host, host:path; otherwise 0.
qsizetype pathOf(QStringView place) {
    const qsizetype colon = place.indexOf(u':');
    const qsizetype slash = place.indexOf(u'/');
    return colon >= 0 && (slash < 0 || colon < slash) ? colon + 1 : 0;
}

/// With its colon; empty for a place on this machine.
QStringView hostOf(QStringView place) {
    const QStringView account = place.first(pathOf(place));
    return account.sliced(account.lastIndexOf(u'@') + 1);
}

/// `source` with a backslash before the signs of patterns in a path on a host: rsync escapes all
/// the others for the shell over there by itself.
QString keptWhole(const QString& source) {
    const qsizetype path = pathOf(source);
    QString kept = source.first(path);
    for (const QChar sign : QStringView(source).sliced(path)) {
        if (path > 0 && QStringView(u"*?[]").contains(sign))
            kept.append(u'\\');
        kept.append(sign);
    }
    return kept;
}

} // namespace

std::optional<QStringView> optionStringForTag(qint64 tag) {
    switch (tag) {
    case 100:
    case 105:
        return u"";
    case 101:
        return u"--update";
    case 102:
        return u"--ignore-existing";
    default:
        return std::nullopt;
    }
}

std::optional<QString> filledCommand(const QString& command, const RsyncParams& params,
                                     QStringView optionString) {
    const auto withSource =
        params.srcpath ? withWord(command, cSource, keptWhole(withTrailingSlash(*params.srcpath)))
                       : command;
    if (!withSource)
        return {};
    std::vector<Filling> later{{cOption, optionString.toString(), QString()}};
    if (params.dstpath)
        later.push_back({cDestination, withTrailingSlash(*params.dstpath)});
    if (const auto& key = params.sshfilepath) {
        auto sshPart = withWord(cSshPart.toString(), cKeyFile, *key);
        if (!sshPart)
            return sshPart;
        later.push_back({cKeyFile, *key});
        later.push_back({cSsh, *sshPart, *key});
    } else {
        later.push_back({cSsh, QString(), QString()});
    }
    return withFillings(*withSource, later);
}

namespace {

QString placeFault(const RsyncParams& params) {
    const QString source = trimmedText(params.srcpath.value_or(QString()));
    const QString destination = trimmedText(params.dstpath.value_or(QString()));
    if (const QString fault = wordFault(source); !fault.isEmpty())
        return u"the source " + fault;
    if (hostOf(source).startsWith(u'-'))
        return QStringLiteral("the host of the source begins with \"-\"");
    if (params.sshfilepath && source.sliced(pathOf(source)).startsWith(u':'))
        return QStringLiteral("the source would be read as a module of an rsync daemon");
    if (const QString fault = wordFault(destination); !fault.isEmpty())
        return u"the destination " + fault;
    if (pathOf(destination) > 0)
        return QStringLiteral("the destination would be read as the name of a host");
    if (const QString fault = wordFault(params.sshfilepath.value_or(QString())); !fault.isEmpty())
        return u"the path of the key file " + fault;
    return {};
}

QString faultOf(const QString& place, bool isFilled) {
    if (place.isEmpty() && !isFilled)
        return QStringLiteral("the command puts a text where it cannot be kept in one word");
    return place;
}

} // namespace

QString commandFault(const QString& command, const RsyncParams& params) {
    return faultOf(placeFault(params), filledCommand(command, params, {}).has_value());
}

QString RsyncCommand::commandFault(const QString& command, const RsyncParams& params) const {
    return faultOf(placeFault(params), filled(command, params, {}).has_value());
}

QString RsyncCommand::getRsyncCommandOptionString() const {
    const auto option = optionStringForTag(fDefaults.integerForKey(prefRsyncCommandOptionTag));
    if (!option)
        stopForTag();
    fConsole.print(insideLine(u"NSUserDefaults", u"getRsyncCommandOptionString()",
                              QString(u".......returning: [" + option->toString() + u']')));
    return option->toString();
}

void RsyncCommand::stopForTag() const {
    const QVariant stored = fDefaults.object(prefRsyncCommandOptionTag);
    const QString held = stored.isValid()
                             ? stringValue(stored).value_or(QStringLiteral("no number"))
                             : QStringLiteral("nothing");
    fConsole.log(prefRsyncCommandOptionTag + u" holds " + held +
                 u", which stands for no option of rsync. To mend it: kelvo-mirror --set " +
                 prefRsyncCommandOptionTag + u" 100");
    (void)fConsole.flush(cLastWords);
    stopProgram();
}

std::optional<QString> RsyncCommand::fillInParams(const QString& command,
                                                  const RsyncParams& params) const {
    tracePathStep(params.srcpath);
    tracePathStep(params.dstpath);
    std::optional<QString> filled = this->filled(command, params, getRsyncCommandOptionString());
    fConsole.print(insideLine(u"String", u"fillInParams(srcpath:dstpath:sshfilepath:)",
                              QString(u".......returning:\n" + filled.value_or(QString()))));
    return filled;
}

std::optional<QString> RsyncCommand::filled(const QString& command, const RsyncParams& params,
                                            const QString& option) const {
    const std::lock_guard lock(fMutex);
    const auto known = std::ranges::find_if(fFilled, [&](const Filled& last) {
        return last.text && last.command == command && last.params == params &&
               last.option == option;
    });
    if (known != fFilled.end())
        return known->text;
    Filled& filled = fFilled[fNext++ % fFilled.size()];
    filled = {command, params, option, filledCommand(command, params, option)};
    return filled.text;
}

void RsyncCommand::tracePathStep(const std::optional<QString>& path) const {
    if (path)
        fConsole.print(insideLine(u"String", u"appendSlashIfNeeded()"));
}

} // namespace kelvo
