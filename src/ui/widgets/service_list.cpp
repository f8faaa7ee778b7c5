#include "ui/widgets/service_list.h"

#include "support/array_controller.h"
#include "ui/widgets/service_rows.h"

#include <QHeaderView>
#include <QPointer>
#include <QTableView>

namespace kelvo {

void showServices(ArrayController& records, QTableView& table) {
    auto* rows = new ServiceRows(&table);
    table.setModel(rows);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
    QObject::connect(table.selectionModel(), &QItemSelectionModel::currentRowChanged, &table,
                     [&records](const QModelIndex& row) { records.setSelectionIndex(row.row()); });
    const auto show = [&records, rows = QPointer(rows)] {
        if (!rows)
            return;
        rows->setRecords(records.content().value_or(DNSSD_Services()));
        records.setSelectionIndex(-1);
    };
    show();
    records.setShow(show);
}

} // namespace kelvo
