#include "adapters/settings/defaults_disk.h"

#include "adapters/settings/plist_codec.h"
#include "support/stored_value.h"
#include "support/system_error_text.h"

#include <algorithm>
#include <cerrno>
#include <utility>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr std::chrono::milliseconds cGatherTime = 100ms;
/// The same for what is mostly gone before: longer than a small pass, and its end, take.
constexpr std::chrono::milliseconds cBriefTime = 3000ms;
/// How long a file that is no list may still be one that somebody is writing.
constexpr auto cUnreadablePatience = 1000ms;
/// The same for one that keeps changing.
constexpr auto cChangingPatience = 2500ms;
constexpr auto cReadPause = 50ms;
constexpr auto cLockPatience = 3000ms;
constexpr std::chrono::seconds cFirstRetry = 1s;
constexpr std::chrono::seconds cLastRetry = 60s;

} // namespace

DefaultsDisk::DefaultsDisk(const QString& path, DamagedFile damaged, KeyTest isState,
                           DefaultsValues& values, Console& console,
                           std::function<void(const QStringList&)> announce)
    : fDamaged(damaged), fValues(values), fIsState(std::move(isState)), fConsole(console),
      fAnnounce(std::move(announce)), fFile(path), fWatch(fFile.folder(), fFile.name()) {
    load();
    fThread = std::jthread([this](const std::stop_token& stop) { run(stop); });
}

DefaultsDisk::~DefaultsDisk() {
    fThread.request_stop();
    fWatch.wake();
    fThread.join();
    if (somethingToWrite())
        flush();
}

void DefaultsDisk::hear(DefaultsValues::Haste haste) noexcept {
    using enum DefaultsValues::Haste;
    if (haste == Soon || (haste == Later && !fWatch.ringIn(cBriefTime)))
        fWatch.wake();
    else if (haste == Never)
        (void)fWatch.ringIn(0ms);
}

void DefaultsDisk::flush() {
    QStringList changed;
    bool becameKnown = false;
    {
        const std::lock_guard lock(fMutex);
        const bool wasKnown = fKnown;
        changed = writeOut();
        becameKnown = fKnown && !wasKnown;
    }
    if (becameKnown || !changed.isEmpty())
        fAnnounce(changed);
}

bool DefaultsDisk::known() {
    const std::lock_guard lock(fMutex);
    return fKnown;
}

QString DefaultsDisk::trouble() {
    const std::lock_guard lock(fMutex);
    return fTrouble.isEmpty() ? QString() : sentence();
}

SettingsStanding DefaultsDisk::standing() const {
    const std::lock_guard lock(fStandingMutex);
    return fStanding;
}

void DefaultsDisk::run(const std::stop_token& stop) {
    Deadline next;
    while (!stop.stop_requested()) {
        bool touched = fWatch.wait(next);
        QStringList changed;
        bool becameKnown = false;
        {
            const std::lock_guard lock(fMutex);
            const bool wasKnown = fKnown;
            if (!fWatch.watching()) {
                watchFolder();
                touched = touched || fWatch.watching();
            }
            if (touched)
                changed = takeOver();
            fDue = deadline(fDue, fWatch.rang());
            next = fTrouble.isEmpty() ? fDue : fRetryAt;
            if (next && Clock::now() >= *next) {
                changed += writeOut();
                fDue = deadline(fDue);
                next = fTrouble.isEmpty() ? fDue : fRetryAt;
            }
            becameKnown = fKnown && !wasKnown;
        }
        if (becameKnown || !changed.isEmpty())
            fAnnounce(changed);
    }
}

void DefaultsDisk::load() {
    const std::lock_guard guard(fMutex);
    // Who leaves a damaged file alone may only want to read: the folder comes with the first
    // change.
    QString lockFailure = fDamaged == DamagedFile::IsSetAside ? fFile.makeFolder() : QString();
    FileLock lock;
    if (lockFailure.isEmpty()) {
        // Before the first reading, so that no change after it goes unseen.
        watchFolder();
        std::tie(lock, lockFailure) = fFile.lock(cLockPatience);
    }
    if (lock)
        fFile.removeLeftovers();
    const ReadFault fault = readBase(cUnreadablePatience);
    QString failure = fault.text;
    if (fault.damaged && fDamaged == DamagedFile::IsSetAside)
        failure = lockFailure.isEmpty() ? moveAside(fault.text) : lockFailure;
    if (failure.isEmpty())
        adoptBase();
    else
        settle(failure);
}

void DefaultsDisk::watchFolder() {
    const int error = fWatch.arm();
    if (error == 0 || error == ENOENT || error == ENOTDIR || fWatchRefused)
        return;
    fWatchRefused = true;
    fConsole.log(QStringLiteral("Changes to %1 by other programs are not noticed at once: %2")
                     .arg(fFile.path(), systemErrorText(error)));
}

bool DefaultsDisk::somethingToWrite() const {
    return !fUnwritten.isEmpty() || fValues.hasChanges();
}

/// Of what waits to be written, where some of it may have waited until `before`. For brief changes
/// alone the watch rings.
DefaultsDisk::Deadline DefaultsDisk::deadline(Deadline before, bool rang) const {
    if (!somethingToWrite())
        return {};
    const auto now = Clock::now();
    if (rang)
        return now;
    const bool pressed = fValues.isPressed();
    if (!pressed && fUnwritten.isEmpty() && fWatch.canRing())
        return before;
    const auto due = now + (pressed ? cGatherTime : cBriefTime);
    return before ? std::min(*before, due) : due;
}

/// Another program may have changed the file: reads it into memory.
QStringList DefaultsDisk::takeOver() {
    const ReadFault fault = readBase(cUnreadablePatience);
    if (fault.damaged && fDamaged == DamagedFile::IsSetAside)
        return exchange(0ms);
    if (fault) {
        settle(fault.text);
        return {};
    }
    if (!fKnown)
        settle({});
    return adoptBase();
}

/// Nothing is written before it is known what would be written over.
QStringList DefaultsDisk::writeOut() {
    fDue.reset();
    QStringList changed;
    if (!fKnown)
        changed = takeOver();
    const DefaultsChanges taken = fValues.takeChanges();
    fUnwritten.insert(taken);
    for (auto it = taken.cbegin(); it != taken.cend(); ++it) {
        if (fIsState(it.key()))
            fOwnState.insert(it.key(), it.value());
    }
    if (fKnown && (!fUnwritten.isEmpty() || !fTrouble.isEmpty()))
        changed += exchange(cUnreadablePatience);
    return changed;
}

/// Reads what others wrote, lays what is ours and unwritten over it, writes it.
QStringList DefaultsDisk::exchange(std::chrono::milliseconds patience) {
    const QString failure = exchangeLocked(patience);
    settle(failure);
    return fKnown || failure.isEmpty() ? adoptBase() : QStringList();
}

QString DefaultsDisk::exchangeLocked(std::chrono::milliseconds patience) {
    if (QString failure = fFile.makeFolder(); !failure.isEmpty())
        return failure;
    const auto [lock, lockFailure] = fFile.lock(cLockPatience);
    if (!lockFailure.isEmpty())
        return lockFailure;
    if (const ReadFault fault = readBase(patience)) {
        if (!fault.damaged || fDamaged == DamagedFile::IsLeftAlone)
            return fault.text;
        if (QString failure = moveAside(fault.text); !failure.isEmpty())
            return failure;
    }
    // Without a file everything in memory goes into the new one.
    QVariantMap next = fBytes ? fBase : fValues.userValues();
    applyChanges(next, fOwnState);
    applyChanges(next, fUnwritten);
    if (!sameStoredValue(next, fBase)) {
        const QByteArray bytes = encodePlist(next);
        if (QString failure = fFile.replace(bytes); !failure.isEmpty())
            return failure;
        fBytes = bytes;
        fBase = std::move(next);
    }
    fUnwritten.clear();
    return {};
}

/// Brings fBytes and fBase up to date. A file counts as damaged only after it has stayed so for
/// `patience`, for some programs write it in place.
DefaultsDisk::ReadFault DefaultsDisk::readBase(std::chrono::milliseconds patience) {
    const auto start = Clock::now();
    auto changedAt = start;
    std::optional<QByteArray> unreadable;
    for (;;) {
        PlistFile::Contents file = fFile.read();
        if (file.state == PlistFile::Contents::State::Unusable)
            return {file.fault};
        if (file.state == PlistFile::Contents::State::Missing) {
            fBytes.reset();
            fBase.clear();
            return {};
        }
        if (fBytes == file.bytes)
            return {};
        DecodedPlist decoded = decodePlist(file.bytes);
        if (decoded.root) {
            fBytes = std::move(file.bytes);
            fBase = std::move(*decoded.root);
            return {};
        }
        const auto now = Clock::now();
        if (unreadable != file.bytes)
            changedAt = now;
        unreadable = std::move(file.bytes);
        if (now - changedAt >= patience || now - start >= cChangingPatience)
            return {decoded.fault, true};
        std::this_thread::sleep_for(cReadPause);
    }
}

/// Keeps a damaged file under another name; returns why that failed. What is in memory is to be
/// written anew then.
QString DefaultsDisk::moveAside(const QString& fault) {
    const auto [aside, failure] = fFile.moveAside(QDateTime::currentDateTimeUtc());
    if (!failure.isEmpty())
        return QStringLiteral("%1; it cannot be moved aside: %2").arg(fault, failure);
    fConsole.log(QStringLiteral("The settings file %1 cannot be read: %2. It is kept as %3")
                     .arg(fFile.path(), fault, aside));
    {
        const std::lock_guard lock(fStandingMutex);
        fStanding.aside = aside;
    }
    fBytes.reset();
    fBase.clear();
    fUnwritten = fValues.userValues();
    return {};
}

/// Takes the file's values into memory, ours that are not on disk laid over them. Without a file
/// memory stays as it is.
QStringList DefaultsDisk::adoptBase() {
    // State is this program's own from the first reading on.
    const KeyTest kept = std::exchange(fKnown, true) ? fIsState : KeyTest();
    if (!fBytes)
        return {};
    QVariantMap known = fBase;
    applyChanges(known, fUnwritten);
    return fValues.adopt(known, kept);
}

/// Says once that reading or saving fails, with a line for each new reason, and once that it works
/// again.
void DefaultsDisk::settle(const QString& failure) {
    if (failure.isEmpty()) {
        if (!fTrouble.isEmpty())
            fConsole.log((fKnown ? QStringLiteral("Settings are saved to %1 again")
                                 : QStringLiteral("The settings in %1 are known now"))
                             .arg(fFile.path()));
        fTrouble.clear();
        remember();
        fRetryDelay = {};
        return;
    }
    if (failure != std::exchange(fTrouble, failure))
        fConsole.log(sentence() +
                     (fKnown ? u". They hold in memory and will be saved when that is possible"
                             : u". Until they are, no pass begins and nothing is written there"));
    remember();
    fRetryDelay = fRetryDelay == 0s ? cFirstRetry : std::min(fRetryDelay * 2, cLastRetry);
    fRetryAt = Clock::now() + fRetryDelay;
}

void DefaultsDisk::remember() {
    const std::lock_guard lock(fStandingMutex);
    fStanding.fault = fTrouble.isEmpty() ? QString() : sentence();
}

QString DefaultsDisk::sentence() const {
    return (fKnown ? QStringLiteral("Settings cannot be saved to %1: %2")
                   : QStringLiteral("The settings in %1 are not known: %2"))
        .arg(fFile.path(), fTrouble);
}

} // namespace kelvo
