// PlistDefaults: the settings store on disk, an XML property list.
#pragma once

#include "adapters/settings/defaults_disk.h"
#include "adapters/settings/defaults_values.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/defaults_observers.h"

#include <memory>

namespace kelvo {

/// The rules of the file:
/// - Changes are gathered for at most 100 ms and then replace the whole file at once, on a thread
/// of
///   the store's own; a crash leaves the old file or the new one. Folders are made with mode 0700,
///   the file with 0600; a symbolic link in its place is replaced by a file.
/// - Programs that write it take turns by a lock on `<path>.lock`. Each lays only its own unwritten
///   changes over what it finds: of two changes of one key the later written one holds. Every key
///   that thereby changes here is told on the main queue.
/// - Run-time state is this program's alone: it is read at the start, never again. What others
/// store
///   of it later is not taken over, and gives way to what was set here with the next change.
/// - A file that is deleted while we run does not change the values here; all of them are written
///   with the next change.
/// - A file that stays unreadable for a second (empty, cut, nonsense, no dictionary, over 16 MiB)
/// is
///   kept as `<path>.corrupt-<UTC time>` and said in the log. At start the store is empty then;
///   later all values in memory are written anew. One that can be neither read nor moved aside is
///   never overwritten.
/// - While saving fails the values hold in memory; it is tried again after 1 s, 2 s … 60 s, at
///   `synchronize` and at the end. The log says it once for each reason, and when it works again.
/// - Characters that XML cannot carry reach the file as U+FFFD.
class PlistDefaults final : public UserDefaults {
public:
    /// Reads the file, at once unless it is unreadable. `isState` tells the keys of run-time state;
    /// it may be called on any thread. `mainQueue` and `console` must outlive this
    /// object; work of it that still waits on the queue afterwards does nothing.
    PlistDefaults(const QString& path, KeyTest isState, DispatchQueue& mainQueue, Console& console);

    /// Writes what is not written yet.
    ~PlistDefaults() override = default;

    QVariant object(QStringView key) const override;

    /// Never waits for the disk.
    void setObject(QStringView key, const QVariant& value) override;
    void removeObject(QStringView key) override;

    void registerDefaults(const QVariantMap& defaults) override;
    void synchronize() override;
    Subscription observe(QStringView key, DefaultsObserver observer) override;

private:
    struct Shared {
        DefaultsValues values;
        DefaultsObservers observers;

        void tell(const QString& key) const;
    };
    void change(QStringView key, const QVariant& value);

    std::shared_ptr<Shared> fShared; ///< shared with what waits on the main queue
    DefaultsDisk fDisk;
};

} // namespace kelvo
