#include "app/commands/ask.h"

#include "app/commands/passes.h"
#include "support/plain_line.h"

#include <QJsonDocument>

#include <utility>

namespace kelvo {
namespace {

QString jsonLine(const QJsonObject& object) {
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

Told failed(const QString& why, int exitCode = cExitInTrouble) {
    return {.errors = QString(u"kelvo-mirror: " + why + u'\n'), .exitCode = exitCode, .ends = true};
}

QString textAt(const QJsonObject& object, QStringView member) {
    return oneLine(object.value(member).toString());
}

} // namespace

Told CopyAnswers::heard(const QByteArray& line, const QDateTime& now) {
    const QJsonObject answer = QJsonDocument::fromJson(line).object();
    const int protocol = answer.value(u"protocol").toInt();
    if (protocol == 0)
        return failed(QStringLiteral("what the running copy answers cannot be understood"));
    if (protocol != cCopyProtocol)
        return failed(QStringLiteral("the running copy is of another version, and speaks protocol "
                                     "%1 instead of %2; quit it and start it again")
                          .arg(protocol)
                          .arg(cCopyProtocol));
    fHeard = true;
    return event(answer, now);
}

Told CopyAnswers::event(const QJsonObject& answer, const QDateTime& now) {
    const QString kind = answer.value(u"event").toString();
    if (kind == u"refused" || kind == u"dropped")
        return failed(textAt(answer, u"text"));
    if (fRequest.verb == CopyVerb::Follow)
        return followed(kind, answer, now);
    if (kind == u"status" && fRequest.verb == CopyVerb::Status)
        return status(answer, now);
    if (kind == u"done" && fRequest.verb != CopyVerb::Status)
        return {.output = QString(textAt(answer, u"text") + u'\n')};
    // A later version may say more.
    return {.ends = false};
}

Told CopyAnswers::status(const QJsonObject& answer, const QDateTime& now) const {
    const int exitCode = exitCodeOf(answer, fRequest.maxAge, now);
    if (fRequest.json) {
        QJsonObject object = answer;
        object.insert(QStringLiteral("exitCode"), exitCode);
        return {.output = jsonLine(object), .exitCode = exitCode};
    }
    QString errors;
    if (exitCode == cExitInTrouble && exitCodeOf(answer, {}, now) == 0)
        errors = QStringLiteral("kelvo-mirror: the last success is older than --max-age allows\n");
    return {.output = statusText(answer, now), .errors = errors, .exitCode = exitCode};
}

Told CopyAnswers::followed(const QString& kind, const QJsonObject& answer, const QDateTime& now) {
    if (fRequest.json)
        return {.output = jsonLine(answer), .ends = false};
    QString output;
    const auto add = [&](const QString& text) {
        output += localTimeText(now) + u"  " + text + u'\n';
    };
    if (kind == u"status") {
        const QString state = stateText(answer);
        if (state != std::exchange(fState, state))
            add(u"state: " + state);
        const QString health = healthText(answer);
        if (health != std::exchange(fHealth, health) && !health.isEmpty())
            add(u"health: " + health);
    } else if (kind == u"progress") {
        const QString progress = progressText(answer.value(u"pass").toObject());
        if (!progress.isEmpty())
            add(u"progress: " + progress);
    } else if (kind == u"message") {
        add(u"status " + textAt(answer, u"color") + u": " + textAt(answer, u"text"));
    } else if (kind == u"alert") {
        add(u"alert: " + textAt(answer, u"title") + u" | " + textAt(answer, u"text"));
    }
    return {.output = output, .ends = false};
}

Told CopyAnswers::hungUp() const {
    if (fRequest.verb == CopyVerb::Follow && fHeard)
        return failed(QStringLiteral("the copy has ended"), cExitNoneRuns);
    if (fHeard)
        return failed(QStringLiteral("the running copy has ended before it answered"));
    return failed(QStringLiteral("the running copy does not answer such questions; it is of an "
                                 "earlier version, or is just ending. Quit it and start it again"));
}

Told CopyAnswers::noneRuns(const Standing& standing, const QDateTime& now) const {
    if (fRequest.verb != CopyVerb::Status)
        return failed(QStringLiteral("no copy is running"), cExitNoneRuns);
    Standing read = standing;
    const QString fault = std::exchange(read.fault, {});
    Told told = status(statusWithoutCopy(read), now);
    if (!fault.isEmpty())
        told.errors =
            u"kelvo-mirror: the record of passes cannot be read: " + oneLine(fault) + u'\n';
    return told;
}

} // namespace kelvo
