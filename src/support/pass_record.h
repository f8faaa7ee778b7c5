// PassRecord: what one pass did, command by command, as it is kept and shown.
#pragma once

#include "support/host_verdict.h"

#include <QByteArray>
#include <QDateTime>
#include <QString>

#include <optional>
#include <vector>

namespace kelvo {

enum class PassKind { Plain, Remote };

/// Why a pass went the way it did. The numbers are stored: a new cause gets a new one.
enum class PassCause {
    Well = 0,
    HostNotFound = 1,
    HostAway = 2,
    RemoteLoginOff = 3,
    HostKeyUnknown = 4,
    HostKeyChanged = 5,
    KeyRefused = 6,
    KeyMissing = 7,
    WrongUser = 8,
    RsyncMissingThere = 9,
    RsyncTooOldThere = 10,
    SourceMissing = 11,
    SourceNotPermitted = 12,
    DiskFull = 13,
    DestinationUnusable = 14, ///< missing, or not writable
    FilesVanished = 15,
    FilesNotTaken = 16,
    CutOff = 17, ///< the transfer began and then stood still or lost its connection
    ToolMissingHere = 18,
    CommandNotUnderstood = 19, ///< rsync here refused the command line
    SettingsMissing = 20,
    Interrupted = 21, ///< the program ended the commands
    LoginTalks = 22,  ///< the host prints text at login, which hides its answer or rsync's
    Unknown = 23,
    SettingsRefused = 24,     ///< a text in the settings cannot stand in a command
    Cancelled = 25,           ///< a person ended the pass; not trouble
    AfterFailed = 26,         ///< all went well, but the command that is run after arrivals failed
    DestinationTaken = 27,    ///< another program is pulling into the folder
    MovieCommandRefused = 28, ///< by an rsync too old for it; the pull before it went well
};

inline constexpr PassCause cLastPassCause = PassCause::MovieCommandRefused;

/// A long text's beginning and end.
struct CapturedText {
    QString head;       ///< the whole text when nothing is left out
    QString tail;       ///< empty when nothing is left out
    qint64 leftOut = 0; ///< bytes between the two, as UTF-8
};

/// How it is known what a command brought.
enum class TransferSource {
    Unknown = 0,    ///< the command did not say
    Statistics = 1, ///< rsync's own figures
    Lines = 2,      ///< names that rsync printed were counted, or the files that arrived
};

struct Transfer {
    TransferSource source = TransferSource::Unknown;
    std::optional<qint64> files;
    std::optional<qint64> bytes;
};

/// A file that a pass has brought.
struct Arrival {
    QByteArray path;   ///< the whole path here, as the file system spells it
    qint64 size = 0;   ///< in bytes
    QDateTime arrived; ///< UTC

    bool operator==(const Arrival&) const = default;
};

enum class CommandRole { HostCheck = 0, Pull = 1, AfterArrivals = 2 };

struct CommandRecord {
    CommandRole role = CommandRole::Pull;
    QString command;
    /// As a shell reports it: 124 for a command whose time was up, 126 for one that could not be
    /// started, 128 + n for an end by signal n. Nothing when the command was given up at the quit.
    std::optional<int> exitStatus;
    double seconds = 0;
    CapturedText text; ///< standard output, then what else the command wrote to the error stream
    Transfer transfer;
};

struct PassRecord {
    qint64 id = 0;   ///< given by the store; 0 before
    QDateTime began; ///< UTC
    double seconds = 0;
    PassKind kind = PassKind::Plain;
    HostVerdict verdict; ///< of the host check; nobody is asked for a plain pass
    PassCause cause = PassCause::Unknown;
    /// The last line of the command that decided the cause, or what was refused; may be empty.
    QString lastLine;
    /// The sum of what the commands said, or of what arrived where that is more; `source` is
    /// Unknown when neither is known.
    Transfer transfer;
    std::vector<CommandRecord> commands;
    std::vector<Arrival> arrivals; ///< in the order in which they came
};

/// Whether the pass tells nothing of how things stand: it was ended from outside, or the next one
/// brings what this one could not.
inline bool saysNothing(PassCause cause) {
    return cause == PassCause::Interrupted || cause == PassCause::Cancelled ||
           cause == PassCause::FilesVanished;
}

/// Whether something needs a person.
inline bool isTrouble(PassCause cause) {
    return cause != PassCause::Well && !saysNothing(cause);
}

/// Whether the pass ended at the check of its host, before any transfer.
inline bool endedAtTheCheck(const PassRecord& pass) {
    return pass.kind == PassKind::Remote && pass.verdict != HostVerdict::Valid;
}

} // namespace kelvo
