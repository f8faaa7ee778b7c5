// The record of passes for scripts.
#pragma once

#include "app/commands/settings_commands.h"
#include "ports/pass_store.h"
#include "support/pass_record.h"
#include "support/profile.h"

#include <QDateTime>

class QJsonObject;

namespace kelvo {

inline constexpr int cExitRecordUnknown = 6;

struct PassesRequest {
    bool json = false;
    std::optional<QDateTime> since = {}; ///< passes that began then or later; all when empty
};

/// The span that `text` names, in seconds: "30min", "2h", "3d". Nothing when it is none of these.
std::optional<qint64> spanFrom(const QString& text);

/// The moment that `text` names: a date or date-time as ISO has it, by this machine's clock unless
/// it names a zone, or a span before `now`. Nothing when it is none of these.
std::optional<QDateTime> momentFrom(const QString& text, const QDateTime& now);

/// `moment` as ISO has it, by this machine's clock and with its distance from UTC.
QString localTimeText(const QDateTime& moment);

/// What every JSON answer says of a pass, its arrivals included.
QJsonObject jsonOf(const PassRecord& pass);

/// "All is well. (3 files, 40.0 kB, 4 s)", fit for a terminal.
QString outcomeLine(const PassRecord& pass);

/// The path of an arrival on one line, fit for a terminal.
QString pathLine(const Arrival& arrival);

/// `passes` in the order given: a line each, or a JSON object on a line of its own.
QString passesText(const std::vector<PassRecord>& passes, bool json);

/// What the profile's record says of earlier passes, from the file itself; of a record of an older
/// layout the passes are added up. Its fault is why it cannot be read. Any thread.
Standing recordedStanding(const Profile& profile);

/// Prints the profile's record, newest last, from the file itself; nothing is written, and no copy
/// needs to run. Needs an application object.
CommandAnswer runPassesCommand(const Profile& profile, const PassesRequest& request);

} // namespace kelvo
