// BonjourSheet: the list of computers from which the remote Mac is chosen.
#pragma once

#include "ports/sheet_opener.h"
#include "support/dnssd_service.h"
#include "support/subscription.h"
#include "ui/widgets/service_rows.h"

#include <QDialog>
#include <QPointer>

#include <functional>
#include <memory>
#include <vector>

namespace Ui {
class BonjourSheet;
}

namespace kelvo {

class BonjourViewController;
class Console;
class DispatchQueue;
class DnssdBrowser;
class ServiceTableView;
class UserDefaults;

/// What the sheet and its controller work with; all of it outlives them.
struct BonjourSheetParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    Console& console;
    DnssdBrowser& browser;
};

/// Window-modal; shows what its controller decides and what the settings say. Deleted once closed.
class BonjourSheet final : public QDialog {
    Q_OBJECT
public:
    BonjourSheet(const BonjourSheetParts& parts, QWidget* parent);
    ~BonjourSheet() override;

    /// Shows the sheet and begins the first scan.
    void present();

private:
    friend class ServiceTableView;
    void setRecords(const DNSSD_Services& records);
    int selectedRow() const;
    void selectionChanged();
    void showState();

    const BonjourSheetParts fParts;
    std::unique_ptr<Ui::BonjourSheet> fUi;
    ServiceRows fRows;
    bool fFilled = false; ///< a list was shown, if only an empty one
    std::shared_ptr<ServiceTableView> fOutlets;
    std::shared_ptr<BonjourViewController> fController;
    std::vector<Subscription> fObservations;
};

/// Opens the program's sheets on the main window; nothing but the list of computers so far.
class WidgetSheetOpener final : public SheetOpener {
public:
    WidgetSheetOpener(QWidget& mainWindow, const BonjourSheetParts& parts)
        : fMainWindow(&mainWindow), fParts(parts) {}

    bool presentSheet(QStringView identifier) override;

private:
    QPointer<QWidget> fMainWindow;
    const BonjourSheetParts fParts;
};

} // namespace kelvo
