#include "passes/pass_cause.h"

#include "passes/captured_text.h"
#include "passes/movie_pull.h"

#include <QStringList>
#include <QStringView>

#include <algorithm>
#include <array>
#include <optional>
#include <span>

namespace kelvo {
namespace {

using enum PassCause;

constexpr qsizetype cLongestLastLine = 300;

enum RsyncCode {
    SyntaxOrUsage = 1,
    Protocol = 2,
    FileSelection = 3,
    NotSupported = 4,
    FileIo = 11,
    Stream = 12,
    GotSignal = 20,
    Partial = 23,
    Vanished = 24,
    Timeout = 30,
    ConnectTimeout = 35,
};
enum ShellStatus {
    TimeIsUp = 124,
    CannotExecute = 126,
    NotFound = 127,
    Signalled = 128,
    ClosedPipe = 141,
    SshFailed = 255
};

/// A line matches when it begins with the one and holds the other, whatever the case. Without a
/// beginning it is any line but rsync's own.
struct LineRule {
    QStringView begin;
    QStringView part;
    PassCause cause;
};

/// What ssh says. The first rule with a matching line decides: the weightier things stand first.
constexpr auto cSshRules = std::to_array<LineRule>({
    {u"ssh: could not resolve hostname", u"", HostNotFound},
    {u"@", u"remote host identification has changed", HostKeyChanged},
    {u"host key verification failed", u"", HostKeyUnknown},
    {u"ssh: connect to host", u"connection refused", RemoteLoginOff},
    {u"ssh: connect to host", u"", HostAway},
    {u"connection timed out during banner exchange", u"", HostAway},
    {u"connection to ", u"timed out", HostAway},
    {u"warning: identity file", u"not accessible", KeyMissing},
    {u"no such identity", u"", KeyMissing},
    {u"", u": permission denied (", KeyRefused},
    {u"permission denied (", u"", KeyRefused},
    {u"", u"too many authentication failures", KeyRefused},
});

/// What rsync and the shells say, on this machine or over there.
constexpr auto cPullRules = std::to_array<LineRule>({
    {u"rsync error: remote command not found", u"", RsyncMissingThere},
    {u"rsync: on remote machine", u"unknown option", RsyncTooOldThere},
    {u"rsync error:", u"(code 1) at", CommandNotUnderstood},
    {u"rsync error: protocol incompatibility", u"[sender", RsyncTooOldThere},
    {u"protocol version mismatch -- is your shell clean?", u"", LoginTalks},
    {u"rsync error: protocol incompatibility", u"", RsyncTooOldThere},
    {u"rsync: ", u"no space left on device", DiskFull},
    {u"rsync: ", u"disk quota exceeded", DiskFull},
    {u"rsync: [sender] change_dir", u"no such file", SourceMissing},
    {u"rsync: change_dir", u"no such file", SourceMissing},
    {u"rsync: [sender] change_dir", u"", SourceNotPermitted},
    {u"rsync: change_dir", u"", SourceNotPermitted},
    {u"rsync: [sender] opendir", u"permi", SourceNotPermitted},
    {u"rsync: opendir", u"permi", SourceNotPermitted},
    {u"rsync: [receiver]", u"read-only file system", DestinationUnusable},
    {u"rsync: [receiver]", u"permission denied", DestinationUnusable},
    {u"rsync: [receiver]", u"operation not permitted", DestinationUnusable},
    {u"rsync: [receiver]", u"mkdir", DestinationUnusable},
    {u"rsync: [receiver]", u"change_dir", DestinationUnusable},
    {u"rsync: [generator]", u"read-only file system", DestinationUnusable},
    {u"rsync: [generator]", u"permission denied", DestinationUnusable},
    {u"rsync: [generator]", u"operation not permitted", DestinationUnusable},
    {u"error: destination must be a directory", u"", DestinationUnusable},
});

std::optional<PassCause> causeByLine(const QStringList& lines, std::span<const LineRule> rules) {
    for (const LineRule& rule : rules) {
        const bool said = std::ranges::any_of(lines, [&rule](const QString& line) {
            const bool begins = rule.begin.isEmpty()
                                    ? !line.startsWith(u"rsync: ")
                                    : line.startsWith(rule.begin, Qt::CaseInsensitive);
            return begins && line.contains(rule.part, Qt::CaseInsensitive);
        });
        if (said)
            return rule.cause;
    }
    return std::nullopt;
}

/// A connection that gave way after the remote rsync had begun to talk.
bool brokeOff(const QStringList& lines) {
    return std::ranges::any_of(lines, [](const QString& line) {
        return line.startsWith(u"rsync: connection unexpectedly closed") &&
               !line.contains(u"(0 bytes received so far)");
    });
}

PassCause causeByStatus(int status) {
    switch (status) {
    case SyntaxOrUsage:
        return CommandNotUnderstood;
    case Protocol:
    case NotSupported:
        return RsyncTooOldThere;
    case FileSelection:
        return DestinationUnusable;
    case GotSignal:
        return Interrupted;
    case Partial:
        return FilesNotTaken;
    case Vanished:
        return FilesVanished;
    case Timeout:
    case ConnectTimeout:
        return CutOff;
    case CannotExecute:
        return CommandNotUnderstood;
    case NotFound:
        return ToolMissingHere;
    default:
        return Unknown;
    }
}

PassCause pullCause(int status, const QStringList& lines) {
    if (status == 0)
        return Well;
    // The remote rsync's own complaint about an option is signed with its version over there.
    const bool refusedThere = std::ranges::any_of(lines, [](const QString& line) {
        return line.startsWith(u"rsync error:") && line.contains(u"(code 1)") &&
               line.contains(u"[server=");
    });
    if (refusedThere)
        return RsyncTooOldThere;
    if (status == Vanished)
        return FilesVanished;
    if (const auto cause = causeByLine(lines, cPullRules))
        return *cause;
    if (brokeOff(lines))
        return CutOff;
    if (const auto cause = causeByLine(lines, cSshRules))
        return *cause;
    return causeByStatus(status);
}

/// A host that takes the connection and then keeps silent was falling asleep, whatever ssh had said
/// before; one that was ended for its many words talks.
PassCause checkCause(int status, const QStringList& lines) {
    if (status == TimeIsUp)
        return HostAway;
    if (status == ClosedPipe)
        return LoginTalks;
    if (const auto cause = causeByLine(lines, cSshRules))
        return *cause;
    if (status == NotFound)
        return ToolMissingHere;
    if (status != 0 || lines.isEmpty())
        return Unknown;
    return lines.size() == 1 ? WrongUser : LoginTalks;
}

/// Cut between characters: half a pair is no text that can be shown or stored.
QString shortened(const QString& line) {
    const bool splitsPair = line.size() > cLongestLastLine &&
                            line[cLongestLastLine - 1].isHighSurrogate() &&
                            line[cLongestLastLine].isLowSurrogate();
    return line.left(splitsPair ? cLongestLastLine - 1 : cLongestLastLine);
}

} // namespace

NamedCause causeOf(const CommandRecord& command) {
    const QStringList lines = linesOf(command.text);
    const QString last = lines.isEmpty() ? QString() : shortened(lines.constLast());
    if (!command.exitStatus)
        return {Interrupted, last};
    if (command.role == CommandRole::HostCheck)
        return {checkCause(*command.exitStatus, lines), last};
    PassCause cause = Well;
    if (command.role == CommandRole::Pull)
        cause = pullCause(*command.exitStatus, lines);
    else if (*command.exitStatus != 0)
        cause = AfterFailed;
    return {cause, cause == Well ? QString() : last};
}

NamedCause causeOf(const PassRecord& pass) {
    const bool checkFailed = endedAtTheCheck(pass);
    const CommandRecord* pulled = nullptr;
    for (const CommandRecord& command : pass.commands) {
        if (command.role == CommandRole::HostCheck) {
            if (checkFailed)
                return causeOf(command);
            continue;
        }
        NamedCause named = causeOf(command);
        // Behind a pull that went well it is the built-in command that was refused.
        if (pulled && named.cause == RsyncTooOldThere) {
            if (bringsEveryMovie(pulled->command, command.command))
                continue;
            named.cause = MovieCommandRefused;
        }
        if (named.cause != Well)
            return named;
        pulled = &command;
    }
    return {pulled ? Well : SettingsMissing, {}};
}

} // namespace kelvo
