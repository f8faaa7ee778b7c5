#include "remote/smb_share_access.h"

#include "ports/command_runner.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/workspace.h"
#include "remote/command_files.h"
#include "support/text.h"

#include <QStringList>

#include <utility>

namespace kelvo {
namespace {

constexpr double cMountDelay = 0.5;
constexpr double cOpenDelay = 0.1;
constexpr QStringView cReveal = u"ibRevealSourcePathSMB(_:)";
constexpr QStringView cDebug = u"ibRevealSourcePathSMBdebug(_:)";
constexpr QStringView cTest = u"ibTestShellCommand111(_:)";
constexpr QStringView cDebugOLD = u"ibRevealSourcePathSMBdebugOLD(_:)";

} // namespace

QString volumePath(const QString& picked) {
    QString whole = trimmedText(picked);
    for (const QString& line : whole.split(u'\n')) {
        if (line.contains(u"macintosh", Qt::CaseInsensitive))
            return trimmedText(line);
    }
    return whole;
}

SmbShareAccess::SmbShareAccess(SmbShareAccessParts parts) : fParts(std::move(parts)) {}

// -- actions

void SmbShareAccess::ibRevealSourcePathSMB() {
    logInside(cReveal);
    const auto target = shareTarget(fParts.defaults);
    if (!target) {
        fParts.beep();
        return;
    }
    const QString command = fParts.commands.openRemoteFolder(*target);
    logInside(cReveal, QString(u".......cmd to send = [" + command + u']'));
    openShare(cReveal, command, *target, [this, target] {
        if (fParts.commands.folderIsSoughtAfterwards())
            findFolder(cReveal, *target, Search::Newer);
    });
}

void SmbShareAccess::ibRevealSourcePathSMBdebug() {
    logInside(cDebug);
    const auto target = shareTarget(fParts.defaults);
    if (!target)
        return;
    openShare(cDebug, fParts.commands.openShare(*target), *target, [this, target] {
        fParts.mainQueue.asyncAfter(cMountDelay,
                                    [this, target] { findFolder(cDebug, *target, Search::Newer); });
    });
}

void SmbShareAccess::ibRevealSourcePathSMBdebugOLD() {
    logInside(cDebugOLD);
    const auto target = shareTarget(fParts.defaults);
    if (!target)
        return;
    openShare(cDebugOLD, fParts.commands.openShare(*target), *target,
              [this, target] { findFolder(cDebugOLD, *target, Search::Older); });
}

void SmbShareAccess::ibTestShellCommand111() {
    logInside(cTest);
    const auto target = shareTarget(fParts.defaults);
    if (!target)
        return;
    const QString command = fParts.commands.openShare(*target);
    const QString output = outputWithin(fParts.shell, cSharePatience, command);
    logInside(cTest, QString(u".......response[" + command + u"]= [" + output + u"]"));
    const auto opened = [this, target] {
        fParts.mainQueue.asyncAfter(cMountDelay, [this, target] { listVolumes(*target); });
    };
    if (output.isEmpty()) {
        opened();
        return;
    }
    logInside(cTest, u".......OH OH????");
    openByHand(output, *target, opened);
}

/// Where opening the share only mounts it, the file browser is shown it here.
void SmbShareAccess::listVolumes(const ShareTarget& target) {
    const QString list = fParts.commands.listVolumes(target);
    const QString listing = outputWithin(fParts.shell, cSharePatience, list);
    logInside(cTest, QString(u".......response[" + list + u"]= " + listing));
    if (!fParts.commands.folderIsSoughtAfterwards())
        return;
    const QString pick = fParts.commands.pickVolume(trimmedText(listing), target);
    if (const QString volume = volumePath(outputWithin(fParts.shell, cSharePatience, pick));
        !volume.isEmpty())
        openFolder(cTest, volume);
}

// -- steps

void SmbShareAccess::openShare(QStringView operation, const QString& command,
                               const ShareTarget& target, const std::function<void()>& opened) {
    const QString output = outputWithin(fParts.shell, cSharePatience, command);
    logInside(operation, QString(u".......response = " + output));
    if (output.isEmpty())
        opened();
    else
        openByHand(output, target, opened);
}

void SmbShareAccess::openByHand(const QString& output, const ShareTarget& target,
                                const std::function<void()>& opened) {
    const auto byHand = fParts.commands.mountInTerminal(output, target);
    if (!byHand)
        return;
    (void)fParts.commandFiles.executeAsCommandFile(
        *byHand, [noTerminal = fParts.noTerminal, command = *byHand, opened](TerminalOutcome how) {
            if (how == TerminalOutcome::Ended)
                opened();
            else
                noTerminal(command);
        });
}

void SmbShareAccess::findFolder(QStringView operation, const ShareTarget& target, Search search) {
    const QString list = fParts.commands.listVolumes(target);
    const QString listing = outputWithin(fParts.shell, cSharePatience, list);
    logInside(operation, QString(u".......response[" + list + u"]= " + listing));
    logInside(operation, QString(u".......  domain = " + target.host));
    logInside(operation, QString(u".......username = " + target.user));
    if (search == Search::Newer && listing.isEmpty())
        return;

    const QString pick = fParts.commands.pickVolume(trimmedText(listing), target);
    fParts.console.print(u"cmdformat = [ " + pick + u" ]");
    const QString picked = trimmedText(outputWithin(fParts.shell, cSharePatience, pick));
    logInside(operation, QString(u".......volume path = [" + picked + u']'));

    const QString volume = search == Search::Newer ? volumePath(picked) : picked;
    const QString path = fParts.commands.localFolder(volume, target);
    if (search == Search::Newer)
        logInside(operation, QString(u".......try to open  = [" + path + u']'));
    fParts.mainQueue.asyncAfter(cOpenDelay,
                                [this, operation, path] { openFolder(operation, path); });
}

void SmbShareAccess::openFolder(QStringView operation, const QString& path) {
    const auto command = fParts.commands.openLocalPath(path);
    QString output;
    if (command)
        output = outputWithin(fParts.shell, cSharePatience, *command);
    else
        fParts.workspace.openFile(path);
    logInside(operation, QString(u".......response = [" + output + u']'));
}

void SmbShareAccess::logInside(QStringView operation, QStringView detail) const {
    fParts.console.log(insideLine(u"ViewController", operation, detail));
}

} // namespace kelvo
