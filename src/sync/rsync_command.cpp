#include "sync/rsync_command.h"

#include "ports/console.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "support/property_value.h"
#include "support/text.h"

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

QString filledCommand(QString command, const RsyncParams& params, QStringView optionString) {
    if (params.srcpath)
        command.replace(cSource, withTrailingSlash(*params.srcpath));
    if (params.dstpath)
        command.replace(cDestination, withTrailingSlash(*params.dstpath));
    if (params.sshfilepath) {
        command.replace(cKeyFile, *params.sshfilepath);
        command.replace(cSsh, cSshPart.toString().replace(cKeyFile, *params.sshfilepath));
    } else {
        command.remove(cSsh);
    }
    return command.replace(cOption, optionString.toString());
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

QString RsyncCommand::fillInParams(const QString& command, const RsyncParams& params) const {
    tracePathStep(params.srcpath);
    tracePathStep(params.dstpath);
    QString filled = filledCommand(command, params, getRsyncCommandOptionString());
    fConsole.print(insideLine(u"String", u"fillInParams(srcpath:dstpath:sshfilepath:)",
                              QString(u".......returning:\n" + filled)));
    return filled;
}

void RsyncCommand::tracePathStep(const std::optional<QString>& path) const {
    if (path)
        fConsole.print(insideLine(u"String", u"appendSlashIfNeeded()"));
}

} // namespace kelvo
