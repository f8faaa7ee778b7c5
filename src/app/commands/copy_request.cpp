#include "app/commands/copy_request.h"

#include "ports/guests.h"
#include "support/plain_line.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <algorithm>

namespace kelvo {
namespace {

constexpr CopyVerbName cVerbs[] = {
    {CopyVerb::Status, u"status"}, {CopyVerb::Follow, u"follow"},    {CopyVerb::Start, u"start"},
    {CopyVerb::Stop, u"stop"},     {CopyVerb::SyncNow, u"sync-now"}, {CopyVerb::Cancel, u"cancel"},
};

QByteArray lineOf(const QJsonObject& object) {
    return QJsonDocument(object).toJson(QJsonDocument::Compact) + '\n';
}

/// `value` with no text in it longer than `most`.
QJsonValue shortened(const QJsonValue& value, qsizetype most) {
    if (value.isString() && value.toString().size() > most) {
        QString text = value.toString().first(most);
        if (text.back().isHighSurrogate())
            text.chop(1);
        return QString(text + u'…');
    }
    if (value.isArray()) {
        QJsonArray array;
        for (const QJsonValue each : value.toArray())
            array.append(shortened(each, most));
        return array;
    }
    if (!value.isObject())
        return value;
    QJsonObject object = value.toObject();
    for (auto member = object.begin(); member != object.end(); ++member)
        member.value() = shortened(member.value(), most);
    return object;
}

} // namespace

std::span<const CopyVerbName> copyVerbs() {
    return cVerbs;
}

QStringView nameOf(CopyVerb verb) {
    return std::ranges::find(cVerbs, verb, &CopyVerbName::verb)->name;
}

QByteArray requestLine(CopyVerb verb) {
    return lineOf({{QStringLiteral("protocol"), cCopyProtocol},
                   {QStringLiteral("request"), nameOf(verb).toString()}});
}

std::variant<CopyVerb, QString> requestFrom(const QByteArray& line) {
    const QJsonDocument document = QJsonDocument::fromJson(line);
    if (!document.isObject())
        return QStringLiteral("A request is one JSON object on a line.");
    const QJsonObject request = document.object();
    if (const QJsonValue protocol = request.value(u"protocol"); protocol != cCopyProtocol)
        return QStringLiteral("This copy speaks protocol %1; a request has the member "
                              "\"protocol\" with that number.")
            .arg(cCopyProtocol);
    const QString name = request.value(u"request").toString();
    const auto verb = std::ranges::find(cVerbs, QStringView(name), &CopyVerbName::name);
    if (verb != std::end(cVerbs))
        return verb->verb;
    return QString(u"There is no request \"" + oneLine(name.left(40)) + u"\".");
}

QJsonObject answerOf(QStringView event) {
    return {{QStringLiteral("protocol"), cCopyProtocol},
            {QStringLiteral("event"), event.toString()}};
}

QByteArray answerLine(const QJsonObject& answer) {
    QByteArray line = lineOf(answer);
    for (qsizetype most = 8192; line.size() > Guests::cLongestLine && most > 0; most /= 2)
        line = lineOf(shortened(answer, most).toObject());
    return line;
}

} // namespace kelvo
