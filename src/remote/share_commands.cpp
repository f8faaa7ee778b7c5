#include "remote/share_commands.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/shell_words.h"
#include "support/text.h"

#include <QByteArray>

namespace kelvo {
namespace {

/// All placeholders of `text` stand between double quotes, where any word can be put.
QString filledIn(const QString& text, const ShareTarget& target) {
    return withFillings(text, {{QStringLiteral("%@3"), target.remotePath},
                               {QStringLiteral("%@1"), target.user},
                               {QStringLiteral("%@2"), shareHost(target.host)}})
        .value();
}

QString remoteFolderFrom(const QString& start, const ShareTarget& target) {
    const QString users = appendingPathComponent(start, u"Users");
    return appendingPathComponent(appendingPathComponent(users, target.user), target.remotePath);
}

QString percentEncoded(const QString& text) {
    return QString::fromLatin1(text.toUtf8().toPercentEncoding());
}

/// Holds no sign that a shell would read as its own between double quotes.
QString shareAddress(const ShareTarget& target) {
    const QString user =
        target.user.isEmpty() ? QString() : QString(percentEncoded(target.user) + u'@');
    return u"smb://" + user + percentEncoded(target.host) + u"/Macintosh%20HD";
}

const QString cTimeout = u"timeout -k 2 " + QString::number(cShareTimeout) + u' ';

/// `command`, which is given its time and then said to have kept silent: ended at a request (124)
/// or by force (137).
QString bounded(const QString& command) {
    return cTimeout + command + u" 2>&1 </dev/null; case $? in 124|137) echo \"no answer within " +
           QString::number(cShareTimeout) + u" seconds\";; esac";
}

QString singleQuoted(const QString& text) {
    return u'\'' + insideSingleQuotes(text) + u'\'';
}

/// `host` inside the slashes of a pattern that awk is given between single quotes.
QString insidePattern(QString host) {
    host.replace(u'\\', QStringLiteral("\\\\")).replace(u'/', QStringLiteral("\\/"));
    return insideSingleQuotes(host);
}

} // namespace

std::optional<ShareTarget> shareTarget(const UserDefaults& defaults) {
    const auto host = defaults.stringForKey(prefRemoteBonjourName);
    if (!host)
        return {};
    return ShareTarget{*host,
                       trimmedText(defaults.stringForKey(prefRemoteUsername).value_or(QString())),
                       trimmedText(defaults.stringForKey(prefRemotePath).value_or(QString()))};
}

QString shareHost(const QString& host) {
    QString name = host;
    return name.replace(u'-', QStringLiteral("%20")).remove(QStringLiteral(".local"));
}

// -- macOS

QString MacShareCommands::openRemoteFolder(const ShareTarget& target) const {
    return filledIn(
        QStringLiteral("open \"smb://%@1@%@2._smb._tcp.local/Macintosh%20HD/Users/%@1/%@3\""),
        target);
}

QString MacShareCommands::openShare(const ShareTarget& target) const {
    return filledIn(QStringLiteral("open \"smb://%@1@%@2._smb._tcp.local/Macintosh%20HD\""),
                    target);
}

QString MacShareCommands::listVolumes(const ShareTarget&) const {
    return QStringLiteral("df -ahY -T smbfs");
}

QString MacShareCommands::pickVolume(const QString& listing, const ShareTarget& target) const {
    return u"echo \"" + insideDoubleQuotes(listing) + u"\" | awk ' $1 ~ /" +
           insidePattern(shareHost(target.host)) + u"/ {print $'10'\" \"$'11'}' ";
}

QString MacShareCommands::localFolder(const QString& volume, const ShareTarget& target) const {
    return remoteFolderFrom(appendingPathComponent(u".", volume), target);
}

std::optional<QString> MacShareCommands::openLocalPath(const QString& path) const {
    return QString(u"open \"" + insideDoubleQuotes(path) + u'"');
}

// -- Linux

QString GioShareCommands::openShare(const ShareTarget& target) const {
    const QString address = shareAddress(target);
    return cTimeout + u"gio info \"" + address + u"\" >/dev/null 2>&1 || { " +
           bounded(QString(u"env LC_ALL=C.UTF-8 gio mount \"" + address + u'"')) + u"; }";
}

QString GioShareCommands::listVolumes(const ShareTarget& target) const {
    return bounded(QString(u"env LC_ALL=C.UTF-8 gio info \"" + shareAddress(target) + u'"'));
}

QString GioShareCommands::pickVolume(const QString& listing, const ShareTarget&) const {
    return u"printf '%s\\n' " + singleQuoted(listing) + u" | sed -n 's/^local path: //p'";
}

/// Without a mount point the path stays relative, so that no folder of this machine is taken for
/// the remote one.
QString GioShareCommands::localFolder(const QString& volume, const ShareTarget& target) const {
    return remoteFolderFrom(volume.isEmpty() ? QStringLiteral(".") : volume, target);
}

std::optional<QString> GioShareCommands::mountInTerminal(const QString& output,
                                                         const ShareTarget& target) const {
    if (!output.contains(u"password", Qt::CaseInsensitive))
        return {};
    return QString(u"gio mount \"" + shareAddress(target) + u'"');
}

} // namespace kelvo
