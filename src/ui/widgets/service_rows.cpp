#include "ui/widgets/service_rows.h"

#include "support/plain_line.h"

namespace kelvo {

void ServiceRows::setRecords(const DNSSD_Services& records) {
    beginResetModel();
    fRecords = records;
    endResetModel();
}

int ServiceRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(fRecords.size());
}

int ServiceRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : 3;
}

QVariant ServiceRows::data(const QModelIndex& index, int role) const {
    if (role != Qt::DisplayRole || !index.isValid())
        return {};
    const DNSSD_Service& record = fRecords.at(index.row());
    switch (index.column()) {
    case 0:
        return withVisibleControls(record.name);
    case 1:
        return record.ip4Address;
    default:
        return withVisibleControls(record.hostTarget);
    }
}

QVariant ServiceRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal)
        return {};
    const QStringList titles{tr("Name"), tr("Address"), tr("Host")};
    return titles.value(section);
}

} // namespace kelvo
