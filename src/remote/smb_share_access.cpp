#include "remote/smb_share_access.h"

#include "ports/console.h"
#include "ports/workspace.h"
#include "remote/command_files.h"
#include "support/text.h"

#include <QStringList>

#include <memory>
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
    const RemoteTaskRef task = fParts.tasks.begin(RemoteTaskKind::OpeningFolder);
    if (!task)
        return;
    const QString command = fParts.commands.openRemoteFolder(*target);
    logInside(cReveal, QString(u".......cmd to send = [" + command + u']'));
    openShare(task, cReveal, command, *target, [this, target](const RemoteTaskRef& running) {
        if (fParts.commands.folderIsSoughtAfterwards())
            findFolder(running, cReveal, *target, Search::Newer);
    });
}

void SmbShareAccess::ibRevealSourcePathSMBdebug() {
    logInside(cDebug);
    const auto target = shareTarget(fParts.defaults);
    const RemoteTaskRef task =
        target ? fParts.tasks.begin(RemoteTaskKind::OpeningFolder) : RemoteTaskRef();
    if (!task)
        return;
    openShare(task, cDebug, fParts.commands.openShare(*target), *target,
              [this, target](const RemoteTaskRef& running) {
                  running->after(cMountDelay, [this, running, target] {
                      findFolder(running, cDebug, *target, Search::Newer);
                  });
              });
}

void SmbShareAccess::ibRevealSourcePathSMBdebugOLD() {
    logInside(cDebugOLD);
    const auto target = shareTarget(fParts.defaults);
    const RemoteTaskRef task =
        target ? fParts.tasks.begin(RemoteTaskKind::OpeningFolder) : RemoteTaskRef();
    if (!task)
        return;
    openShare(task, cDebugOLD, fParts.commands.openShare(*target), *target,
              [this, target](const RemoteTaskRef& running) {
                  findFolder(running, cDebugOLD, *target, Search::Older);
              });
}

void SmbShareAccess::ibTestShellCommand111() {
    logInside(cTest);
    const auto target = shareTarget(fParts.defaults);
    const RemoteTaskRef task =
        target ? fParts.tasks.begin(RemoteTaskKind::OpeningFolder) : RemoteTaskRef();
    if (!task)
        return;
    const QString command = fParts.commands.openShare(*target);
    task->ask(cSharePatience, command, [this, task, target, command](const QString& output) {
        logInside(cTest, QString(u".......response[" + command + u"]= [" + output + u"]"));
        const Opened opened = [this, target](const RemoteTaskRef& running) {
            running->after(cMountDelay, [this, running, target] { listVolumes(running, *target); });
        };
        if (output.isEmpty()) {
            opened(task);
            return;
        }
        logInside(cTest, u".......OH OH????");
        openByHand(task, output, *target, opened);
    });
}

/// Where opening the share only mounts it, the file browser is shown it here.
void SmbShareAccess::listVolumes(const RemoteTaskRef& task, const ShareTarget& target) {
    const QString list = fParts.commands.listVolumes(target);
    task->ask(cSharePatience, list, [this, task, list, target](const QString& listing) {
        logInside(cTest, QString(u".......response[" + list + u"]= " + listing));
        if (!fParts.commands.folderIsSoughtAfterwards())
            return;
        const QString pick = fParts.commands.pickVolume(trimmedText(listing), target);
        task->ask(cSharePatience, pick, [this, task](const QString& picked) {
            if (const QString volume = volumePath(picked); !volume.isEmpty())
                openFolder(task, cTest, volume);
        });
    });
}

// -- steps

void SmbShareAccess::openShare(const RemoteTaskRef& task, QStringView operation,
                               const QString& command, const ShareTarget& target,
                               const Opened& opened) {
    task->ask(cSharePatience, command,
              [this, task, operation, target, opened](const QString& output) {
                  logInside(operation, QString(u".......response = " + output));
                  if (output.isEmpty())
                      opened(task);
                  else
                      openByHand(task, output, target, opened);
              });
}

/// The task is over while a person types.
void SmbShareAccess::openByHand(const RemoteTaskRef& task, const QString& output,
                                const ShareTarget& target, const Opened& opened) {
    const auto byHand = fParts.commands.mountInTerminal(output, target);
    if (!byHand)
        return;
    const auto ended = [this, command = *byHand, opened](TerminalOutcome how) {
        if (how == TerminalOutcome::Ended)
            fParts.tasks.whenFree(RemoteTaskKind::OpeningFolder, opened);
        else
            fParts.noTerminal(command);
    };
    const auto script = std::make_shared<QString>();
    task->inBackground(
        [this, command = *byHand, script](RemoteTask& running) {
            *script = fParts.commandFiles.writeCommandFile(command, running.runner());
        },
        [this, command = *byHand, script, ended] {
            if (!script->isEmpty())
                fParts.commandFiles.openScript(*script, command, ended);
        });
}

void SmbShareAccess::findFolder(const RemoteTaskRef& task, QStringView operation,
                                const ShareTarget& target, Search search) {
    const QString list = fParts.commands.listVolumes(target);
    task->ask(cSharePatience, list,
              [this, task, operation, list, target, search](const QString& listing) {
                  logInside(operation, QString(u".......response[" + list + u"]= " + listing));
                  logInside(operation, QString(u".......  domain = " + target.host));
                  logInside(operation, QString(u".......username = " + target.user));
                  if (search == Search::Older || !listing.isEmpty())
                      pickFolder(task, operation, listing, target, search);
              });
}

void SmbShareAccess::pickFolder(const RemoteTaskRef& task, QStringView operation,
                                const QString& listing, const ShareTarget& target, Search search) {
    const QString pick = fParts.commands.pickVolume(trimmedText(listing), target);
    fParts.console.print(u"cmdformat = [ " + pick + u" ]");
    task->ask(cSharePatience, pick, [this, task, operation, target, search](const QString& output) {
        const QString picked = trimmedText(output);
        logInside(operation, QString(u".......volume path = [" + picked + u']'));
        const QString volume = search == Search::Newer ? volumePath(picked) : picked;
        const QString path = fParts.commands.localFolder(volume, target);
        if (search == Search::Newer)
            logInside(operation, QString(u".......try to open  = [" + path + u']'));
        task->after(cOpenDelay,
                    [this, task, operation, path] { openFolder(task, operation, path); });
    });
}

void SmbShareAccess::openFolder(const RemoteTaskRef& task, QStringView operation,
                                const QString& path) {
    if (const auto command = fParts.commands.openLocalPath(path)) {
        task->ask(cSharePatience, *command,
                  [this, operation](const QString& output) { logOpening(operation, output); });
        return;
    }
    fParts.workspace.openFile(path);
    logOpening(operation, {});
}

void SmbShareAccess::logOpening(QStringView operation, const QString& output) const {
    logInside(operation, QString(u".......response = [" + output + u']'));
}

void SmbShareAccess::logInside(QStringView operation, QStringView detail) const {
    fParts.console.log(insideLine(u"ViewController", operation, detail));
}

} // namespace kelvo
