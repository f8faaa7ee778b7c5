// What a copy is doing and how it is, as one JSON object and as lines for people.
#pragma once

#include "ui/work_watch.h"

#include <QDateTime>
#include <QJsonObject>
#include <QString>

#include <optional>

namespace kelvo {

/// What a copy tells of itself beside its work.
struct CopyFacts {
    QString version;
    qint64 process = 0;
    QDateTime since; ///< UTC
    bool window = false;
};

/// The answer "status". Names and sentences are English, whatever the language of the window.
QJsonObject statusOf(const WorkFacts& work, const CopyFacts& copy, const QDateTime& now);

/// The same where no copy runs, from the record alone.
QJsonObject statusWithoutCopy(const Standing& standing);

/// How far the pass is: the member "pass" of a status, which is null without one.
QJsonValue passOf(const std::optional<PassUnderWay>& pass);

/// `status`, an object from anywhere, as lines for people, fit for a terminal. What is missing or
/// of the wrong type is left out.
QString statusText(const QJsonObject& status, const QDateTime& now);

/// "resting", "waiting for what is missing"; a state of a later version as it is named there.
QString stateText(const QJsonObject& status);

/// The trouble with its next step, or that there is none; empty while nothing is known.
QString healthText(const QJsonObject& status);

/// "Movies, 48 %, file 7 of 15, …"; empty while nothing is known of `pass`.
QString progressText(const QJsonObject& pass);

inline constexpr int cExitInTrouble = 1;
inline constexpr int cExitNoneRuns = 4;

/// What --status ends with. `maxAge` (in seconds) is how old the last success may be.
int exitCodeOf(const QJsonObject& status, std::optional<qint64> maxAge, const QDateTime& now);

} // namespace kelvo
