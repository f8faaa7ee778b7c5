#include "app/commands/copy_status.h"

#include "app/commands/copy_request.h"
#include "app/commands/passes.h"
#include "ui/pass_words.h"

#include <QJsonArray>

#include <algorithm>
#include <cmath>

namespace kelvo {
namespace {

struct PhaseName {
    WorkPhase phase;
    QStringView name;
};
constexpr PhaseName cPhases[] = {
    {WorkPhase::Off, u"off"},
    {WorkPhase::Missing, u"missing"},
    {WorkPhase::Running, u"running"},
    {WorkPhase::Finishing, u"finishing"},
    {WorkPhase::Cancelling, u"cancelling"},
    {WorkPhase::Resting, u"resting"},
};

struct StepName {
    PassStep step;
    QStringView name;
};
constexpr StepName cSteps[] = {
    {PassStep::Begun, u"preparing"},
    {PassStep::AskingTheMac, u"asking-the-mac"},
    {PassStep::Pull, u"pull"},
    {PassStep::Movies, u"movies"},
    {PassStep::AfterArrivals, u"after-arrivals"},
};

struct MissingName {
    Remedy remedy;
    QStringView name;
};
constexpr MissingName cMissing[] = {
    {Remedy::ChooseMac, u"mac"},
    {Remedy::EnterAccount, u"account"},
    {Remedy::SetUpKey, u"key"},
    {Remedy::ChooseSource, u"source"},
    {Remedy::ChooseDestination, u"destination"},
    {Remedy::CopyInstallCommand, u"tools"},
};

QJsonValue moment(const QDateTime& moment) {
    return moment.isValid() ? QJsonValue(moment.toUTC().toString(Qt::ISODateWithMs))
                            : QJsonValue(QJsonValue::Null);
}

template <typename Number>
QJsonValue orNull(const std::optional<Number>& number) {
    return number ? QJsonValue(*number) : QJsonValue(QJsonValue::Null);
}

QJsonValue kept(const std::optional<PassRecord>& pass) {
    if (!pass)
        return QJsonValue::Null;
    QJsonObject object = jsonOf(*pass);
    object.remove(QStringLiteral("arrivals")); // A standing has none.
    return object;
}

QString sentence(QString text) {
    if (!text.endsWith(u'.'))
        text += u'.';
    return text;
}

/// What is the matter, the record's own trouble first.
QJsonArray troublesOf(const Standing& standing, const WorkFacts& work) {
    QJsonArray troubles;
    const auto add = [&troubles](const QString& cause, const QString& message,
                                 const QString& nextStep) {
        troubles.append(QJsonObject{{QStringLiteral("cause"), cause},
                                    {QStringLiteral("message"), message},
                                    {QStringLiteral("nextStep"), nextStep}});
    };
    const auto addCause = [&add](PassCause cause) {
        const CauseWords words = wordsFor(cause);
        add(words.name.toString(), words.sentence.toString(), words.nextStep.toString());
    };
    if (standing.last && isTrouble(standing.last->cause))
        addCause(standing.last->cause);
    if (!work.settings.fault.isEmpty())
        add(QStringLiteral("settings-fault"), sentence(work.settings.fault), {});
    if (std::ranges::find(work.missing, Remedy::CopyInstallCommand, &ChecklistLine::remedy) !=
        work.missing.end())
        addCause(PassCause::ToolMissingHere);
    if (!standing.fault.isEmpty())
        add(QStringLiteral("record-fault"),
            sentence(u"The record of passes cannot be kept: " + standing.fault), {});
    return troubles;
}

QJsonObject answerWith(const Standing& standing, const WorkFacts& work) {
    const QJsonArray troubles = troublesOf(standing, work);
    QJsonObject status = answerOf(u"status");
    status.insert(QStringLiteral("health"), !troubles.isEmpty() ? QStringLiteral("trouble")
                                            : standing.last     ? QStringLiteral("well")
                                                                : QStringLiteral("unknown"));
    status.insert(QStringLiteral("troubles"), troubles);
    status.insert(QStringLiteral("troubleSince"), moment(standing.troubleSince));
    status.insert(QStringLiteral("passesInTrouble"), standing.passesInTrouble);
    status.insert(QStringLiteral("lastPass"), kept(standing.last));
    status.insert(QStringLiteral("lastSuccess"), kept(standing.lastSuccess));
    return status;
}

} // namespace

QJsonValue passOf(const std::optional<PassUnderWay>& pass) {
    if (!pass)
        return QJsonValue::Null;
    const PassProgress& progress = pass->progress;
    const auto* const step = std::ranges::find(cSteps, progress.step, &StepName::step);
    return QJsonObject{
        {QStringLiteral("kind"),
         pass->kind == PassKind::Remote ? QStringLiteral("remote") : QStringLiteral("plain")},
        {QStringLiteral("began"), moment(pass->began)},
        {QStringLiteral("step"), step->name.toString()},
        {QStringLiteral("file"), progress.file},
        {QStringLiteral("filesDone"), orNull(progress.filesDone)},
        {QStringLiteral("filesKnown"), orNull(progress.filesKnown)},
        {QStringLiteral("bytesDone"), orNull(progress.bytesDone)},
        {QStringLiteral("bytesKnown"), orNull(progress.bytesKnown)},
        {QStringLiteral("share"), orNull(progress.share)},
        {QStringLiteral("bytesPerSecond"), orNull(progress.bytesPerSecond)},
        {QStringLiteral("secondsLeft"), orNull(progress.secondsLeft)},
    };
}

QJsonObject statusOf(const WorkFacts& work, const CopyFacts& copy, const QDateTime& now) {
    const auto* const phase = std::ranges::find(cPhases, work.phase, &PhaseName::phase);
    QJsonArray missing;
    for (const MissingName& each : cMissing) {
        if (std::ranges::find(work.missing, each.remedy, &ChecklistLine::remedy) !=
            work.missing.end())
            missing.append(each.name.toString());
    }
    QJsonObject status = answerWith(work.standing, work);
    status.insert(QStringLiteral("state"), phase->name.toString());
    status.insert(QStringLiteral("missing"), missing);
    status.insert(QStringLiteral("pass"), passOf(work.pass));
    status.insert(QStringLiteral("nextPass"),
                  work.nextPass ? moment(now.addMSecs(std::llround(*work.nextPass * 1000)))
                                : QJsonValue(QJsonValue::Null));
    status.insert(QStringLiteral("version"), copy.version);
    status.insert(QStringLiteral("process"), copy.process);
    status.insert(QStringLiteral("since"), moment(copy.since));
    status.insert(QStringLiteral("window"), copy.window);
    return status;
}

QJsonObject statusWithoutCopy(const Standing& standing) {
    QJsonObject status = answerWith(standing, {});
    status.insert(QStringLiteral("state"), QStringLiteral("not-running"));
    return status;
}

int exitCodeOf(const QJsonObject& status, std::optional<qint64> maxAge, const QDateTime& now) {
    if (status.value(u"state").toString() == u"not-running")
        return cExitNoneRuns;
    if (status.value(u"health").toString() == u"trouble")
        return cExitInTrouble;
    if (!maxAge)
        return 0;
    const QDateTime success = QDateTime::fromString(
        status.value(u"lastSuccess").toObject().value(u"began").toString(), Qt::ISODateWithMs);
    return success.isValid() && success.msecsTo(now) <= *maxAge * 1000 ? 0 : cExitInTrouble;
}

} // namespace kelvo
