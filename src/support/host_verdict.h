// HostVerdict: what the check of the remote host came to.
#pragma once

#include <QString>

namespace kelvo {

class HostVerdict {
public:
    enum Kind {
        NotAsked, ///< user or host is not set
        Valid,
        CheckRemoteHost,
        CheckUsername,
        CheckSshKeys,
        UnknownError,
        OwnWords, ///< the host's or ssh's own answer, while the key file is missing
    };

    HostVerdict(Kind kind = NotAsked) : fKind(kind) {} // NOLINT: a kind is a verdict

    /// The verdict that reads `text`; any other text is somebody's own words.
    static HostVerdict fromText(const QString& text);

    Kind kind() const { return fKind; }

    /// How the verdict is printed and stored; empty when nobody was asked.
    QString text() const;

    bool operator==(const HostVerdict&) const = default;

private:
    Kind fKind;
    QString fOwnWords;
};

} // namespace kelvo
