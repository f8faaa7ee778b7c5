#include "ui/widgets/service_table_view.h"

#include "ui/widgets/bonjour_sheet.h"

#include <QApplication>

#include <algorithm>

namespace kelvo {

ServiceTableView::ServiceTableView(BonjourSheet& sheet) : fSheet(&sheet) {}

ServiceTableView::~ServiceTableView() = default;

void ServiceTableView::setContent(const std::optional<DNSSD_Services>& content) {
    fContent = content;
    DNSSD_Services shown = content.value_or(DNSSD_Services());
    if (const auto delegate = fDelegate.lock())
        shown.resize(std::min(shown.size(), delegate->numberOfRows(*this)));
    if (fSheet)
        fSheet->setRecords(shown);
}

std::optional<DNSSD_Services> ServiceTableView::arrangedObjects() const {
    if (!fContent)
        return std::nullopt;
    return fSheet ? fSheet->fRows.records() : DNSSD_Services();
}

void ServiceTableView::setDelegate(std::weak_ptr<TableViewDelegate> delegate) {
    fDelegate = std::move(delegate);
}

void ServiceTableView::setDoubleAction(std::function<void()> action) {
    fDoubleAction = std::move(action);
}

QList<qsizetype> ServiceTableView::selectedRowIndexes() const {
    const qsizetype row = selectedRow();
    return row < 0 ? QList<qsizetype>() : QList<qsizetype>{row};
}

qsizetype ServiceTableView::selectedRow() const {
    return fSheet ? fSheet->selectedRow() : -1;
}

void ServiceTableView::dismiss() {
    if (fSheet)
        fSheet->accept();
}

void ServiceTableView::beep() {
    QApplication::beep();
}

void ServiceTableView::doubleClicked() {
    if (fDoubleAction)
        fDoubleAction();
}

void ServiceTableView::headerClicked(const QString& column) {
    if (const auto delegate = fDelegate.lock())
        delegate->tableViewDidClick(*this, column);
}

void ServiceTableView::selectionChanged() {
    if (const auto delegate = fDelegate.lock())
        delegate->tableViewSelectionDidChange(
            {QStringLiteral("TableViewSelectionDidChange"), this});
}

} // namespace kelvo
