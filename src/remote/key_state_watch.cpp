#include "remote/key_state_watch.h"

#include "ports/dispatch_queue.h"
#include "ports/file_manager.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "settings/remote_account.h"
#include "support/key_file.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

constexpr qint64 cTimeout = 5; // seconds

} // namespace

KeyState keyState(const QString& verdict, bool bothFilesExist) {
    if (verdict == u"valid")
        return KeyState::Accepted;
    if (!bothFilesExist)
        return KeyState::NoKey;
    if (verdict.isEmpty())
        return KeyState::HostUnset;
    return verdict == u"checkremotehost" ? KeyState::HostAway : KeyState::NotAccepted;
}

KeyStateWatch::KeyStateWatch(KeyStateParts parts) : fParts(std::move(parts)) {}

KeyStateWatch::~KeyStateWatch() = default;

void KeyStateWatch::begin() {
    const auto changed = [this](const DefaultsChange&) {
        fParts.mainQueue.async([this] { forget(); });
    };
    fUserWatch = fParts.defaults.observe(prefRemoteUsername, changed);
    fHostWatch = fParts.defaults.observe(prefRemoteBonjourName, changed);
    forget();
}

QString KeyStateWatch::validateRemoteHostWithWhoami(qint64 timeout) {
    const QString asked = target();
    QString verdict = fParts.validator.validateRemoteHostWithWhoami(timeout);
    fParts.mainQueue.async([this, asked, verdict] { answered(asked, verdict); });
    return verdict;
}

void KeyStateWatch::checkAgain() {
    if (fAsking) {
        fAskAgain = true;
        return;
    }
    ask();
}

void KeyStateWatch::ask() {
    fAsking = true;
    fAskAgain = false;
    fParts.show(KeyState::Asking);
    background(
        fParts.bgQueue, fParts.mainQueue, 0.0,
        [this] { (void)validateRemoteHostWithWhoami(cTimeout); },
        [this] {
            fAsking = false;
            if (fAskAgain)
                ask();
        });
}

void KeyStateWatch::forget() {
    if (!bothFilesExist())
        fParts.show(KeyState::NoKey);
    else
        fParts.show(target().isEmpty() ? KeyState::HostUnset : KeyState::NotAsked);
}

/// An answer about another host than the one that is set now says nothing.
void KeyStateWatch::answered(const QString& asked, const QString& verdict) {
    if (asked == target())
        fParts.show(keyState(verdict, bothFilesExist()));
    else
        forget();
}

bool KeyStateWatch::bothFilesExist() const {
    const QString keyPath = expandingTilde(cPrivateKeyFile, fParts.files.homeDirectory());
    return fParts.files.fileExistsAtPath(keyPath) &&
           fParts.files.fileExistsAtPath(QString(keyPath + u".pub"));
}

QString KeyStateWatch::target() const {
    const auto account = remoteAccount(fParts.defaults);
    return account ? account->destination() : QString();
}

} // namespace kelvo
