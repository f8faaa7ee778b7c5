// ServiceReport: keeps the service manager told of a program that works as its service.
#pragma once

#include "support/subscription.h"
#include "support/work_state.h"

#include <QByteArray>
#include <QByteArrayView>
#include <QDateTime>
#include <QString>

#include <functional>
#include <memory>
#include <optional>

namespace kelvo {

class DispatchQueue;
class PassStore;
struct Standing;

/// How it is in one line: "Resting, last success 12:04". The time is local, with its date when that
/// is another one than today's.
QString serviceStatus(const WorkState& work, const std::optional<QDateTime>& lastSuccess,
                      const QDateTime& now);

/// Tells in systemd's words. Main thread only.
class ServiceReport {
public:
    struct Parts {
        DispatchQueue& mainQueue;
        PassStore& passes;
        std::function<QDateTime()> now;
        std::function<void(QByteArrayView)> tell;
        std::optional<double> watchdogSeconds; ///< nothing: no sign of life is wanted
    };

    /// All of it outlives this; nothing is told any more once it is gone.
    explicit ServiceReport(Parts parts) : fParts(std::move(parts)) {}

    /// The start is done. From now on a sign of life goes out twice within the manager's patience,
    /// from the main queue: one that stands still is noticed by its silence. Called once.
    void ready();

    /// The line of this state, when it reads otherwise than the one before.
    void show(const WorkState& work);

    /// The end has begun, `why` for a start that had nothing to do. Nothing is told after that.
    void stopping(const QString& why = {});

private:
    void beat();
    void setStanding(const Standing& standing);
    void refresh();

    const Parts fParts;
    std::optional<WorkState> fWork;
    std::optional<QDateTime> fLastSuccess;
    QString fShown;
    std::shared_ptr<int> fAlive = std::make_shared<int>(); ///< gone: nothing is told any more
    Subscription fObservation;
};

} // namespace kelvo
