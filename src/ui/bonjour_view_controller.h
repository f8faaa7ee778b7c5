// BonjourViewController: the sheet in which the remote computer is chosen, without any widget.
#pragma once

#include "support/dnssd_service.h"

#include <QMap>
#include <QSet>
#include <QStringList>

#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace kelvo {

class ArrayController;
class BackgroundQueue;
class Console;
class DispatchQueue;
class DnssdBrowser;
class UserDefaults;

/// What the controller works with. The references outlive everything that waits on the two queues;
/// the rest, what lies in the sheet, outlives the sheet: then no row is selected and nothing is
/// done. A missing array controller or table stops the program once it is needed.
struct BonjourViewControllerParts {
    UserDefaults& defaults;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;
    Console& console;
    DnssdBrowser& browser;
    std::shared_ptr<ArrayController> fArrayController;
    std::function<qsizetype()> selectedRow; ///< of the table, counted from 0, or -1
    std::function<void()> dismiss;          ///< closes the sheet; one that is closed is no error
    std::function<void()> beep;
};

/// Main thread only. Made afresh for each sheet. Work on the main queue keeps the controller alive:
/// a scan runs to its end even when the sheet is closed before.
class BonjourViewController final : public std::enable_shared_from_this<BonjourViewController> {
public:
    static std::shared_ptr<BonjourViewController> make(BonjourViewControllerParts parts);

    /// Starts the first scan 0.1 s later. Called once, when the sheet is shown.
    void viewDidLoad();

    /// Starts a scan: the list is ready after 1.5 s and final after 2.0 s. Computers that are
    /// listed already stay; new ones stand above them.
    void ibSearchBonjour();

    /// Leaves a record of the rows so far and schedules the two filtering passes.
    void ibShowBonjourListInfo();

    /// Filters what the last scan found and shows the result.
    void ibUpdateFilteredList();

    /// Gives each new address of the last scan a row, at the top. Linear in the scan's result.
    void updateFilteredArray();

    /// Stores the selected computer's host name and record and closes the sheet; beeps and stays
    /// when none is selected. A selected row that the list does not have stops the program.
    void ibSelectItem();

    /// A double click, or Return, on a row.
    void handleDoubleClick();

    /// How many rows the table has; asked when the rows have changed.
    qsizetype numberOfRows();

    /// The header of `tableColumn` was clicked.
    void tableViewDidClick(const QString& tableColumn);

    /// Another row, or none, is selected now, says `notification`. `selectedRow` is the sender's;
    /// nothing when the sender is no table.
    void tableViewSelectionDidChange(const QString& notification,
                                     std::optional<qsizetype> selectedRow);

private:
    /// Records, and what the information pass tells and keeps of them.
    struct Told {
        DNSSD_Services records;
        std::vector<QStringList> lines;
        QSet<DNSSD_Service> set;
        QMap<QString, QString> table; ///< dictionaries, each as a line, by address
        QStringList tableText;

        /// Whether it is of `others`, told by the memory that both share.
        bool isOf(const DNSSD_Services& others) const {
            return !tableText.isEmpty() && records.constData() == others.constData();
        }
    };

    explicit BonjourViewController(BonjourViewControllerParts parts);

    static Told told(const DNSSD_Services& records);
    void tellAside();
    ArrayController& arrayController() const;
    void requireTable() const;
    qsizetype selectedRow() const;
    void setScanningBonjour(bool scanning);
    void setDidSelectRow(bool selected);
    void storeChoice(const DNSSD_Service& record);
    QString selectedObjectsText() const;
    void after(double seconds, void (BonjourViewController::*step)());
    void print(const QString& line) const;
    void printInside(QStringView operation, QStringView detail = u".......") const;

    const BonjourViewControllerParts fParts;
    std::optional<DNSSD_Services> fFoundServicesArray;
    std::optional<DNSSD_Services> fMasterServicesArray;
    QSet<DNSSD_Service> fMSet; ///< every record that the last information pass saw
    QSet<QString> fUniqueIP4Address;
    QMap<QString, QString> fFilteredTable; ///< the last dictionary seen, as a line, by address
    DNSSD_Services fFilteredFoundServicesArray;
    Told fTold; ///< of the rows of an earlier scan
};

} // namespace kelvo
