#include "bench/processor_time.h"

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

} // namespace kelvo::bench
