#include "ui/work_words.h"

#include "passes/running_pass.h"
#include "support/plain_line.h"

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
        return QStringLiteral("%1 s").arg(seconds);
    const int minutes = seconds % cHour / cMinute;
    if (seconds < cHour)
        return QStringLiteral("%1 min").arg(minutes);
    if (minutes == 0)
        return QStringLiteral("%1 h").arg(seconds / cHour);
    return QStringLiteral("%1 h %2 min").arg(seconds / cHour).arg(minutes);
}

QString sizeOf(qint64 bytes) {
    return QLocale::c().formattedDataSize(bytes, 1, QLocale::DataSizeSIFormat);
}

/// `bytes` in the unit in which `whole` is written, without the unit.
QString shareOf(qint64 bytes, qint64 whole) {
    double unit = 1;
    while (static_cast<double>(whole) / unit >= 1000)
        unit *= 1000;
    return unit == 1 ? QString::number(bytes)
                     : QString::number(static_cast<double>(bytes) / unit, 'f', 1);
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

QString withSmallBegin(QString text) {
    if (!text.isEmpty())
        text[0] = text[0].toLower();
    return text;
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
    return *fShown == 0 ? QStringLiteral("a few seconds")
                        : QStringLiteral("about %1").arg(timeText(*fShown));
}

QString stepText(PassStep step, PassKind kind) {
    switch (step) {
    case PassStep::AskingTheMac:
        return QStringLiteral("Asking the Mac");
    case PassStep::Pull:
        return kind == PassKind::Remote ? QStringLiteral("First pull") : QStringLiteral("Copying");
    case PassStep::Movies:
        return QStringLiteral("Movies");
    case PassStep::AfterArrivals:
        return QStringLiteral("After arrivals");
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
        return QStringLiteral("file %1 of %2")
            .arg(std::min(done + 1, *progress.filesKnown))
            .arg(*progress.filesKnown);
    if (done == 0)
        return {};
    return done == 1 ? QStringLiteral("1 file") : QStringLiteral("%1 files").arg(done);
}

QString amountText(const PassProgress& progress) {
    const qint64 done = progress.bytesDone.value_or(0);
    if (!progress.bytesKnown)
        return done > 0 ? sizeOf(done) : QString();
    return QStringLiteral("%1 of %2")
        .arg(shareOf(done, *progress.bytesKnown), sizeOf(*progress.bytesKnown));
}

QString speedText(const PassProgress& progress) {
    if (progress.bytesPerSecond.value_or(0) < 1)
        return {};
    return QStringLiteral("%1/s").arg(
        sizeOf(static_cast<qint64>(std::min(*progress.bytesPerSecond, 1e15))));
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
    const int whole = wholeSeconds(seconds);
    return QStringLiteral("Next pass in %1")
        .arg(whole <= cCountedInSeconds ? QStringLiteral("%1 s").arg(whole)
                                        : timeText(nearestMinute(whole) * cMinute));
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

QString headlineText(const WorkState& work, const QString& matter) {
    if (work.phase == WorkPhase::Cancelling || work.phase == WorkPhase::Finishing)
        return work.nextPass;
    if (work.phase == WorkPhase::Running && work.share)
        return work.timeLeft.isEmpty()
                   ? QStringLiteral("Syncing: %1").arg(shareText(*work.share))
                   : QStringLiteral("Syncing: %1, %2").arg(shareText(*work.share), work.timeLeft);
    // A pass that only asks the Mac again tells less than why it has to.
    if (!matter.isEmpty())
        return matter;
    if (work.phase == WorkPhase::Running)
        return work.step.isEmpty() ? QStringLiteral("Syncing")
                                   : QStringLiteral("Syncing: %1").arg(withSmallBegin(work.step));
    if (work.phase != WorkPhase::Resting || work.health.sign != HealthSign::Well)
        return work.nextPass;
    return work.nextPass.isEmpty()
               ? QStringLiteral("All is well")
               : QStringLiteral("All is well, %1").arg(withSmallBegin(work.nextPass));
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
        return QStringLiteral("%1 and %2").arg(first, second);
    if (count == 3)
        return QStringLiteral("%1, %2 and one more").arg(first, second);
    return QStringLiteral("%1, %2 and %3 more").arg(first, second, QString::number(count - 2));
}

} // namespace kelvo
