#include "ui/widgets/service_list.h"

#include <QHeaderView>

namespace kelvo {

ServiceList::ServiceList(QTableView& table) : fTable(&table), fRows(new ServiceRows(&table)) {
    table.setModel(fRows);
    table.setSelectionBehavior(QAbstractItemView::SelectRows);
    table.setSelectionMode(QAbstractItemView::SingleSelection);
    table.setTabKeyNavigation(false);
    table.verticalHeader()->hide();
    table.horizontalHeader()->setSectionResizeMode(QHeaderView::Stretch);
}

void ServiceList::setContent(const std::optional<DNSSD_Services>& content) {
    fContent = content;
    if (fRows)
        fRows->setRecords(content.value_or(DNSSD_Services()));
}

qsizetype ServiceList::selectionIndex() const {
    return fTable && fTable->currentIndex().isValid() ? fTable->currentIndex().row() : -1;
}

} // namespace kelvo
