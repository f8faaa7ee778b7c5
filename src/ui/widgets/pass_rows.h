// PassRows: the passes as rows of a tree, newest first.
#pragma once

#include "support/pass_record.h"
#include "support/work_state.h"
#include "ui/widgets/local_day.h"

#include <QAbstractItemModel>
#include <QIcon>

#include <deque>
#include <vector>

namespace kelvo {

/// Passes in a row that brought nothing new on one day are folded into one row above them. While a
/// pass runs it is the first row. Main thread only. Fast with many: a row is looked up, never
/// searched.
class PassRows final : public QAbstractItemModel {
    Q_OBJECT
public:
    enum Column { When, Outcome, Files, Size, Time, Columns };

    struct Icons {
        QIcon well;
        QIcon trouble;
        QIcon running;
    };

    /// Which passes are shown: those that one of them lets through, all of them without any.
    struct Filter {
        bool broughtFiles = false;
        bool inTrouble = false;

        bool lets(const PassRecord& record) const;
    };

    explicit PassRows(Icons icons, QObject* parent = nullptr);

    /// Others from now on, in every row.
    void setIcons(Icons icons);

    /// Newest first.
    void setRecords(std::vector<PassRecord> records);
    /// A pass that has just ended; of more than `most` the oldest goes.
    void addNewest(const PassRecord& record, std::size_t most);
    void setFilter(Filter filter);
    void setWork(const WorkState& work);

    /// All of them, newest first, whatever is shown.
    std::vector<PassRecord> records() const;
    /// Nothing for a row that stands for no pass, or for several.
    const PassRecord* recordAt(const QModelIndex& index) const;
    bool isRunningPass(const QModelIndex& index) const;
    /// The row of the pass `id`; of the newest one when there is none of this number. Invalid when
    /// it is not shown.
    QModelIndex indexOf(qint64 id) const;
    bool has(qint64 id) const;

    QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
    QModelIndex parent(const QModelIndex& child) const override;
    int rowCount(const QModelIndex& parent = {}) const override;
    int columnCount(const QModelIndex& parent = {}) const override;
    QVariant data(const QModelIndex& index, int role) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

private:
    /// One pass, or several folded. Places are those in fRecords, dropped ones counted.
    struct Run {
        std::size_t first = 0;
        std::size_t count = 1;
    };

    const PassRecord& record(std::size_t place) const { return fRecords[place - fDropped]; }
    const Run* runAt(const QModelIndex& index) const;
    int rowOf(std::size_t run) const;
    bool joins(std::size_t place);
    QString text(const PassRecord& record, int column) const;
    QString foldedText(const Run& run, int column) const;
    QString runningText(int column) const;
    void rebuild();
    void show(std::size_t place);
    void dropOldest();

    Icons fIcons;
    std::deque<PassRecord> fRecords; ///< oldest first: new ones are put at the end
    std::size_t fDropped = 0;        ///< how many have left at the front
    std::deque<Run> fRuns;           ///< oldest first
    std::size_t fDroppedRuns = 0;
    Filter fFilter;
    WorkState fWork;
    LocalDay fDays;
};

} // namespace kelvo
