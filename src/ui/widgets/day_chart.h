// DayChart: what arrived on each of the last days, as bars; for a screen reader a table.
#pragma once

#include "ports/pass_store.h"

#include <QStandardItemModel>
#include <QTableView>

namespace kelvo {

/// A day in trouble has a triangle above its bar. Arrow keys go from day to day.
class DayChart final : public QTableView {
    Q_OBJECT
public:
    static constexpr int cDays = 30;
    enum Column { Day, Size, Movies, Trouble, Columns };

    explicit DayChart(QWidget* parent = nullptr);

    /// Days that are missing brought nothing; `today` is the last one shown.
    void setDays(const std::vector<DayOfPasses>& days, QDate today);

    QRect visualRect(const QModelIndex& index) const override;
    QModelIndex indexAt(const QPoint& point) const override;
    void scrollTo(const QModelIndex&, ScrollHint) override {}
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
    void focusInEvent(QFocusEvent* event) override;

private:
    QStandardItemModel fModel{cDays, Columns};
    std::vector<DayOfPasses> fDays; ///< all of them, oldest first
    qint64 fMost = 0;               ///< bytes of the greatest day
};

} // namespace kelvo
