// Asks the running copy, or tells it what to do, from a terminal.
#pragma once

#include "app/commands/copy_request.h"
#include "app/commands/copy_status.h"
#include "support/profile.h"

#include <QJsonObject>

namespace kelvo {

/// What the terminal is told of an answer; nothing more is to come where `ends`.
struct Told {
    QString output = {}; ///< whole lines, or nothing
    QString errors = {};
    int exitCode = 0;
    bool ends = true;
};

/// Turns what the copy says into what a person or a script reads.
class CopyAnswers {
public:
    explicit CopyAnswers(const CopyRequest& request) : fRequest(request) {}

    /// The next line that the copy has said, from which anything may come.
    Told heard(const QByteArray& line, const QDateTime& now);

    /// The copy has hung up before its answer ended.
    Told hungUp() const;

    /// No copy runs. `standing` is what the record says, for --status; its fault is why it cannot
    /// be read.
    Told noneRuns(const Standing& standing, const QDateTime& now) const;

private:
    Told status(const QJsonObject& answer, const QDateTime& now) const;
    Told event(const QJsonObject& answer, const QDateTime& now);
    Told followed(const QString& kind, const QJsonObject& answer, const QDateTime& now);

    const CopyRequest fRequest;
    bool fHeard = false; ///< the copy has answered
    QString fState;
    QString fHealth;
};

/// Prints what is told while a copy is followed; the program's exit code. Needs an application
/// object.
int runCopyCommand(const Profile& profile, const CopyRequest& request);

} // namespace kelvo
