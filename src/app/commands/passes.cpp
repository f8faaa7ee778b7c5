#include "app/commands/passes.h"

#include "support/plain_line.h"
#include "ui/pass_words.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>
#include <QRegularExpression>

namespace kelvo {
namespace {

QJsonValue orNull(const std::optional<qint64>& number) {
    return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
}

QJsonObject jsonOf(const Arrival& arrival) {
    const QString path = QString::fromUtf8(arrival.path);
    QJsonObject object{
        {QStringLiteral("path"), path},
        {QStringLiteral("size"), arrival.size},
        {QStringLiteral("arrived"), arrival.arrived.toString(Qt::ISODateWithMs)},
    };
    if (path.toUtf8() != arrival.path)
        object.insert(QStringLiteral("pathBytes"), QString::fromLatin1(arrival.path.toBase64()));
    return object;
}

QString lineOf(const PassRecord& pass) {
    return localTimeText(pass.began) + u"  " + outcomeLine(pass);
}

} // namespace

std::optional<qint64> spanFrom(const QString& text) {
    static const QRegularExpression cSpan(QStringLiteral("\\A([0-9]{1,6})(min|h|d)\\z"));
    const auto span = cSpan.match(text);
    if (!span.hasMatch())
        return {};
    const QStringView unit = span.capturedView(2);
    return span.captured(1).toLongLong() * (unit == u"d" ? 86'400 : unit == u"h" ? 3600 : 60);
}

std::optional<QDateTime> momentFrom(const QString& text, const QDateTime& now) {
    if (const auto span = spanFrom(text))
        return text.endsWith(u'd') ? now.addDays(-*span / 86'400) : now.addSecs(-*span);
    const bool isDate = text.size() == QStringView(u"2026-11-22").size();
    const QDateTime moment = isDate ? QDate::fromString(text, Qt::ISODate).startOfDay()
                                    : QDateTime::fromString(text, Qt::ISODate);
    return moment.isValid() ? std::optional(moment) : std::nullopt;
}

QString localTimeText(const QDateTime& moment) {
    const QDateTime local = moment.toLocalTime();
    return local.toOffsetFromUtc(local.offsetFromUtc()).toString(Qt::ISODate);
}

QJsonObject jsonOf(const PassRecord& pass) {
    const CauseWords words = wordsFor(pass.cause);
    QJsonArray arrivals;
    for (const Arrival& arrival : pass.arrivals)
        arrivals.append(jsonOf(arrival));
    return {
        {QStringLiteral("kind"),
         pass.kind == PassKind::Remote ? QStringLiteral("remote") : QStringLiteral("plain")},
        {QStringLiteral("began"), pass.began.toString(Qt::ISODateWithMs)},
        {QStringLiteral("seconds"), pass.seconds},
        {QStringLiteral("verdict"), pass.verdict.text()},
        {QStringLiteral("cause"), words.name.toString()},
        {QStringLiteral("message"), words.sentence.toString()},
        {QStringLiteral("nextStep"), words.nextStep.toString()},
        {QStringLiteral("lastLine"), pass.lastLine},
        {QStringLiteral("files"), orNull(pass.transfer.files)},
        {QStringLiteral("bytes"), orNull(pass.transfer.bytes)},
        {QStringLiteral("arrivals"), arrivals},
    };
}

QString outcomeLine(const PassRecord& pass) {
    const QString size = sizeText(pass.transfer);
    return oneLine(sentenceFor(pass)) + u" (" + filesText(pass) +
           (size.isEmpty() ? QString() : QString(u", " + size)) + u", " +
           secondsText(pass.seconds) + u')';
}

QString pathLine(const Arrival& arrival) {
    return oneLine(QString::fromUtf8(arrival.path));
}

QString passesText(const std::vector<PassRecord>& passes, bool json) {
    QString text;
    for (const PassRecord& pass : passes) {
        if (json) {
            QJsonObject object = jsonOf(pass);
            object.insert(QStringLiteral("number"), pass.id);
            text += QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact));
        } else {
            text += lineOf(pass);
        }
        text += u'\n';
    }
    return text;
}

} // namespace kelvo
