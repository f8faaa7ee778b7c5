#include "ui/widgets/pass_rows.h"

#include "support/plain_line.h"
#include "ui/activity_texts.h"
#include "ui/pass_words.h"

#include <iterator>

namespace kelvo {

PassRows::PassRows(const QIcon& well, const QIcon& trouble, QObject* parent)
    : QAbstractTableModel(parent), fWell(well), fTrouble(trouble) {}

void PassRows::setRecords(std::vector<PassRecord> records) {
    beginResetModel();
    fRecords.assign(std::make_move_iterator(records.rbegin()),
                    std::make_move_iterator(records.rend()));
    fDropped = 0;
    showWhatFits();
    endResetModel();
}

void PassRows::addNewest(const PassRecord& record, std::size_t most) {
    while (fRecords.size() >= most)
        dropOldest();
    fRecords.push_back(record);
    if (fTroubleOnly && record.cause == PassCause::Well)
        return;
    beginInsertRows({}, 0, 0);
    fShown.push_back(fDropped + fRecords.size() - 1);
    endInsertRows();
}

void PassRows::dropOldest() {
    const bool shown = !fShown.empty() && fShown.front() == fDropped;
    if (shown) {
        beginRemoveRows({}, rowCount() - 1, rowCount() - 1);
        fShown.pop_front();
    }
    fRecords.pop_front();
    ++fDropped;
    if (shown)
        endRemoveRows();
}

void PassRows::setTroubleOnly(bool troubleOnly) {
    beginResetModel();
    fTroubleOnly = troubleOnly;
    showWhatFits();
    endResetModel();
}

void PassRows::showWhatFits() {
    fShown.clear();
    for (std::size_t i = 0; i < fRecords.size(); ++i) {
        if (!fTroubleOnly || fRecords[i].cause != PassCause::Well)
            fShown.push_back(fDropped + i);
    }
}

std::vector<PassRecord> PassRows::records() const {
    return {fRecords.rbegin(), fRecords.rend()};
}

const PassRecord* PassRows::recordAt(int row) const {
    const auto place = static_cast<std::size_t>(row);
    if (row < 0 || place >= fShown.size())
        return nullptr;
    return &fRecords[fShown[fShown.size() - 1 - place] - fDropped];
}

int PassRows::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : static_cast<int>(fShown.size());
}

int PassRows::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : Columns;
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

QVariant PassRows::data(const QModelIndex& index, int role) const {
    const PassRecord* record = recordAt(index.row());
    if (!record)
        return {};
    if (role == Qt::DisplayRole)
        return text(*record, index.column());
    if (role == Qt::ToolTipRole && index.column() == Outcome)
        return QString(u"<p>" + text(*record, Outcome).toHtmlEscaped() + u"</p>");
    if (role == Qt::DecorationRole && index.column() == Outcome)
        return record->cause == PassCause::Well ? fWell : fTrouble;
    if (role == Qt::TextAlignmentRole && index.column() >= Files)
        return QVariant::fromValue(Qt::Alignment(Qt::AlignRight | Qt::AlignVCenter));
    return {};
}

QVariant PassRows::headerData(int section, Qt::Orientation orientation, int role) const {
    if (orientation != Qt::Horizontal || role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    switch (section) {
    case When:
        return tr("When");
    case Outcome:
        return tr("Outcome");
    case Files:
        return tr("Files");
    case Size:
        return tr("Size");
    case Time:
        return tr("Time");
    default:
        return {};
    }
}

} // namespace kelvo
