// TableView and TableViewDelegate: a table of rows, and the one who answers for it.
#pragma once

#include <QList>
#include <QString>

#include <functional>
#include <memory>

namespace kelvo {

class TableView;

struct TableViewNotification {
    QString name;
    TableView* object = nullptr; ///< null when the sender is no table
};

/// Called by the table on the main thread.
class TableViewDelegate {
public:
    virtual ~TableViewDelegate() = default;

    /// How many rows there are; asked when the rows have changed.
    virtual qsizetype numberOfRows(TableView& tableView) = 0;

    /// The header of `tableColumn` was clicked.
    virtual void tableViewDidClick(TableView& tableView, const QString& tableColumn) = 0;

    /// Another row, or none, is selected now.
    virtual void tableViewSelectionDidChange(const TableViewNotification& notification) = 0;
};

/// Main thread only.
class TableView {
public:
    virtual ~TableView() = default;

    /// Asks and tells `delegate` from now on, as long as it lives.
    virtual void setDelegate(std::weak_ptr<TableViewDelegate> delegate) = 0;

    /// A double click, or Return, on a row calls `action`; it may take the table away.
    virtual void setDoubleAction(std::function<void()> action) = 0;

    /// The selected rows in ascending order, counted from 0.
    virtual QList<qsizetype> selectedRowIndexes() const = 0;

    /// The row selected last, or -1.
    virtual qsizetype selectedRow() const = 0;
};

} // namespace kelvo
