#include "adapters/network/neighbour_table.h"

#include <QFile>
#include <QList>

#include <net/if.h>

namespace kelvo {
namespace {

// The columns: IP address, HW type, Flags, HW address, Mask, Device.
constexpr int cComplete = 0x2;

} // namespace

QString macAddressIn(const QByteArray& table, const QString& ip4Address, const QByteArray& device) {
    const QByteArray address = ip4Address.toLatin1();
    for (const QByteArray& line : table.split('\n')) {
        const QList<QByteArray> columns = line.simplified().split(' ');
        if (columns.value(0) != address || columns.value(5) != device)
            continue;
        if ((columns.value(2).toInt(nullptr, 0) & cComplete) != 0)
            return QString::fromLatin1(columns.value(3)).toLower();
    }
    return {};
}

QString macAddressOf(const QString& ip4Address, quint32 interface) {
    char device[IF_NAMESIZE] = {}; // stays empty, as no entry's is, for a number that none has
    (void)::if_indextoname(interface, device);
    QFile file(QStringLiteral("/proc/net/arp"));
    return file.open(QFile::ReadOnly) ? macAddressIn(file.readAll(), ip4Address, device)
                                      : QString();
}

} // namespace kelvo
