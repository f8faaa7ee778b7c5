#include "app/commands/once.h"

#include "app/commands/passes.h"

#include <QJsonDocument>
#include <QJsonObject>

#include <algorithm>

namespace kelvo {
namespace {

constexpr std::size_t cMostNames = 20;

QString asJson(const PassRecord& pass, CauseGroup group) {
    QJsonObject object = jsonOf(pass);
    object.insert(QStringLiteral("exitCode"), exitCodeFor(group));
    return QString::fromUtf8(QJsonDocument(object).toJson(QJsonDocument::Compact)) + u'\n';
}

QString arrivalLines(const std::vector<Arrival>& arrivals) {
    if (arrivals.empty())
        return {};
    QString lines = QStringLiteral("Arrived:\n");
    for (std::size_t i = 0; i < std::min(arrivals.size(), cMostNames); ++i)
        lines += u"  " + pathLine(arrivals[i]) + u'\n';
    if (arrivals.size() > cMostNames)
        lines += u"  and " + QString::number(arrivals.size() - cMostNames) + u" more\n";
    return lines;
}

QString asLines(const PassRecord& pass, const CauseWords& words) {
    QString lines = outcomeLine(pass) + u'\n' + arrivalLines(pass.arrivals);
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
    return {exitCodeFor(words.group), json ? asJson(pass, words.group) : asLines(pass, words), {}};
}

} // namespace kelvo
