#include "bench/processor_time.h"

#include <QDir>
#include <QFile>
#include <QList>

#include <algorithm>
#include <ctime>

namespace kelvo::bench {

double processorSeconds(qint64 pid) {
    clockid_t clock{};
    timespec used{};
    if (::clock_getcpuclockid(static_cast<pid_t>(pid), &clock) != 0 ||
        ::clock_gettime(clock, &used) != 0)
        return -1;
    return double(used.tv_sec) + double(used.tv_nsec) * 1e-9;
}

double proportionalKiB(qint64 pid) {
    QFile file(QStringLiteral("/proc/%1/smaps_rollup").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    double all = -1;
    for (const QByteArray& line : file.readAll().split('\n')) {
        if (line.startsWith("Pss:"))
            all = line.mid(4).simplified().split(' ').first().toDouble();
    }
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile children(tasks.filePath(task + QStringLiteral("/children")));
        if (all < 0 || !children.open(QIODevice::ReadOnly))
            return -1;
        for (const QByteArray& child : children.readAll().simplified().split(' ')) {
            if (!child.isEmpty())
                all += std::max(proportionalKiB(child.toLongLong()), 0.0);
        }
    }
    return all;
}

QHash<QString, qint64> wakeUps(qint64 pid) {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    const QByteArray label = "\nvoluntary_ctxt_switches:";
    QHash<QString, qint64> all;
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task + QStringLiteral("/status")));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray status = file.readAll();
        const qsizetype at = status.indexOf(label);
        const qsizetype end = status.indexOf('\n', at + 1);
        if (at >= 0)
            all[task] =
                status.mid(at + label.size(), end - at - label.size()).trimmed().toLongLong();
    }
    return all;
}

qint64 wakeUpsSince(const QHash<QString, qint64>& before, qint64 pid) {
    qint64 sum = 0;
    const auto now = wakeUps(pid);
    for (auto thread = now.cbegin(); thread != now.cend(); ++thread)
        sum += thread.value() - before.value(thread.key());
    return sum;
}

} // namespace kelvo::bench
