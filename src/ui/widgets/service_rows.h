// ServiceRows: service records as the rows of a table: name, address, host.
#pragma once

#include "support/dnssd_service.h"

#include <QAbstractTableModel>

namespace kelvo {

class ServiceRows final : public QAbstractTableModel {
    Q_OBJECT
public:
    using QAbstractTableModel::QAbstractTableModel;

    void setRecords(const DNSSD_Services& records);
    const DNSSD_Services& records() const { return fRecords; }

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    DNSSD_Services fRecords;
};

} // namespace kelvo
