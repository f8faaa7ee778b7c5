#include "adapters/settings/defaults_disk.h"

#include "adapters/settings/plist_codec.h"
#include "support/stored_value.h"
#include "support/system_error_text.h"

#include <algorithm>
#include <cerrno>

namespace kelvo {
namespace {

using namespace std::chrono_literals;

constexpr auto cGatherTime = 100ms;
/// How long a file that cannot be read may still be one that somebody is writing.
constexpr auto cUnreadablePatience = 1000ms;
/// The same for one that keeps changing.
constexpr auto cChangingPatience = 2500ms;
constexpr auto cReadPause = 50ms;
constexpr auto cLockPatience = 3000ms;
constexpr std::chrono::seconds cFirstRetry = 1s;
constexpr std::chrono::seconds cLastRetry = 60s;

} // namespace

DefaultsDisk::DefaultsDisk(const QString& path, DefaultsValues& values, KeyTest isState,
                           Console& console, std::function<void(const QStringList&)> announce)
    : fValues(values), fIsState(std::move(isState)), fConsole(console),
      fAnnounce(std::move(announce)), fFile(path), fWatch(fFile.folder(), fFile.name()) {
    load();
    fThread = std::jthread([this](const std::stop_token& stop) { run(stop); });
}

DefaultsDisk::~DefaultsDisk() {
    fThread.request_stop();
    fWatch.wake();
    fThread.join();
    flush();
}

void DefaultsDisk::flush() {
    QStringList changed;
    {
        const std::lock_guard lock(fMutex);
        changed = writeOut();
    }
    if (!changed.isEmpty())
        fAnnounce(changed);
}

void DefaultsDisk::run(const std::stop_token& stop) {
    Deadline firstChange;
    Deadline next;
    while (!stop.stop_requested()) {
        bool touched = fWatch.wait(next);
        QStringList changed;
        {
            const std::lock_guard lock(fMutex);
            if (!fWatch.watching()) {
                watchFolder();
                touched = touched || fWatch.watching();
            }
            if (touched)
                changed = takeOver();
            if (!somethingToWrite())
                firstChange.reset();
            else if (!firstChange)
                firstChange = Clock::now();
            next = deadline(firstChange);
            if (next && Clock::now() >= *next) {
                changed += writeOut();
                firstChange.reset();
                next = deadline(somethingToWrite() ? Clock::now() : Deadline());
            }
        }
        if (!changed.isEmpty())
            fAnnounce(changed);
    }
}

void DefaultsDisk::load() {
    const std::lock_guard guard(fMutex);
    QString lockFailure = fFile.makeFolder();
    FileLock lock;
    if (lockFailure.isEmpty()) {
        // Before the first reading, so that no change after it goes unseen.
        watchFolder();
        std::tie(lock, lockFailure) = fFile.lock(cLockPatience);
    }
    if (lock)
        fFile.removeLeftovers();
    if (const QString fault = readBase(cUnreadablePatience); !fault.isEmpty()) {
        if (lock)
            lockFailure = moveAside(fault);
        if (!lockFailure.isEmpty())
            settle(lockFailure);
    }
    adoptBase({});
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

DefaultsDisk::Deadline DefaultsDisk::deadline(Deadline firstChange) const {
    if (!firstChange)
        return {};
    return fTrouble.isEmpty() ? *firstChange + cGatherTime : fRetryAt;
}

/// Another program may have changed the file: reads it into memory.
QStringList DefaultsDisk::takeOver() {
    if (!readBase(cUnreadablePatience).isEmpty())
        return exchange(0ms);
    return adoptBase(fIsState);
}

QStringList DefaultsDisk::writeOut() {
    const DefaultsChanges taken = fValues.takeChanges();
    fUnwritten.insert(taken);
    for (auto it = taken.cbegin(); it != taken.cend(); ++it) {
        if (fIsState(it.key()))
            fOwnState.insert(it.key(), it.value());
    }
    return fUnwritten.isEmpty() ? QStringList() : exchange(cUnreadablePatience);
}

/// Reads what others wrote, lays what is ours and unwritten over it, writes it.
QStringList DefaultsDisk::exchange(std::chrono::milliseconds patience) {
    settle(exchangeLocked(patience));
    return adoptBase(fIsState);
}

QString DefaultsDisk::exchangeLocked(std::chrono::milliseconds patience) {
    if (QString failure = fFile.makeFolder(); !failure.isEmpty())
        return failure;
    const auto [lock, lockFailure] = fFile.lock(cLockPatience);
    if (!lockFailure.isEmpty())
        return lockFailure;
    if (const QString fault = readBase(patience); !fault.isEmpty()) {
        if (QString failure = moveAside(fault); !failure.isEmpty())
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

/// Brings fBytes and fBase up to date. Returns why the file cannot be read: only after it has
/// stayed so for `patience`, for some programs write it in place.
QString DefaultsDisk::readBase(std::chrono::milliseconds patience) {
    const auto start = Clock::now();
    auto changedAt = start;
    std::optional<QByteArray> unreadable;
    for (;;) {
        PlistFile::Contents file = fFile.read();
        if (file.state == PlistFile::Contents::State::Refused)
            return file.fault;
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
            return decoded.fault;
        std::this_thread::sleep_for(cReadPause);
    }
}

/// Keeps an unreadable file under another name; returns why that failed. What is in memory is to be
/// written anew then.
QString DefaultsDisk::moveAside(const QString& fault) {
    const auto [aside, failure] = fFile.moveAside(QDateTime::currentDateTimeUtc());
    if (!failure.isEmpty())
        return QStringLiteral("the file there cannot be read (%1) and not be moved aside (%2)")
            .arg(fault, failure);
    fConsole.log(QStringLiteral("The settings file %1 cannot be read: %2. It is kept as %3")
                     .arg(fFile.path(), fault, aside));
    fBytes.reset();
    fBase.clear();
    fUnwritten = fValues.userValues();
    return {};
}

/// Takes the file's values into memory, ours that are not on disk laid over them. Without a file
/// memory stays as it is.
QStringList DefaultsDisk::adoptBase(const KeyTest& kept) {
    if (!fBytes)
        return {};
    QVariantMap known = fBase;
    applyChanges(known, fUnwritten);
    return fValues.adopt(known, kept);
}

/// Says once that saving fails, with a line for each new reason, and once that it works again.
void DefaultsDisk::settle(const QString& failure) {
    if (failure.isEmpty()) {
        if (!fTrouble.isEmpty())
            fConsole.log(QStringLiteral("Settings are saved to %1 again").arg(fFile.path()));
        fTrouble.clear();
        fRetryDelay = {};
        return;
    }
    if (failure != fTrouble)
        fConsole.log(QStringLiteral("Settings cannot be saved to %1: %2. They hold in memory and "
                                    "will be saved when that is possible")
                         .arg(fFile.path(), failure));
    fTrouble = failure;
    fRetryDelay = fRetryDelay == 0s ? cFirstRetry : std::min(fRetryDelay * 2, cLastRetry);
    fRetryAt = Clock::now() + fRetryDelay;
}

} // namespace kelvo
