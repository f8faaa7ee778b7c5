// What another program can ask of the running copy, and the line that says so.
#pragma once

#include <QByteArray>
#include <QJsonObject>
#include <QString>

#include <optional>
#include <span>
#include <variant>

namespace kelvo {

enum class CopyVerb { Status, Follow, Start, Stop, SyncNow, Cancel };

struct CopyVerbName {
    CopyVerb verb;
    QStringView name; ///< in a request; on the command line behind two dashes
};

std::span<const CopyVerbName> copyVerbs();
QStringView nameOf(CopyVerb verb);

/// The version of the lines that a copy and its guests say to each other. A request and every
/// answer is a JSON object on a line of its own, with the member "protocol".
inline constexpr int cCopyProtocol = 1;

/// {"protocol":1,"request":"status"} with its line end.
QByteArray requestLine(CopyVerb verb);

/// What `line`, without its end, asks for; a sentence for people when it is no request. Any bytes.
std::variant<CopyVerb, QString> requestFrom(const QByteArray& line);

/// An answer of this kind, to be filled with what it says.
QJsonObject answerOf(QStringView event);

/// `answer` as one line with its end. Texts are cut where it would get longer than a line may be.
QByteArray answerLine(const QJsonObject& answer);

/// What a command line asks of the running copy.
struct CopyRequest {
    CopyVerb verb = CopyVerb::Status;
    bool json = false;
    std::optional<qint64> maxAge = {}; ///< in seconds; how old the last success may be
};

} // namespace kelvo
