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

qint64 wakeUps(qint64 pid) {
    const QDir tasks(QStringLiteral("/proc/%1/task").arg(pid));
    if (!tasks.exists())
        return -1;
    const QByteArray label = "\nvoluntary_ctxt_switches:";
    qint64 all = 0;
    for (const QString& task : tasks.entryList(QDir::Dirs | QDir::NoDotAndDotDot)) {
        QFile file(tasks.filePath(task + QStringLiteral("/status")));
        if (!file.open(QIODevice::ReadOnly))
            continue;
        const QByteArray status = file.readAll();
        const qsizetype at = status.indexOf(label);
        const qsizetype end = status.indexOf('\n', at + 1);
        if (at >= 0)
            all += status.mid(at + label.size(), end - at - label.size()).trimmed().toLongLong();
    }
    return all;
}

} // namespace kelvo::bench
