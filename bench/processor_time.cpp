#include "bench/processor_time.h"

#include <QDir>
#include <QFile>
#include <QList>

#include <unistd.h>

namespace kelvo::bench {

double processorSeconds(qint64 pid) {
    QFile file(QStringLiteral("/proc/%1/stat").arg(pid));
    if (!file.open(QIODevice::ReadOnly))
        return -1;
    const QByteArray line = file.readAll();
    const QList<QByteArray> fields = line.mid(line.lastIndexOf(')') + 2).split(' ');
    return (fields.value(11).toDouble() + fields.value(12).toDouble()) /
           static_cast<double>(::sysconf(_SC_CLK_TCK));
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
