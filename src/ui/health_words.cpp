#include "ui/health_words.h"

#include "support/plain_line.h"
#include "ui/checklist.h"
#include "ui/pass_words.h"
#include "ui/work_words.h"

#include <QLocale>

namespace kelvo {
namespace {

QString sinceText(const QDateTime& since, const QDateTime& now) {
    const QDateTime local = since.toLocalTime();
    return local.date() == now.toLocalTime().date()
               ? local.toString(QStringLiteral("HH:mm"))
               : QLocale().toString(local, QLocale::ShortFormat);
}

/// The cause's sentence with `since` at the end of what it says first.
QString sinceThen(QStringView sentence, const QString& since) {
    for (const QStringView end : {u":", u", which"}) {
        if (const qsizetype place = sentence.indexOf(end); place >= 0)
            return sentence.left(place) + u' ' + since + sentence.mid(place);
    }
    const QStringView open = sentence.endsWith(u'.') ? sentence.chopped(1) : sentence;
    return open + u' ' + since + u'.';
}

/// The last line tells more than the next step where the cause alone says too little.
QString secondSentence(const PassRecord& pass) {
    if (!pass.lastLine.isEmpty() && pass.cause == PassCause::Unknown)
        return QStringLiteral("The last line was: %1").arg(oneLine(pass.lastLine));
    if (!pass.lastLine.isEmpty() && pass.cause == PassCause::SettingsRefused)
        return QStringLiteral("The reason: %1.").arg(oneLine(pass.lastLine));
    return wordsFor(pass.cause).nextStep.toString();
}

void describeRecord(HealthWords& words, const HealthFacts& facts) {
    const Standing& standing = facts.standing;
    if (standing.lastSuccess)
        words.health.lastSuccess =
            QStringLiteral("Last success: %1, %2")
                .arg(agoText(static_cast<double>(standing.lastSuccess->began.secsTo(facts.now))),
                     filesText(*standing.lastSuccess));
    if (!standing.last) {
        words.health.text = QStringLiteral("No pass has ended yet. How it went will stand here.");
        return;
    }
    const PassRecord& last = *standing.last;
    if (!isTrouble(last.cause)) {
        words.health.sign = HealthSign::Well;
        words.health.text = wordsFor(PassCause::Well).sentence.toString();
        return;
    }
    const qint64 passes = std::max<qint64>(standing.passesInTrouble, 1);
    const QString since =
        (passes == 1 ? QStringLiteral("since %1 (%2 pass)")
                     : QStringLiteral("since %1 (%2 passes)"))
            .arg(sinceText(standing.troubleSince.isValid() ? standing.troubleSince : last.began,
                           facts.now))
            .arg(passes);
    words.matter = sinceThen(wordsFor(last.cause).sentence, since);
    words.health.sign = HealthSign::Trouble;
    words.health.text = words.matter + u' ' + secondSentence(last);
    words.health.remedy = remedyFor(last);
    words.health.cause = wordsFor(last.cause).name.toString();
}

} // namespace

HealthWords healthWords(const HealthFacts& facts) {
    HealthWords words;
    describeRecord(words, facts);
    const auto trouble = [&words](const QString& remark, Remedy remedy) {
        words.remarks.append(remark);
        if (words.health.sign == HealthSign::Trouble)
            return;
        words.health.sign = HealthSign::Trouble;
        words.health.text = words.matter = remark;
        words.health.remedy = remedy;
        words.health.cause = remark;
    };
    if (!facts.settings.fault.isEmpty())
        trouble(oneLine(facts.settings.fault) + u'.', Remedy::OpenLog);
    for (const ChecklistLine& line : facts.missing) {
        if (line.remedy == Remedy::CopyInstallCommand)
            trouble(line.text, line.remedy);
    }
    if (!facts.standing.fault.isEmpty())
        trouble(QStringLiteral("The record of passes cannot be kept: %1")
                    .arg(oneLine(facts.standing.fault)),
                Remedy::OpenLog);
    if (!facts.settings.aside.isEmpty())
        words.remarks.append(QStringLiteral("The settings file was damaged. It is kept as %1")
                                 .arg(oneLine(facts.settings.aside)));
    if (!facts.standing.aside.isEmpty())
        words.remarks.append(QStringLiteral("The record of passes was damaged. It is kept as %1")
                                 .arg(oneLine(facts.standing.aside)));
    if (facts.standing.replaced)
        words.remarks.append(QStringLiteral("The record of passes was removed or replaced. The "
                                            "passes since the start were written again"));
    return words;
}

Remedy remedyFor(const PassRecord& pass) {
    using enum PassCause;
    const bool remote = pass.kind == PassKind::Remote;
    switch (pass.cause) {
    case HostAway:
    case RemoteLoginOff:
    case CutOff:
    case DiskFull:
        return Remedy::CheckAgain;
    case HostNotFound:
    case HostKeyUnknown:
    case HostKeyChanged:
    case KeyRefused:
    case KeyMissing:
    case WrongUser:
    case LoginTalks:
        return Remedy::ShowRemoteTab;
    case SourceMissing:
    case SourceNotPermitted:
    case SettingsMissing:
    case SettingsRefused:
        return remote ? Remedy::ShowRemoteTab : Remedy::ChooseSource;
    case DestinationUnusable:
    case DestinationTaken:
        return Remedy::ChooseDestination;
    case ToolMissingHere:
        return Remedy::CopyInstallCommand;
    case RsyncMissingThere:
    case RsyncTooOldThere:
    case MovieCommandRefused:
    case CommandNotUnderstood:
    case FilesNotTaken:
    case AfterFailed:
    case Unknown:
        return Remedy::ShowDetails;
    case Well:
    case FilesVanished:
    case Interrupted:
    case Cancelled:
        break;
    }
    return Remedy::None;
}

} // namespace kelvo
