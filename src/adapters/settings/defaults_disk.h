// DefaultsDisk: keeps the settings in memory and the settings file in agreement.
#pragma once

#include "adapters/settings/defaults_values.h"
#include "adapters/settings/file_watch.h"
#include "adapters/settings/plist_file.h"
#include "ports/console.h"
#include "ports/user_defaults.h"

#include <QStringList>

#include <chrono>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>

namespace kelvo {

/// What happens to a settings file that was read whole and is no list of settings.
enum class DamagedFile { IsSetAside, IsLeftAlone };

/// A thread of its own writes what has changed in memory and takes over what another program has
/// written; it sleeps while nothing happens. See plist_defaults.h for the rules of the file.
class DefaultsDisk {
public:
    /// Reads the file into `values`; what it holds later of the keys of `isState` is not taken
    /// over. `announce` is called with the keys that another program has
    /// changed, and once the file could be read after all, with those that it brought; on any
    /// thread and with no lock held. All references must outlive this object.
    DefaultsDisk(const QString& path, DamagedFile damaged, KeyTest isState, DefaultsValues& values,
                 Console& console, std::function<void(const QStringList&)> announce);
    ~DefaultsDisk();

    /// Says what a change of `values` came to; one after the other, in their order. Any thread;
    /// returns at once.
    void hear(DefaultsValues::Haste haste) noexcept;

    /// Writes what has changed so far, on this thread, whatever the writing thread does; any
    /// thread. Returns when it is on disk, or the failure is logged.
    void flush();

    /// Whether the file was read, or was found not to be there, at any time so far. Any thread;
    /// waits for the disk.
    bool known();

    /// Why the values are not known or not saved, as a sentence without its full stop; empty while
    /// all is well. Any thread; waits for the disk.
    QString trouble();

    /// What was last found out of the file. Any thread; never waits for the disk.
    SettingsStanding standing() const;

private:
    using Clock = std::chrono::steady_clock;
    using Deadline = std::optional<Clock::time_point>;

    /// Why the file gives no values now; `damaged` means that it never will.
    struct ReadFault {
        QString text;
        bool damaged = false;

        explicit operator bool() const { return !text.isEmpty(); }
    };

    void run(const std::stop_token& stop);
    void load();
    void watchFolder();
    bool somethingToWrite() const;
    Deadline deadline(Deadline before, bool rang = false) const;
    QStringList takeOver();
    QStringList writeOut();
    QStringList exchange(std::chrono::milliseconds patience);
    QString exchangeLocked(std::chrono::milliseconds patience);
    ReadFault readBase(std::chrono::milliseconds patience);
    QString moveAside(const QString& fault);
    QStringList adoptBase();
    void settle(const QString& failure);
    void remember();
    QString sentence() const;

    const DamagedFile fDamaged;
    std::mutex fMutex; ///< for everything below; the watch's wait and wake need none
    DefaultsValues& fValues;
    const KeyTest fIsState;
    Console& fConsole;
    std::function<void(const QStringList&)> fAnnounce;
    PlistFile fFile;
    FileWatch fWatch;
    bool fWatchRefused = false;
    bool fKnown = false;              ///< the values in memory are not only what is set here
    std::optional<QByteArray> fBytes; ///< the file as last read or written; nothing: no file
    QVariantMap fBase;                ///< the values in fBytes
    DefaultsChanges fUnwritten;       ///< taken from fValues, but not on disk
    DefaultsChanges fOwnState;        ///< the state that was ever taken from fValues
    QString fTrouble;                 ///< why reading or saving fails; empty while it works
    std::chrono::seconds fRetryDelay{};
    mutable std::mutex fStandingMutex; ///< for fStanding only; taken last
    SettingsStanding fStanding;
    Clock::time_point fRetryAt;
    Deadline fDue; ///< of what waits to be written
    std::jthread fThread;
};

} // namespace kelvo
