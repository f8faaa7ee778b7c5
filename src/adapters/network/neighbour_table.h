// The machine's table of neighbours, which knows the hardware addresses of other hosts.
#pragma once

#include <QByteArray>
#include <QString>

namespace kelvo {

/// The hardware address of `ip4Address` on `device` ("eth0") in `table`, the text of
/// /proc/net/arp, in lower case; empty when it is not there or not complete. Any thread.
QString macAddressIn(const QByteArray& table, const QString& ip4Address, const QByteArray& device);

/// The same in the machine's table, for the interface with this index. Any thread.
QString macAddressOf(const QString& ip4Address, quint32 interface);

} // namespace kelvo
