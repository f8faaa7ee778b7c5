// PlistDefaults: the settings store on disk, an XML property list.
#pragma once

#include "adapters/settings/defaults_disk.h"
#include "adapters/settings/defaults_values.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/defaults_observers.h"

#include <atomic>
#include <memory>
#include <mutex>

namespace kelvo {

/// The rules of the file:
/// - Changes are gathered for at most 100 ms, those of brief keys for 3 s where they are alone, and
///   then replace the whole file at once, on a thread of the store's own; a crash leaves the old
///   file or the new one. Folders are made with mode 0700 (where damaged files are left alone not
///   before there is a change to write), the file with 0600; symbolic links in its place stay, and
///   the file at their end is replaced.
/// - Programs that write it take turns by a lock on `<path>.lock`. Each lays only its own unwritten
///   changes over what it finds: of two changes of one key the later written one holds. Every key
///   that thereby changes here is told on the main queue.
/// - Run-time state is this program's alone: it is read at the start, never again. What others
/// store
///   of it later is not taken over, and gives way to what was set here with the next change.
/// - A file that is deleted while we run does not change the values here; all of them are written
///   with the next change.
/// - A file that was read whole and for a second is no list (empty, cut, nonsense, no dictionary,
///   over 16 MiB) is kept as `<path>.corrupt-<UTC time>` and said in the log, unless damaged files
///   are left alone. At start the store is empty then; later all values in memory are written anew.
/// - A file that cannot be read now, that is no ordinary file, or that another user could have
///   written, is never moved nor written over, and its values are not taken. At start the values
///   are not known then; it is tried again as below.
/// - While reading or saving fails the values hold in memory; it is tried again after 1 s, 2 s …
///   60 s, at `synchronize` and at the end. The log says it once for each reason, and when it works
///   again.
/// - Characters that XML cannot carry reach the file as U+FFFD.
class PlistDefaults final : public UserDefaults {
public:
    /// Reads the file, at once unless it seems damaged. `isState` tells the keys of run-time state;
    /// it may be called on any thread. `mainQueue` and `console` must outlive this
    /// object; work of it that still waits on the queue afterwards does nothing.
    PlistDefaults(const QString& path, DamagedFile damaged, KeyTest isState,
                  DispatchQueue& mainQueue, Console& console);

    /// Writes what is not written yet.
    ~PlistDefaults() override = default;

    QVariant object(QStringView key) const override;

    /// Never waits for the disk.
    void setObject(QStringView key, const QVariant& value) override;
    void removeObject(QStringView key) override;

    void registerDefaults(const QVariantMap& defaults) override;
    void synchronize() override;
    Subscription observe(QStringView key, DefaultsObserver observer) override;
    bool areKnown() const override { return fShared->known; }
    SettingsStanding standing() const override { return fDisk.standing(); }

    /// Why the values are not known or not saved, as a sentence without its full stop; empty while
    /// all is well. Waits for the disk.
    QString trouble() { return fDisk.trouble(); }

private:
    struct Shared {
        DefaultsValues values;
        DefaultsObservers observers;
        std::atomic<bool> known = false;

        void tell(const QString& key) const;
    };
    void change(QStringView key, const QVariant& value);

    std::shared_ptr<Shared> fShared; ///< shared with what waits on the main queue
    std::mutex fChanging;            ///< the disk hears of changes in their order
    DefaultsDisk fDisk;
};

} // namespace kelvo
