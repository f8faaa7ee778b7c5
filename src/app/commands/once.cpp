#include "app/commands/once.h"

#include <QJsonDocument>
#include <QJsonObject>

namespace kelvo {
namespace {

QJsonValue orNull(const std::optional<qint64>& number) {
    return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
}

QString asJson(const PassRecord& pass, const CauseWords& words) {
    const QJsonObject object{
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
        {QStringLiteral("exitCode"), exitCodeFor(words.group)},
    };
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

QString asLines(const PassRecord& pass, const CauseWords& words) {
    const QString size = sizeText(pass.transfer);
    QString lines = sentenceFor(pass) + u" (" + filesText(pass) +
                    (size.isEmpty() ? QString() : QString(u", " + size)) + u", " +
                    secondsText(pass.seconds) + u")\n";
    if (!words.nextStep.isEmpty())
        lines += u"Next step: " + words.nextStep + u'\n';
    return lines;
}

} // namespace

int exitCodeFor(CauseGroup group) {
    switch (group) {
    case CauseGroup::Well:
        return 0;
    case CauseGroup::Host:
        return 10;
    case CauseGroup::HostKey:
        return 11;
    case CauseGroup::Login:
        return 12;
    case CauseGroup::RemoteSide:
        return 13;
    case CauseGroup::ThisSide:
        return 14;
    case CauseGroup::Incomplete:
        return 15;
    case CauseGroup::CutOff:
        return 16;
    case CauseGroup::Settings:
        return 17;
    case CauseGroup::Interrupted:
        return 18;
    case CauseGroup::AfterArrivals:
        return 19;
    case CauseGroup::Unknown:
        break;
    }
    return 1;
}

CommandAnswer outcomeOf(const PassRecord& pass, bool json) {
    const CauseWords words = wordsFor(pass.cause);
    return {exitCodeFor(words.group), json ? asJson(pass, words) : asLines(pass, words), {}};
}

} // namespace kelvo
