#include "ui/health_words.h"

#include "support/plain_line.h"
#include "ui/activity_texts.h"
#include "ui/checklist.h"
#include "ui/pass_words.h"
#include "ui/words.h"

namespace kelvo {
namespace {

/// The last line tells more than the next step where the cause alone says too little.
QString secondSentence(const PassRecord& pass) {
    const QString reason = reasonFor(pass.cause, oneLine(pass.lastLine));
    return reason.isEmpty() ? nextStepFor(pass.cause) : reason;
}

void describeRecord(HealthWords& words, const HealthFacts& facts) {
    const Standing& standing = facts.standing;
    if (standing.lastSuccess)
        words.health.lastSuccess =
            Words::tr("Last success: %1, %2")
                .arg(agoText(static_cast<double>(standing.lastSuccess->began.secsTo(facts.now))),
                     filesText(*standing.lastSuccess));
    if (!standing.last) {
        words.health.text = Words::tr("No pass has ended yet. How it went will stand here.");
        return;
    }
    const PassRecord& last = *standing.last;
    if (!isTrouble(last.cause)) {
        words.health.sign = HealthSign::Well;
        words.health.text = sentenceFor(PassCause::Well);
        return;
    }
    const qint64 passes = std::max<qint64>(standing.passesInTrouble, 1);
    const QString since =
        Words::counted("%1 (%Ln pass)", QT_TRANSLATE_N_NOOP("Words", "%1 (%Ln passes)"), passes)
            .arg(momentText(standing.troubleSince.isValid() ? standing.troubleSince : last.began,
                            facts.now));
    words.matter = sentenceFor(last.cause, since);
    words.health.sign = HealthSign::Trouble;
    words.health.text = Words::tr("%1 %2", "two sentences").arg(words.matter, secondSentence(last));
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
        trouble(Words::tr("%1.", "a sentence without its full stop")
                    .arg(oneLine(Words::shown(facts.settings.fault))),
                Remedy::OpenLog);
    for (const ChecklistLine& line : facts.missing) {
        if (line.remedy == Remedy::CopyInstallCommand)
            trouble(line.text, line.remedy);
    }
    if (!facts.standing.fault.isEmpty())
        trouble(Words::tr("The record of passes cannot be kept: %1")
                    .arg(oneLine(Words::shown(facts.standing.fault))),
                Remedy::OpenLog);
    if (!facts.settings.aside.isEmpty())
        words.remarks.append(Words::tr("The settings file was damaged. It is kept as %1")
                                 .arg(oneLine(facts.settings.aside)));
    if (!facts.standing.aside.isEmpty())
        words.remarks.append(Words::tr("The record of passes was damaged. It is kept as %1")
                                 .arg(oneLine(facts.standing.aside)));
    if (facts.standing.replaced)
        words.remarks.append(Words::tr("The record of passes was removed or replaced. The "
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
