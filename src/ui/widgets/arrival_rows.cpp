#include "ui/widgets/arrival_rows.h"

#include "ui/activity_texts.h"
#include "ui/widgets/elided_label.h"

#include <QFont>
#include <QFontMetrics>
#include <QGuiApplication>
#include <QPalette>

namespace kelvo {

void ArrivalRows::setArrivals(const std::vector<KeptArrival>& arrivals, const QString& folder) {
    beginResetModel();
    fFolder = folder;
    fDays.clear();
    fFaults.clear();
    endResetModel();
    addOlder(arrivals);
}

void ArrivalRows::addOlder(const std::vector<KeptArrival>& arrivals) {
    for (auto next = arrivals.begin(); next != arrivals.end();) {
        const QDate date = fLocalDay.of(next->arrival.arrived);
        const auto end = std::find_if(next, arrivals.end(), [&](const KeptArrival& arrival) {
            return fLocalDay.of(arrival.arrival.arrived) != date;
        });
        if (fDays.empty() || fDays.back().day != date) {
            beginInsertRows({}, rowCount(), rowCount());
            fDays.push_back({date, {}});
            endInsertRows();
        }
        std::deque<KeptArrival>& files = fDays.back().arrivals;
        const auto row = static_cast<int>(files.size());
        beginInsertRows(index(rowCount() - 1, 0), row, row + static_cast<int>(end - next) - 1);
        files.insert(files.end(), next, end);
        endInsertRows();
        next = end;
    }
}

void ArrivalRows::addNewer(const std::vector<KeptArrival>& arrivals) {
    for (auto each = arrivals.rbegin(); each != arrivals.rend(); ++each) {
        const KeptArrival& arrival = *each;
        if (arrival.id <= newest())
            continue;
        const QDate date = fLocalDay.of(arrival.arrival.arrived);
        if (fDays.empty() || fDays.front().day != date) {
            beginInsertRows({}, 0, 0);
            fDays.push_front({date, {}});
            --fFirst;
            endInsertRows();
        }
        beginInsertRows(index(0, 0), 0, 0);
        fDays.front().arrivals.push_front(arrival);
        endInsertRows();
    }
}

const KeptArrival* ArrivalRows::arrivalAt(const QModelIndex& index) const {
    if (!index.isValid() || index.internalId() == 0)
        return nullptr;
    return &fDays[index.internalId() - fFirst].arrivals[static_cast<std::size_t>(index.row())];
}

qint64 ArrivalRows::newest() const {
    for (const Day& day : fDays) {
        if (!day.arrivals.empty())
            return day.arrivals.front().id;
    }
    return 0;
}

qint64 ArrivalRows::oldest() const {
    return fDays.empty() ? 0 : fDays.back().arrivals.back().id;
}

QString ArrivalRows::nameOf(const KeptArrival& arrival) const {
    return arrivedName(arrival.arrival.path, fFolder);
}

void ArrivalRows::setFault(qint64 id, const QString& reason) {
    if (reason.isEmpty())
        fFaults.erase(id);
    else
        fFaults[id] = reason;
    for (int row = 0; row < rowCount(); ++row) {
        const QModelIndex day = index(row, 0);
        Q_EMIT dataChanged(index(0, 0, day), index(rowCount(day) - 1, Columns - 1, day));
    }
}

// -- as a model; the id of an index is 0 for a day, else the number of its day

QModelIndex ArrivalRows::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    return createIndex(
        row, column, parent.isValid() ? fFirst + static_cast<quintptr>(parent.row()) : quintptr{0});
}

QModelIndex ArrivalRows::parent(const QModelIndex& child) const {
    if (!child.isValid() || child.internalId() == 0)
        return {};
    return createIndex(static_cast<int>(child.internalId() - fFirst), 0, quintptr{0});
}

int ArrivalRows::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(fDays.size());
    if (parent.internalId() != 0 || parent.column() != 0)
        return 0;
    return static_cast<int>(fDays[static_cast<std::size_t>(parent.row())].arrivals.size());
}

int ArrivalRows::columnCount(const QModelIndex&) const {
    return Columns;
}

QVariant ArrivalRows::data(const QModelIndex& index, int role) const {
    if (role == Qt::SizeHintRole)
        return QSize(0, QFontMetrics(QGuiApplication::font()).lineSpacing() * 3 / 2);
    if (const KeptArrival* arrival = arrivalAt(index))
        return ofArrival(*arrival, index.column(), role);
    if (!index.isValid() || index.column() != 0)
        return {};
    if (role == Qt::DisplayRole)
        return dayText(fDays[static_cast<std::size_t>(index.row())].day, QDate::currentDate());
    if (role == Qt::FontRole) {
        QFont bold;
        bold.setBold(true);
        return bold;
    }
    return {};
}

QVariant ArrivalRows::ofArrival(const KeptArrival& arrival, int column, int role) const {
    const auto fault = fFaults.find(arrival.id);
    switch (role) {
    case Qt::DisplayRole:
        if (column == Time)
            return timeText(arrival.arrival.arrived);
        if (column == Size)
            return bytesText(arrival.arrival.size);
        return fault == fFaults.end() ? nameOf(arrival)
                                      : tr("%1 (%2)", "a movie, what is the matter with it")
                                            .arg(nameOf(arrival), fault->second);
    case Qt::ToolTipRole:
        return column == Name ? plainToolTip(arrivedName(arrival.arrival.path, {})) : QVariant();
    case Qt::ForegroundRole:
        return fault == fFaults.end()
                   ? QVariant()
                   : QGuiApplication::palette().brush(QPalette::Disabled, QPalette::Text);
    case Qt::TextAlignmentRole:
        return column == Size
                   ? QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter))
                   : QVariant();
    default:
        return {};
    }
}

QVariant ArrivalRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= Columns)
        return QAbstractItemModel::headerData(section, orientation, role);
    const QString names[Columns] = {tr("Time"), tr("Name"), tr("Size")};
    return names[section];
}

} // namespace kelvo
