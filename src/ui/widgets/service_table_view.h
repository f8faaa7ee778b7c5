// ServiceTableView: the sheet's table as its controller knows it; once the sheet is gone it is an
// empty table.
#pragma once

#include "ports/array_controller.h"
#include "ports/sheet.h"
#include "ports/table_view.h"

#include <QPointer>

namespace kelvo {

class BonjourSheet;

class ServiceTableView final : public ArrayController, public TableView, public Sheet {
public:
    explicit ServiceTableView(BonjourSheet& sheet);
    ~ServiceTableView() override;

    void setContent(const std::optional<DNSSD_Services>& content) override;
    std::optional<DNSSD_Services> content() const override { return fContent; }
    std::optional<DNSSD_Services> arrangedObjects() const override;
    qsizetype selectionIndex() const override { return selectedRow(); }

    void setDelegate(std::weak_ptr<TableViewDelegate> delegate) override;
    void setDoubleAction(std::function<void()> action) override;
    QList<qsizetype> selectedRowIndexes() const override;
    qsizetype selectedRow() const override;

    void dismiss() override;
    void beep() override;

    /// What a person did to the table.
    void doubleClicked();
    void headerClicked(const QString& column);
    void selectionChanged();

private:
    QPointer<BonjourSheet> fSheet;
    std::optional<DNSSD_Services> fContent;
    std::weak_ptr<TableViewDelegate> fDelegate;
    std::function<void()> fDoubleAction;
};

} // namespace kelvo
