// ArrivalRows: what has arrived as a tree: days, newest first, and below each its files.
#pragma once

#include "ports/pass_store.h"
#include "ui/widgets/local_day.h"

#include <QAbstractItemModel>

#include <deque>
#include <map>

namespace kelvo {

/// Main thread only.
class ArrivalRows final : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { Time, Name, Size, Columns };

    using QAbstractItemModel::QAbstractItemModel;

    /// Newest first; names are shown without `folder` in front of them.
    void setArrivals(const std::vector<KeptArrival>& arrivals, const QString& folder);
    /// Older than all that are there, newest first.
    void addOlder(const std::vector<KeptArrival>& arrivals);
    /// Newest first; those that are not there yet.
    void addNewer(const std::vector<KeptArrival>& arrivals);

    /// Nothing for the row of a day.
    const KeptArrival* arrivalAt(const QModelIndex& index) const;
    /// The numbers of the newest and of the oldest one; 0 while there is none.
    qint64 newest() const;
    qint64 oldest() const;

    QString nameOf(const KeptArrival& arrival) const;

    /// Shows that the file of the arrival `id` cannot be opened; an empty `reason`: that it can.
    void setFault(qint64 id, const QString& reason);

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    struct Day {
        QDate day;
        std::deque<KeptArrival> arrivals; ///< newest first
    };

    QVariant ofArrival(const KeptArrival& arrival, int column, int role) const;

    QString fFolder;
    std::deque<Day> fDays;                ///< newest first
    quintptr fFirst = quintptr{1} << 20U; ///< the number of the newest day; older ones follow
    std::map<qint64, QString> fFaults;    ///< by the arrival's number
    LocalDay fLocalDay;
};

} // namespace kelvo
