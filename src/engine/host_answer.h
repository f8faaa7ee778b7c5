// HostAnswer: what came of asking the Mac over ssh, named as passes name their trouble.
#pragma once

#include "ports/command_runner.h"
#include "support/host_verdict.h"
#include "support/pass_record.h"

#include <QString>

#include <optional>

namespace kelvo {

struct HostAnswer {
    QString target;                       ///< who was asked: user@host, as stored
    PassCause cause = PassCause::Unknown; ///< Well: the program was let in
    QString lastLine = {};                ///< what was said last, or why nobody was asked
    bool saidSuccess = false;             ///< the connection test has shown its "SUCCESS..."

    bool operator==(const HostAnswer&) const = default;
};

/// What the check of a host came to, by the same rules as the record of a pass. Nothing when nobody
/// was asked, or the question was given up.
std::optional<HostAnswer> answerOfCheck(const QString& target, const HostVerdict& verdict,
                                        const CommandResult& result);

/// The same of the connection test, which goes well only when the Mac says its one word and nothing
/// else.
std::optional<HostAnswer> answerOfTest(const QString& target, const CommandResult& result);

/// What the test's answer says of the key in the words of a check; nothing when it says nothing.
std::optional<HostVerdict> verdictOnTheKey(const HostAnswer& answer);

} // namespace kelvo
