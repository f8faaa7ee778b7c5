#include "ui/checklist.h"

#include "ports/checklist_probe.h"
#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "support/key_file.h"
#include "support/preference_keys.h"
#include "support/text.h"
#include "ui/pass_words.h"

#include <utility>

namespace kelvo {
namespace {

QString text(const UserDefaults& defaults, QStringView key) {
    return trimmedText(defaults.stringForKey(key).value_or(QString()));
}

bool keyIsNotAccepted(PassCause cause) {
    return wordsFor(cause).group == CauseGroup::HostKey || cause == PassCause::KeyRefused ||
           cause == PassCause::WrongUser;
}

} // namespace

std::vector<ChecklistLine> checklist(const ChecklistFacts& facts) {
    std::vector<ChecklistLine> lines;
    const auto need = [&lines](bool isThere, const QString& words, Mend mend) {
        if (!isThere)
            lines.push_back({words, mend});
    };
    if (facts.remote) {
        need(facts.hostChosen, QStringLiteral("No Mac is chosen yet."), Mend::ShowRemoteTab);
        need(facts.userSet, QStringLiteral("The user name on the Mac is missing."),
             Mend::ShowRemoteTab);
        need(facts.keyThere, QStringLiteral("The program has no ssh key of its own yet."),
             Mend::ShowRemoteTab);
        if (facts.keyThere && facts.lastCause && keyIsNotAccepted(*facts.lastCause))
            lines.push_back({wordsFor(*facts.lastCause).sentence.toString(), Mend::ShowRemoteTab});
        need(facts.sshThere, QStringLiteral("ssh is not installed on this machine."),
             Mend::CopyInstallCommand);
    } else {
        need(facts.sourceChosen, QStringLiteral("No source folder is chosen yet."),
             Mend::ChooseSource);
    }
    if (!facts.destinationChosen)
        lines.push_back(
            {QStringLiteral("No destination folder is chosen yet."), Mend::ChooseDestination});
    else
        need(facts.destinationWritable,
             QStringLiteral("The destination folder is missing or cannot be written."),
             Mend::ChooseDestination);
    need(facts.rsyncThere, QStringLiteral("rsync is not installed on this machine."),
         Mend::CopyInstallCommand);
    return lines;
}

Checklist::Checklist(Parts parts) : fParts(std::move(parts)) {
    for (const QStringView key :
         {prefRsyncWithSSH, prefRemoteBonjourName, prefRemoteUsername, prefPath1, prefPath2}) {
        fObservations.push_back(fParts.defaults.observe(
            key, [this, alive = std::weak_ptr(fAlive)](const DefaultsChange&) {
                fParts.mainQueue.async([this, alive] {
                    if (!alive.expired())
                        look();
                });
            }));
    }
    fObservations.push_back(fParts.passes.observe([this](const PassRecord& pass) {
        fLastCause = pass.cause;
        look();
    }));
    look();
}

void Checklist::look() {
    const UserDefaults& defaults = fParts.defaults;
    const QString home = fParts.files.homeDirectory();
    ChecklistFacts facts;
    facts.remote = defaults.boolForKey(prefRsyncWithSSH);
    facts.hostChosen = !text(defaults, prefRemoteBonjourName).isEmpty();
    facts.userSet = !text(defaults, prefRemoteUsername).isEmpty();
    facts.lastCause = fLastCause;
    facts.sourceChosen = !text(defaults, prefPath1).isEmpty();
    const QString destination = text(defaults, prefPath2);
    facts.destinationChosen = !destination.isEmpty();
    fParts.bgQueue.async([this, facts, destination, home, look = ++fLooks,
                          alive = std::weak_ptr(fAlive), &files = fParts.files,
                          &probe = fParts.probe, &mainQueue = fParts.mainQueue]() mutable {
        facts.keyThere = files.fileExistsAtPath(expandingTilde(cPrivateKeyFile, home));
        facts.destinationWritable = probe.isWritableFolder(expandingTilde(destination, home));
        facts.rsyncThere = probe.isProgram(QStringLiteral("/usr/bin/rsync"));
        facts.sshThere = probe.isProgram(QStringLiteral("/usr/bin/ssh"));
        mainQueue.async([this, facts, look, alive] {
            if (!alive.expired() && look == fLooks)
                fParts.show(checklist(facts));
        });
    });
}

} // namespace kelvo
