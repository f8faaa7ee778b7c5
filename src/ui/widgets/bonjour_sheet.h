// BonjourSheet: the list of computers from which the remote Mac is chosen.
#pragma once

#include "support/dnssd_service.h"
#include "support/subscription.h"
#include "ui/empty_list_watch.h"
#include "ui/widgets/service_rows.h"

#include <QDialog>

#include <memory>
#include <vector>

namespace Ui {
class BonjourSheet;
}

namespace kelvo {

class ArrayController;
class BackgroundQueue;
class BonjourViewController;
class Console;
class DispatchQueue;
class UserDefaults;

/// What the sheet and its controller work with; all of it outlives them.
struct BonjourSheetParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    Console& console;
    DnssdBrowser& browser;
    /// Whether this machine is in a network; does not block.
    std::function<bool()> hasNetwork = [] { return true; };
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
    std::shared_ptr<BonjourViewController> makeController();
    void setRecords(const DNSSD_Services& records);
    int selectedRow() const;
    void selectionChanged();
    void showState();
    void showPage(bool empty);
    void showWhyEmpty(WhyEmpty why);

    const BonjourSheetParts fParts;
    std::unique_ptr<Ui::BonjourSheet> fUi;
    ServiceRows fRows;
    bool fFilled = false; ///< a list was shown, if only an empty one
    const std::shared_ptr<ArrayController> fRecords;
    const std::shared_ptr<BonjourViewController> fController;
    EmptyListWatch fEmptyWatch;
    std::vector<Subscription> fObservations;
};

/// Makes the sheet of this identifier afresh and shows it on `mainWindow`; returns at once, the
/// sheet closes itself. False when there is no such sheet. Main thread.
bool presentSheet(QStringView identifier, const BonjourSheetParts& parts, QWidget& mainWindow);

} // namespace kelvo
