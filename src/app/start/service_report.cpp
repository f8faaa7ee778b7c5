#include "app/start/service_report.h"

#include "ports/dispatch_queue.h"
#include "ports/pass_store.h"
#include "support/plain_line.h"

#include <utility>

namespace kelvo {
namespace {

QString phaseText(const WorkState& work) {
    switch (work.phase) {
    case WorkPhase::Running:
        return QStringLiteral("Syncing");
    case WorkPhase::Resting:
        return QStringLiteral("Resting");
    case WorkPhase::Off:
        return QStringLiteral("Syncing is off");
    case WorkPhase::Missing:
        return QStringLiteral("Waiting for what is missing");
    case WorkPhase::Finishing:
        return QStringLiteral("Finishing this pass");
    case WorkPhase::Cancelling:
        return QStringLiteral("Cancelling this pass");
    }
    return {};
}

QString momentText(const QDateTime& moment, const QDateTime& now) {
    const QDateTime local = moment.toLocalTime();
    return local.toString(local.date() == now.toLocalTime().date()
                              ? QStringLiteral("HH:mm")
                              : QStringLiteral("yyyy-MM-dd HH:mm"));
}

} // namespace

QString serviceStatus(const WorkState& work, const std::optional<QDateTime>& lastSuccess,
                      const QDateTime& now) {
    QString line = phaseText(work);
    if (lastSuccess)
        line = QStringLiteral("%1, last success %2").arg(line, momentText(*lastSuccess, now));
    if (work.health.sign == HealthSign::Trouble)
        line = QStringLiteral("%1. %2").arg(line, work.health.text);
    return oneLine(line);
}

void ServiceReport::ready() {
    fParts.tell("READY=1");
    fObservation = fParts.passes.observe(
        [this](const PassRecord&, const Standing& standing) { setStanding(standing); });
    fParts.passes.readStanding([this, alive = std::weak_ptr(fAlive)](const Standing& standing) {
        if (!alive.expired())
            setStanding(standing);
    });
    if (fParts.watchdogSeconds)
        beat();
}

void ServiceReport::beat() {
    fParts.tell("WATCHDOG=1");
    fParts.mainQueue.asyncAfter(*fParts.watchdogSeconds / 2, [this, alive = std::weak_ptr(fAlive)] {
        if (!alive.expired())
            beat();
    });
}

void ServiceReport::setStanding(const Standing& standing) {
    fLastSuccess = standing.lastSuccess ? std::optional(standing.lastSuccess->began) : std::nullopt;
    refresh();
}

void ServiceReport::show(const WorkState& work) {
    fWork = work;
    refresh();
}

void ServiceReport::refresh() {
    if (!fWork || !fAlive)
        return;
    const QString line = serviceStatus(*fWork, fLastSuccess, fParts.now());
    if (line != std::exchange(fShown, line))
        fParts.tell(QByteArray("STATUS=" + line.toUtf8()));
}

void ServiceReport::stopping(const QString& why) {
    if (!std::exchange(fAlive, nullptr))
        return;
    if (!why.isEmpty())
        fParts.tell(QByteArray("STATUS=" + oneLine(why).toUtf8()));
    fParts.tell("STOPPING=1");
}

} // namespace kelvo
