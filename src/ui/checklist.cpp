#include "ui/checklist.h"

#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/text.h"
#include "ui/pass_words.h"
#include "ui/words.h"

#include <utility>

namespace kelvo {
namespace {

QString text(const UserDefaults& defaults, QStringView key) {
    return trimmedText(defaults.stringForKey(key).value_or(QString()));
}

QString whyNotAccepted(std::optional<PassCause> lastCause) {
    if (lastCause && (wordsFor(*lastCause).group == CauseGroup::HostKey ||
                      lastCause == PassCause::KeyRefused || lastCause == PassCause::WrongUser))
        return sentenceFor(*lastCause);
    return Words::tr("The Mac has not accepted the program's key yet.");
}

} // namespace

std::vector<ChecklistLine> checklist(const ChecklistFacts& facts) {
    std::vector<ChecklistLine> lines;
    const auto need = [&lines](bool isThere, const QString& words, Remedy remedy) {
        if (!isThere)
            lines.push_back({words, remedy});
    };
    if (facts.remote) {
        need(facts.hostChosen, Words::tr("No Mac is chosen yet."), Remedy::ChooseMac);
        need(facts.userSet, Words::tr("The user name on the Mac is missing."),
             Remedy::EnterAccount);
        need(facts.key != KeyState::NoKey, Words::tr("The program has no ssh key of its own yet."),
             Remedy::SetUpKey);
        // A Mac that was not reached has said nothing of the key.
        const bool reached =
            !facts.lastCause || wordsFor(*facts.lastCause).group != CauseGroup::Host;
        need(facts.key != KeyState::NotAccepted || !reached, whyNotAccepted(facts.lastCause),
             facts.lastCause == PassCause::WrongUser ? Remedy::EnterAccount : Remedy::SetUpKey);
        need(facts.sshThere, Words::tr("ssh is not installed on this machine."),
             Remedy::CopyInstallCommand);
    } else {
        need(facts.sourceChosen, Words::tr("No source folder is chosen yet."),
             Remedy::ChooseSource);
    }
    if (!facts.destinationChosen)
        lines.push_back(
            {Words::tr("No destination folder is chosen yet."), Remedy::ChooseDestination});
    else
        need(facts.destinationWritable,
             Words::tr("The destination folder is missing or cannot be written."),
             Remedy::ChooseDestination);
    need(facts.rsyncThere, Words::tr("rsync is not installed on this machine."),
         Remedy::CopyInstallCommand);
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
    fObservations.push_back(fParts.passes.observe([this](const PassRecord& pass, const Standing&) {
        fLastCause = pass.cause;
        look();
    }));
    look();
}

void Checklist::look() {
    const UserDefaults& defaults = fParts.defaults;
    ChecklistFacts facts;
    facts.remote = defaults.boolForKey(prefRsyncWithSSH);
    facts.hostChosen = !text(defaults, prefRemoteBonjourName).isEmpty();
    facts.userSet = !text(defaults, prefRemoteUsername).isEmpty();
    facts.key = fKey;
    facts.lastCause = fLastCause;
    facts.sourceChosen = !text(defaults, prefPath1).isEmpty();
    const QString destination = text(defaults, prefPath2);
    facts.destinationChosen = !destination.isEmpty();
    fParts.bgQueue.async([this, facts,
                          destination = expandingTilde(destination, fParts.files.homeDirectory()),
                          look = ++fLooks, alive = std::weak_ptr(fAlive), &files = fParts.files,
                          &mainQueue = fParts.mainQueue]() mutable {
        facts.destinationWritable = files.isWritableFolder(destination);
        facts.rsyncThere = files.isProgram(QStringLiteral("/usr/bin/rsync"));
        facts.sshThere = files.isProgram(QStringLiteral("/usr/bin/ssh"));
        mainQueue.async([this, facts, look, alive] {
            if (!alive.expired() && look == fLooks)
                fParts.show(checklist(facts));
        });
    });
}

void Checklist::setKeyState(KeyState state) {
    if (state != KeyState::Asking && std::exchange(fKey, state) != state)
        look();
}

} // namespace kelvo
