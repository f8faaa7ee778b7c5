#include "ui/bonjour_view_controller.h"

#include "discovery/record_texts.h"
#include "discovery/service_filter.h"
#include "ports/console.h"
#include "ports/dispatch_queue.h"
#include "ports/dnssd_browser.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/array_controller.h"
#include "support/fatal.h"
#include "support/text.h"

#include <utility>

namespace kelvo {
namespace {

constexpr double cFirstScanDelay = 0.1;
constexpr double cScanningSignDelay = 0.1;
constexpr double cScanTime = 1.0;
constexpr double cFilterDelay = 0.5;
constexpr QStringView cEmptyLines = u"\n";
constexpr QStringView cTypeName = u"BonjourViewController";

/// The record at `row`; a row that is not there is a fault of the table's.
const DNSSD_Service& entryAt(const DNSSD_Services& records, qsizetype row) {
    if (row >= records.size())
        stopProgram("The selected row is past the end of the list.");
    return records.at(row);
}

QString stringEntry(const QVariantMap& dictionary, const QString& key) {
    return plainText(dictionary.value(key).toString());
}

} // namespace

std::shared_ptr<BonjourViewController>
BonjourViewController::make(BonjourViewControllerParts parts) {
    return std::shared_ptr<BonjourViewController>(new BonjourViewController(std::move(parts)));
}

BonjourViewController::BonjourViewController(BonjourViewControllerParts parts)
    : fParts(std::move(parts)) {}

void BonjourViewController::viewDidLoad() {
    printInside(u"viewDidLoad()");
    requireTable();
    after(cFirstScanDelay, &BonjourViewController::ibSearchBonjour);
}

// -- scanning

void BonjourViewController::ibSearchBonjour() {
    printInside(u"ibSearchBonjour(_:)");
    fParts.mainQueue.asyncAfter(cScanningSignDelay,
                                [self = shared_from_this()] { self->setScanningBonjour(true); });
    // What was admitted before stays: a further scan only adds to it.
    fMSet.clear();
    fFilteredTable.clear();
    fParts.browser.browseForType(cBrowsedType.toString());
    fParts.mainQueue.asyncAfter(cScanTime, [self = shared_from_this()] {
        self->fMasterServicesArray = self->fParts.browser.services();
        self->arrayController().setContent(self->fFilteredFoundServicesArray);
        self->ibShowBonjourListInfo();
    });
}

void BonjourViewController::ibShowBonjourListInfo() {
    constexpr QStringView operation = u"ibShowBonjourListInfo(_:)";
    print(u"self.fFoundServicesArray[" + countText(fFoundServicesArray) + u"] item");
    print(u"self.fTableView.selectedRow =>>>    " + QString::number(selectedRow()));
    for (int time = 0; time < 2; ++time)
        printInside(operation, QString(u".......self.fArrayController.selectedObjects = " +
                                       selectedObjectsText()));
    const DNSSD_Services found = fFoundServicesArray.value_or(DNSSD_Services());
    if (!fTold.isOf(found))
        fTold = told(found);
    fMSet = fTold.set;
    fFilteredTable = fTold.table;
    fParts.console.printAll(fTold.lines);
    for (int time = 0; time < 2; ++time)
        print(cEmptyLines.toString());
    fParts.console.print(
        QStringList{insideLine(cTypeName, operation, u".......self.fFilteredTable = ")} +
        fTold.tableText);
    for (int time = 0; time < 2; ++time)
        print(cEmptyLines.toString());
    fParts.mainQueue.asyncAfter(cFilterDelay, [self = shared_from_this()] {
        self->ibUpdateFilteredList();
        self->after(cFilterDelay, &BonjourViewController::ibUpdateFilteredList);
        self->setScanningBonjour(false);
    });
}

// -- one row an address

void BonjourViewController::ibUpdateFilteredList() {
    constexpr QStringView operation = u"ibUpdateFilteredList(_:)";
    printInside(operation);
    updateFilteredArray();
    printInside(operation, QString(u".......self.fFilteredFoundServicesArray = " +
                                   listText(std::optional(fFilteredFoundServicesArray))));
    fFoundServicesArray = fFilteredFoundServicesArray;
    arrayController().setContent(fFilteredFoundServicesArray);
    tellAside();
}

/// What is told of `records`, and kept of it. A thousand of them take as long as ten frames of a
/// film.
BonjourViewController::Told BonjourViewController::told(const DNSSD_Services& records) {
    Told told{records, {}, {}, {}, {}};
    told.lines.reserve(records.size());
    for (const DNSSD_Service& record : records) {
        const QString dictionary = dictionaryText(record);
        told.lines.push_back({QStringLiteral("d = "), dictionary});
        told.set.insert(record);
        told.table.insert(record.ip4Address, dictionary);
    }
    told.tableText = tableText(told.table);
    return told;
}

/// The next scan tells of these rows; a thousand of them would hold up the main queue then.
void BonjourViewController::tellAside() {
    if (fTold.isOf(fFilteredFoundServicesArray))
        return;
    const auto made = std::make_shared<Told>();
    background(
        fParts.bgQueue, fParts.mainQueue, 0,
        [made, records = fFilteredFoundServicesArray] { *made = told(records); },
        [weak = weak_from_this(), made] {
            if (const auto self = weak.lock())
                self->fTold = std::move(*made);
        });
}

void BonjourViewController::updateFilteredArray() {
    constexpr QStringView operation = u"updateFilteredArray()";
    std::vector<QStringList> lines;
    const auto tell = [&lines, operation](const QString& detail) {
        lines.push_back({insideLine(cTypeName, operation, detail)});
    };
    tell(QStringLiteral("......."));
    for (const DNSSD_Service& record : fMasterServicesArray.value_or(DNSSD_Services())) {
        switch (admit(record, fUniqueIP4Address)) {
        case Admission::Admitted:
            fFilteredFoundServicesArray.prepend(record);
            break;
        case Admission::BadKey:
            tell(u"......badKey = [" + plainText(record.ip4Address) + u"] ?????.");
            break;
        case Admission::Duplicate:
            tell(u"......NOT Adding DUPLICATE => [" + plainText(record.name) + u"] ...");
            break;
        }
    }
    fParts.console.printAll(lines);
}

// -- choosing

void BonjourViewController::ibSelectItem() {
    constexpr QStringView operation = u"ibSelectItem(_:)";
    const qsizetype row = selectedRow();
    printInside(operation);
    printInside(operation, QString(u".......self.fArrayController.selectionIndex = [" +
                                   QString::number(arrayController().selectionIndex()) + u']'));
    print(u"self.fTableView.selectedRow =>>>    " + QString::number(row));
    printInside(operation, QString(u".......self.fArrayController.selectedObjects = " +
                                   selectedObjectsText()));
    printInside(operation,
                QString(u".......          self.fTableView.selectedRow = " + QString::number(row)));
    if (row < 0) {
        fParts.beep();
        return;
    }
    if (const auto records = arrayController().content()) {
        const DNSSD_Service& record = entryAt(*records, row);
        printInside(operation, QString(u".......selected obj = " + recordText(record)));
        storeChoice(record);
    }
    for (int time = 0; time < 2; ++time)
        print(cEmptyLines.toString());
    fParts.dismiss();
}

void BonjourViewController::storeChoice(const DNSSD_Service& record) {
    constexpr QStringView operation = u"ibSelectItem(_:)";
    fParts.defaults.setObject(prefRemoteBonjourName,
                              QString(QString(record.name).replace(u' ', u'-') + u".local"));
    if (const auto dictionary = record.asDictionary())
        fParts.defaults.setObject(prefRemoteDnssdServiceData, *dictionary);
    const auto stored = fParts.defaults.dictionaryForKey(prefRemoteDnssdServiceData);
    if (!stored)
        return;
    printInside(operation,
                QString(u".......      name = " + stringEntry(*stored, QStringLiteral("name"))));
    printInside(operation, QString(u".......ip4Address = " +
                                   stringEntry(*stored, QStringLiteral("ip4Address"))));
}

void BonjourViewController::handleDoubleClick() {
    printInside(u"handleDoubleClick()");
    ibSelectItem();
}

// -- the table's questions

qsizetype BonjourViewController::numberOfRows() {
    printInside(u"numberOfRows(in:)");
    return fFoundServicesArray ? fFoundServicesArray->size() : 0;
}

void BonjourViewController::tableViewDidClick(const QString& tableColumn) {
    printInside(u"tableView(_:didClick:)", QString(u".......tableColumn = " + tableColumn));
}

void BonjourViewController::tableViewSelectionDidChange(const QString& notification,
                                                        std::optional<qsizetype> selectedRow) {
    constexpr QStringView operation = u"tableViewSelectionDidChange(_:)";
    printInside(operation, QString(u".......notification = " + notification));
    if (!selectedRow)
        return;
    const qsizetype row = *selectedRow;
    printInside(operation, QString(u".......obj.selectedRow = " + QString::number(row)));
    printInside(operation,
                QString(u".......obj.selectedRowIndexes.first = " +
                        (row < 0 ? QStringLiteral("nil")
                                 : QString(u"Optional(" + QString::number(row) + u')'))));
    const auto records = arrayController().content();
    if (!records)
        return;
    if (row >= 0)
        printInside(operation,
                    QString(u".......selected obj = " + recordText(entryAt(*records, row))));
    setDidSelectRow(row >= 0);
}

// -- flags that the sheet shows

void BonjourViewController::setScanningBonjour(bool scanning) {
    printInside(u"fScanningBonjour");
    if (scanning)
        print(QStringLiteral("NOW SCANNING"));
    fParts.defaults.setObject(
        perfFirstLineMessage,
        scanning ? QStringLiteral("Please Wait - Scanning for smb machines on network...")
                 : QStringLiteral("Bonjour List..."));
    fParts.defaults.setObject(prefScanningBonjour, scanning);
}

void BonjourViewController::setDidSelectRow(bool selected) {
    printInside(u"fDidSelectRow");
    fParts.defaults.setObject(prefSelectedValidRow, selected);
}

// -- helpers

ArrayController& BonjourViewController::arrayController() const {
    if (!fParts.fArrayController)
        stopProgram("The list of services has no array controller.");
    return *fParts.fArrayController;
}

void BonjourViewController::requireTable() const {
    if (!fParts.selectedRow)
        stopProgram("The list of services has no table.");
}

qsizetype BonjourViewController::selectedRow() const {
    requireTable();
    return fParts.selectedRow();
}

QString BonjourViewController::selectedObjectsText() const {
    const auto records = arrayController().content();
    const qsizetype index = arrayController().selectionIndex();
    return records && index >= 0 && index < records->size()
               ? listText(DNSSD_Services{records->at(index)})
               : QStringLiteral("[]");
}

void BonjourViewController::after(double seconds, void (BonjourViewController::*step)()) {
    fParts.mainQueue.asyncAfter(seconds,
                                [self = shared_from_this(), step] { (self.get()->*step)(); });
}

void BonjourViewController::print(const QString& line) const {
    fParts.console.print(line);
}

void BonjourViewController::printInside(QStringView operation, QStringView detail) const {
    print(insideLine(cTypeName, operation, detail));
}

} // namespace kelvo
