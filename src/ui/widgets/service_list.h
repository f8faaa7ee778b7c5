// ServiceList: the records that a table on the main window shows.
#pragma once

#include "ports/array_controller.h"
#include "ui/widgets/service_rows.h"

#include <QPointer>
#include <QTableView>

namespace kelvo {

/// The table may go first.
class ServiceList final : public ArrayController {
public:
    explicit ServiceList(QTableView& table);

    void setContent(const std::optional<DNSSD_Services>& content) override;
    std::optional<DNSSD_Services> content() const override { return fContent; }
    std::optional<DNSSD_Services> arrangedObjects() const override { return fContent; }
    qsizetype selectionIndex() const override;

private:
    QPointer<QTableView> fTable;
    QPointer<ServiceRows> fRows; ///< owned by the table
    std::optional<DNSSD_Services> fContent;
};

} // namespace kelvo
