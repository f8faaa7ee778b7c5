#include "ui/work_words.h"

#include "passes/running_pass.h"
#include "support/plain_line.h"
#include "ui/words.h"

#include <QLocale>

#include <algorithm>
#include <cmath>

namespace kelvo {
namespace {

constexpr int cMinute = 60;
constexpr int cHour = 3600;

/// The distance between two steps of the time left, and where the first of that kind begins.
int stepWidth(int seconds) {
    if (seconds < cMinute)
        return 10;
    return seconds < cHour ? cMinute : 10 * cMinute;
}

/// The step that is nearest, by its own seconds; 0 stands for "a few seconds".
int nearestStep(double seconds) {
    if (seconds < 10)
        return 0;
    const auto rounded = [seconds](int width) {
        return static_cast<int>(std::lround(std::min(seconds, 1e7) / width)) * width;
    };
    if (const int tens = rounded(10); tens < cMinute)
        return tens;
    if (const int minutes = rounded(cMinute); minutes < cHour)
        return minutes;
    return rounded(10 * cMinute);
}

QString timeText(int seconds) {
    if (seconds < cMinute)
        return Words::tr("%L1 s").arg(seconds);
    const int minutes = seconds % cHour / cMinute;
    if (seconds < cHour)
        return Words::tr("%L1 min").arg(minutes);
    if (minutes == 0)
        return Words::tr("%L1 h").arg(seconds / cHour);
    return Words::tr("%L1 h %L2 min").arg(seconds / cHour).arg(minutes);
}

QString sizeOf(qint64 bytes) {
    return QLocale().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

/// `bytes` in the unit in which `whole` is written, without the unit.
QString shareOf(qint64 bytes, qint64 whole) {
    double unit = 1;
    while (static_cast<double>(whole) / unit >= 1000)
        unit *= 1000;
    return unit == 1 ? QLocale().toString(bytes)
                     : QLocale().toString(static_cast<double>(bytes) / unit, 'f', 1);
}

constexpr int cCountedInSeconds = 2 * cMinute;

int wholeSeconds(double seconds) {
    return static_cast<int>(std::ceil(std::clamp(seconds, 1.0, 1e7)));
}

int nearestMinute(int seconds) {
    return (seconds + cMinute / 2) / cMinute;
}

QString shortName(const Arrival& arrival) {
    constexpr qsizetype cMost = 60;
    QString name = oneLine(QString::fromUtf8(arrival.path.mid(arrival.path.lastIndexOf('/') + 1)));
    if (name.size() <= cMost)
        return name;
    // The end tells as much as the beginning: part and kind of the file.
    qsizetype begin = cMost / 2;
    if (name[begin - 1].isHighSurrogate())
        --begin;
    qsizetype end = name.size() - (cMost - 1 - cMost / 2);
    if (name[end].isLowSurrogate())
        ++end;
    return name.left(begin) + u'…' + name.mid(end);
}

/// "23 s", beyond two minutes "4 min".
QString untilText(double seconds) {
    const int whole = wholeSeconds(seconds);
    return whole <= cCountedInSeconds ? Words::tr("%L1 s").arg(whole)
                                      : timeText(nearestMinute(whole) * cMinute);
}

QString syncingText(PassStep step, PassKind kind) {
    switch (step) {
    case PassStep::AskingTheMac:
        return Words::tr("Syncing: asking the Mac");
    case PassStep::Pull:
        return kind == PassKind::Remote ? Words::tr("Syncing: first pull")
                                        : Words::tr("Syncing: copying");
    case PassStep::Movies:
        return Words::tr("Syncing: movies");
    case PassStep::AfterArrivals:
        return Words::tr("Syncing: after arrivals");
    case PassStep::Begun:
        break;
    }
    return Words::tr("Syncing");
}

} // namespace

QString TimeLeftWords::text(std::optional<double> seconds) {
    if (!seconds) {
        fShown.reset();
        return {};
    }
    const int step = nearestStep(std::max(*seconds, 0.0));
    if (!fShown || step < *fShown || *seconds > *fShown + stepWidth(*fShown))
        fShown = step;
    return *fShown == 0 ? Words::tr("a few seconds") : Words::tr("about %1").arg(timeText(*fShown));
}

QString stepText(PassStep step, PassKind kind) {
    switch (step) {
    case PassStep::AskingTheMac:
        return Words::tr("Asking the Mac");
    case PassStep::Pull:
        return kind == PassKind::Remote ? Words::tr("First pull") : Words::tr("Copying");
    case PassStep::Movies:
        return Words::tr("Movies");
    case PassStep::AfterArrivals:
        return Words::tr("After arrivals");
    case PassStep::Begun:
        break;
    }
    return {};
}

QString countText(const PassProgress& progress) {
    if (!progress.filesDone)
        return {};
    const qint64 done = *progress.filesDone;
    if (progress.filesKnown && *progress.filesKnown > 0)
        return Words::tr("file %L1 of %L2")
            .arg(std::min(done + 1, *progress.filesKnown))
            .arg(*progress.filesKnown);
    if (done == 0)
        return {};
    return Words::counted("%Ln file", QT_TRANSLATE_N_NOOP("Words", "%Ln files"), done);
}

QString amountText(const PassProgress& progress) {
    const qint64 done = progress.bytesDone.value_or(0);
    if (!progress.bytesKnown)
        return done > 0 ? sizeOf(done) : QString();
    return Words::tr("%1 of %2", "as in: 18.2 of 37.6 GB")
        .arg(shareOf(done, *progress.bytesKnown), sizeOf(*progress.bytesKnown));
}

QString speedText(const PassProgress& progress) {
    if (progress.bytesPerSecond.value_or(0) < 1)
        return {};
    return Words::tr("%1/s", "as in: 92.0 MB/s")
        .arg(sizeOf(static_cast<qint64>(std::min(*progress.bytesPerSecond, 1e15))));
}

void describeProgress(WorkState& work, const PassUnderWay& pass, TimeLeftWords& timeLeft) {
    const PassProgress& progress = pass.progress;
    work.step = stepText(progress.step, pass.kind);
    work.file = oneLine(progress.file);
    work.count = countText(progress);
    work.amount = amountText(progress);
    work.speed = speedText(progress);
    work.timeLeft = timeLeft.text(progress.secondsLeft);
    if (progress.share)
        work.share = std::clamp(*progress.share, 0.0, 1.0);
}

QString nextPassText(double seconds) {
    return Words::tr("Next pass in %1").arg(untilText(seconds));
}

double nextPassHolds(double seconds) {
    const int whole = wholeSeconds(seconds);
    if (whole == 1)
        return 1; // the last text: an overdue pass is not counted further
    const int next =
        whole <= cCountedInSeconds
            ? whole - 1
            : std::max(nearestMinute(whole) * cMinute - cMinute / 2 - 1, cCountedInSeconds);
    return std::max(seconds - next, 0.0);
}

QString headlineText(const WorkState& work, const HeadlineFacts& facts) {
    if (work.phase == WorkPhase::Cancelling || work.phase == WorkPhase::Finishing)
        return work.nextPass;
    if (work.phase == WorkPhase::Running && work.share)
        return work.timeLeft.isEmpty()
                   ? Words::tr("Syncing: %1").arg(Words::percent(*work.share))
                   : Words::tr("Syncing: %1, %2").arg(Words::percent(*work.share), work.timeLeft);
    // A pass that only asks the Mac again tells less than why it has to.
    if (!facts.matter.isEmpty())
        return facts.matter;
    if (work.phase == WorkPhase::Running)
        return syncingText(facts.step, facts.kind);
    if (work.phase != WorkPhase::Resting || work.health.sign != HealthSign::Well)
        return work.nextPass;
    return facts.nextPass
               ? Words::tr("All is well, next pass in %1").arg(untilText(*facts.nextPass))
               : Words::tr("All is well");
}

QString arrivalsText(const std::vector<Arrival>& arrivals) {
    const auto count = arrivals.size();
    if (count == 0)
        return {};
    QString first = shortName(arrivals[0]);
    if (count == 1)
        return first;
    const QString second = shortName(arrivals[1]);
    if (count == 2)
        return Words::tr("%1 and %2", "two movies").arg(first, second);
    return Words::counted("%1, %2 and one more",
                          QT_TRANSLATE_N_NOOP("Words", "%1, %2 and %Ln more"),
                          static_cast<qint64>(count) - 2)
        .arg(first, second);
}

} // namespace kelvo
