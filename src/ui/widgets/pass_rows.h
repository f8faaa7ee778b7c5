// PassRows: the passes as rows of a table, newest first.
#pragma once

#include "support/pass_record.h"

#include <QAbstractTableModel>
#include <QIcon>

#include <deque>
#include <vector>

namespace kelvo {

/// Main thread only. Fast with many: a row is looked up, never searched.
class PassRows final : public QAbstractTableModel {
    Q_OBJECT
public:
    enum Column { When, Outcome, Files, Size, Time, Columns };

    PassRows(const QIcon& well, const QIcon& trouble, QObject* parent = nullptr);

    /// Newest first.
    void setRecords(std::vector<PassRecord> records);
    /// A pass that has just ended; of more than `most` the oldest goes.
    void addNewest(const PassRecord& record, std::size_t most);
    void setTroubleOnly(bool troubleOnly);

    /// All of them, newest first, whatever is shown.
    std::vector<PassRecord> records() const;
    /// Nothing for a row that is not there.
    const PassRecord* recordAt(int row) const;

    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    QString text(const PassRecord& record, int column) const;
    void showWhatFits();
    void dropOldest();

    const QIcon fWell;
    const QIcon fTrouble;
    std::deque<PassRecord> fRecords; ///< oldest first: new ones are put at the end
    std::size_t fDropped = 0;        ///< how many have left at the front
    std::deque<std::size_t> fShown;  ///< places in fRecords, dropped ones counted, oldest first
    bool fTroubleOnly = false;
};

} // namespace kelvo
