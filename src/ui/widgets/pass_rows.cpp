#include "ui/widgets/pass_rows.h"

#include "support/plain_line.h"
#include "ui/activity_texts.h"
#include "ui/pass_words.h"
#include "ui/widgets/elided_label.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace kelvo {
namespace {

bool broughtFiles(const PassRecord& record) {
    return record.transfer.files.value_or(0) > 0 || !record.arrivals.empty();
}

bool broughtNothing(const PassRecord& record) {
    return record.cause == PassCause::Well && record.transfer.files == 0;
}

} // namespace

bool PassRows::Filter::lets(const PassRecord& record) const {
    return (!broughtFiles && !inTrouble) || (broughtFiles && kelvo::broughtFiles(record)) ||
           (inTrouble && isTrouble(record.cause));
}

PassRows::PassRows(Icons icons, QObject* parent)
    : QAbstractItemModel(parent), fIcons(std::move(icons)) {}

void PassRows::setIcons(Icons icons) {
    fIcons = std::move(icons);
    if (const int rows = rowCount(); rows > 0)
        Q_EMIT dataChanged(index(0, Outcome), index(rows - 1, Outcome), {Qt::DecorationRole});
}

// -- what is shown

void PassRows::setRecords(std::vector<PassRecord> records) {
    beginResetModel();
    fRecords.assign(std::make_move_iterator(records.rbegin()),
                    std::make_move_iterator(records.rend()));
    fDropped = 0;
    rebuild();
    endResetModel();
}

void PassRows::setFilter(Filter filter) {
    beginResetModel();
    fFilter = filter;
    rebuild();
    endResetModel();
}

void PassRows::rebuild() {
    fRuns.clear();
    fDroppedRuns = 0;
    for (std::size_t place = fDropped; place < fDropped + fRecords.size(); ++place) {
        if (joins(place))
            ++fRuns.back().count;
        else if (fFilter.lets(record(place)))
            fRuns.push_back({place, 1});
    }
}

/// Whether the pass at `place`, newer than all that are shown, belongs to the newest run.
bool PassRows::joins(std::size_t place) {
    return !fRuns.empty() && fRuns.back().first + fRuns.back().count == place &&
           fFilter.lets(record(place)) && broughtNothing(record(place)) &&
           broughtNothing(record(place - 1)) &&
           fDays.of(record(place - 1).began) == fDays.of(record(place).began);
}

void PassRows::addNewest(const PassRecord& record, std::size_t most) {
    while (fRecords.size() >= most)
        dropOldest();
    fRecords.push_back(record);
    show(fDropped + fRecords.size() - 1);
}

void PassRows::show(std::size_t place) {
    const int top = isRunning(fWork) ? 1 : 0;
    if (joins(place)) {
        const QModelIndex run = index(top, 0);
        // A pass that stood for itself goes below the row that now stands for both.
        const int last = fRuns.back().count == 1 ? 1 : 0;
        beginInsertRows(run, 0, last);
        ++fRuns.back().count;
        endInsertRows();
        Q_EMIT dataChanged(run, index(top, Columns - 1));
    } else if (fFilter.lets(record(place))) {
        beginInsertRows({}, top, top);
        fRuns.push_back({place, 1});
        endInsertRows();
    }
}

void PassRows::dropOldest() {
    const bool shown = !fRuns.empty() && fRuns.front().first == fDropped;
    const int row = rowCount() - 1;
    if (shown && fRuns.front().count == 1) {
        beginRemoveRows({}, row, row);
        fRuns.pop_front();
        ++fDroppedRuns;
        endRemoveRows();
    } else if (shown) {
        Run& run = fRuns.front();
        const int last = static_cast<int>(run.count) - 1;
        beginRemoveRows(index(row, 0), run.count == 2 ? 0 : last, last);
        ++run.first;
        --run.count;
        endRemoveRows();
        Q_EMIT dataChanged(index(row, 0), index(row, Columns - 1));
    }
    fRecords.pop_front();
    ++fDropped;
}

void PassRows::setWork(const WorkState& work) {
    const bool was = isRunning(fWork);
    const bool is = isRunning(work);
    if (!was && is)
        beginInsertRows({}, 0, 0);
    else if (was && !is)
        beginRemoveRows({}, 0, 0);
    fWork = work;
    if (!was && is)
        endInsertRows();
    else if (was && !is)
        endRemoveRows();
    else if (is)
        Q_EMIT dataChanged(index(0, 0), index(0, Columns - 1));
}

// -- what stands where

std::vector<PassRecord> PassRows::records() const {
    return {fRecords.rbegin(), fRecords.rend()};
}

bool PassRows::isRunningPass(const QModelIndex& index) const {
    return index.isValid() && index.internalId() == 0 && index.row() == 0 && isRunning(fWork);
}

/// Of a pass below a run, that run. Nothing for the pass that runs.
const PassRows::Run* PassRows::runAt(const QModelIndex& index) const {
    if (!index.isValid() || isRunningPass(index))
        return nullptr;
    if (index.internalId() > 0)
        return &fRuns[index.internalId() - 1 - fDroppedRuns];
    const auto row = static_cast<std::size_t>(index.row() - (isRunning(fWork) ? 1 : 0));
    return row < fRuns.size() ? &fRuns[fRuns.size() - 1 - row] : nullptr;
}

int PassRows::rowOf(std::size_t run) const {
    return static_cast<int>(fRuns.size() - 1 - run) + (isRunning(fWork) ? 1 : 0);
}

const PassRecord* PassRows::recordAt(const QModelIndex& index) const {
    const Run* run = runAt(index);
    if (!run)
        return nullptr;
    if (index.internalId() > 0)
        return &record(run->first + run->count - 1 - static_cast<std::size_t>(index.row()));
    return run->count == 1 ? &record(run->first) : nullptr;
}

bool PassRows::has(qint64 id) const {
    return std::ranges::find(fRecords, id, &PassRecord::id) != fRecords.end();
}

QModelIndex PassRows::indexOf(qint64 id) const {
    if (fRecords.empty())
        return {};
    auto found = std::ranges::find(fRecords, id, &PassRecord::id);
    if (found == fRecords.end())
        --found;
    const std::size_t place = fDropped + static_cast<std::size_t>(found - fRecords.begin());
    auto run = std::ranges::upper_bound(fRuns, place, {}, &Run::first);
    if (run == fRuns.begin())
        return {};
    --run;
    if (place >= run->first + run->count)
        return {};
    const QModelIndex top = index(rowOf(static_cast<std::size_t>(run - fRuns.begin())), 0);
    return run->count == 1 ? top
                           : index(static_cast<int>(run->first + run->count - 1 - place), 0, top);
}

// -- as a model; the id of an index is 0 at the top, else the number of its run, counted from 1

QModelIndex PassRows::index(int row, int column, const QModelIndex& parent) const {
    if (!hasIndex(row, column, parent))
        return {};
    const Run* run = runAt(parent);
    return createIndex(row, column,
                       run ? fDroppedRuns + 1 + fRuns.size() - 1 -
                                 static_cast<std::size_t>(parent.row() - (isRunning(fWork) ? 1 : 0))
                           : quintptr{0});
}

QModelIndex PassRows::parent(const QModelIndex& child) const {
    if (!child.isValid() || child.internalId() == 0)
        return {};
    return createIndex(rowOf(child.internalId() - 1 - fDroppedRuns), 0, quintptr{0});
}

int PassRows::rowCount(const QModelIndex& parent) const {
    if (!parent.isValid())
        return static_cast<int>(fRuns.size()) + (isRunning(fWork) ? 1 : 0);
    const Run* run = parent.column() == 0 && parent.internalId() == 0 ? runAt(parent) : nullptr;
    return run && run->count > 1 ? static_cast<int>(run->count) : 0;
}

int PassRows::columnCount(const QModelIndex&) const {
    return Columns;
}

QString PassRows::text(const PassRecord& record, int column) const {
    switch (column) {
    case When:
        return beganText(record);
    case Outcome:
        return withVisibleControls(sentenceFor(record));
    case Files:
        return filesText(record);
    case Size:
        return sizeText(record.transfer);
    case Time:
        return secondsText(record.seconds);
    default:
        return {};
    }
}

QString PassRows::foldedText(const Run& run, int column) const {
    const PassRecord& newest = record(run.first + run.count - 1);
    if (column == When)
        return beganText(newest);
    return column == Outcome ? kelvo::foldedText(static_cast<qint64>(run.count),
                                                 record(run.first).began, newest.began)
                             : QString();
}

QString PassRows::runningText(int column) const {
    switch (column) {
    case When:
        return tr("Now");
    case Outcome:
        return kelvo::runningText(fWork);
    case Time:
        return fWork.timeLeft;
    default:
        return {};
    }
}

QVariant PassRows::data(const QModelIndex& index, int role) const {
    if (role == Qt::TextAlignmentRole)
        return index.column() < Files
                   ? QVariant()
                   : QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    const Run* run = runAt(index);
    const PassRecord* record = recordAt(index);
    if (!run && !isRunningPass(index))
        return {};
    if (role == Qt::DecorationRole && index.column() == Outcome) {
        if (!run)
            return fIcons.running;
        if (record && isTrouble(record->cause))
            return fIcons.trouble;
        return record && record->cause != PassCause::Well ? QVariant() : fIcons.well;
    }
    if (role != Qt::DisplayRole && (role != Qt::ToolTipRole || index.column() != Outcome))
        return {};
    const QString shown = record ? text(*record, index.column())
                          : run  ? foldedText(*run, index.column())
                                 : runningText(index.column());
    return role == Qt::DisplayRole ? shown : plainToolTip(shown);
}

QVariant PassRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section < 0 ||
        section >= Columns)
        return QAbstractItemModel::headerData(section, orientation, role);
    const QString names[Columns] = {tr("When"), tr("Outcome"), tr("Files"), tr("Size"), tr("Time")};
    return names[section];
}

} // namespace kelvo
