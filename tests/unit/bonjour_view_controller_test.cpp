#include "discovery/record_texts.h"
#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/array_controller.h"
#include "support/stored_value.h"
#include "ui/bonjour_view_controller.h"

#include <QRegularExpression>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

const QString cPrefix = QStringLiteral("Inside BonjourViewController->");
const QString cScanning = QStringLiteral("Please Wait - Scanning for smb machines on network...");

DNSSD_Service service(const QString& name, const QString& address, quint32 interface = 2) {
    DNSSD_Service made;
    made.name = name;
    made.type = QStringLiteral("_smb._tcp");
    made.ip4Address = address;
    made.interface = interface;
    made.dateAdded = QDateTime(QDate(2026, 11, 21), QTime(8, 0), Qt::UTC);
    return made;
}

/// The last part of an address is the record's number.
DNSSD_Service computer(int number) {
    return service(QStringLiteral("Mac %1").arg(number), QStringLiteral("10.0.0.%1").arg(number));
}

class BonjourViewControllerTest : public ::testing::Test {
protected:
    BonjourViewControllerParts parts() {
        rows->setShow([this] { ++contentSet; });
        return {
            .defaults = defaults,
            .mainQueue = mainQueue,
            .bgQueue = bgQueue,
            .console = console,
            .browser = browser,
            .fArrayController = rows,
            .selectedRow = [rows = rows] { return rows->selectionIndex(); },
            .dismiss = [this] { ++dismissed; },
            .beep = [this] { ++beeps; },
        };
    }
    std::shared_ptr<BonjourViewController> make() { return BonjourViewController::make(parts()); }

    /// A person selects another row.
    void select(qsizetype row) {
        rows->setSelectionIndex(row);
        controller->tableViewSelectionDidChange(QStringLiteral("SelectionDidChange"), row);
    }

    /// One scan to its end.
    void scan() {
        controller->ibSearchBonjour();
        mainQueue.advance(2.0);
    }

    QStringList shownNames() const {
        QStringList names;
        for (const DNSSD_Service& record : rows->content().value_or(DNSSD_Services()))
            names.append(record.name);
        return names;
    }

    int count(const QString& line) const { return static_cast<int>(console.printed().count(line)); }

    static QString line(QStringView rest) { return QString(cPrefix + rest); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    RecordingConsole console;
    ScriptedBrowser browser;
    int dismissed = 0;
    int beeps = 0;
    int contentSet = 0;
    std::shared_ptr<ArrayController> rows = std::make_shared<ArrayController>();
    std::shared_ptr<BonjourViewController> controller = make();
};

// -- the scan

TEST_F(BonjourViewControllerTest, Loaded_ScansAfterATenthOfASecond) {
    controller->viewDidLoad();
    EXPECT_EQ(console.printed(), QStringList{line(u"viewDidLoad().......")});
    mainQueue.advance(0.099);
    EXPECT_TRUE(browser.browsed.isEmpty());
    mainQueue.advance(0.001);
    EXPECT_EQ(browser.browsed, QStringList{"_smb"});
    console.clear();
    controller->handleDoubleClick();
    EXPECT_EQ(console.printed().first(2),
              (QStringList{line(u"handleDoubleClick()......."), line(u"ibSelectItem(_:).......")}));
    EXPECT_EQ(beeps, 1);
}

TEST_F(BonjourViewControllerTest, Timeline_OfOneScan) {
    browser.announce(computer(1));
    controller->ibSearchBonjour();
    EXPECT_EQ(browser.browsed, QStringList{"_smb"});
    EXPECT_FALSE(defaults.boolForKey(prefScanningBonjour));
    EXPECT_FALSE(defaults.object(prefScanningBonjour).isValid());

    mainQueue.advance(0.1);
    EXPECT_TRUE(defaults.boolForKey(prefScanningBonjour));
    EXPECT_EQ(defaults.object(prefScanningBonjour), QVariant(true));
    EXPECT_EQ(defaults.stringForKey(perfFirstLineMessage), cScanning);

    mainQueue.advance(0.899);
    browser.announce(computer(2));
    EXPECT_EQ(contentSet, 0);
    mainQueue.advance(0.001); // 1.0 s: the browser is read
    EXPECT_EQ(contentSet, 1);
    EXPECT_EQ(rows->content(), std::optional(DNSSD_Services()));
    browser.announce(computer(3));

    mainQueue.advance(0.499);
    EXPECT_TRUE(defaults.boolForKey(prefScanningBonjour));
    mainQueue.advance(0.001); // 1.5 s: filtered, and no longer scanning
    EXPECT_EQ(shownNames(), (QStringList{"Mac 2", "Mac 1"}));
    EXPECT_FALSE(defaults.boolForKey(prefScanningBonjour));
    EXPECT_EQ(defaults.object(prefScanningBonjour), QVariant(false));
    EXPECT_EQ(defaults.stringForKey(perfFirstLineMessage), u"Bonjour List...");
    EXPECT_EQ(contentSet, 2);

    mainQueue.advance(0.499);
    EXPECT_EQ(contentSet, 2);
    mainQueue.advance(0.001); // 2.0 s: filtered again, to the same end
    EXPECT_EQ(contentSet, 3);
    EXPECT_EQ(shownNames(), (QStringList{"Mac 2", "Mac 1"}));
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(BonjourViewControllerTest, EveryLine_OfAFirstScan) {
    browser.announce(service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2")));
    browser.announce(service(QStringLiteral("Early"), QStringLiteral("1.2.3")));
    scan();
    const QString shown = line(u"ibUpdateFilteredList(_:).......self.fFilteredFoundServicesArray = "
                               "Optional([DNSSD_Service(My Mac, , 10.0.0.2)])");
    const QString badKey = line(u"updateFilteredArray()......badKey = [1.2.3] ?????.");
    const QString none =
        line(u"ibShowBonjourListInfo(_:).......self.fArrayController.selectedObjects = []");
    EXPECT_EQ(console.printed(),
              (QStringList{
                  line(u"ibSearchBonjour(_:)......."),
                  line(u"fScanningBonjour......."),
                  QStringLiteral("NOW SCANNING"),
                  QStringLiteral("self.fFoundServicesArray[nil] item"),
                  QStringLiteral("self.fTableView.selectedRow =>>>    -1"),
                  none,
                  none,
                  QStringLiteral("\n"),
                  QStringLiteral("\n"),
                  line(u"ibShowBonjourListInfo(_:).......self.fFilteredTable = Optional([:])"),
                  QStringLiteral("\n"),
                  QStringLiteral("\n"),
                  line(u"ibUpdateFilteredList(_:)......."),
                  line(u"updateFilteredArray()......."),
                  badKey,
                  shown,
                  line(u"fScanningBonjour......."),
                  line(u"ibUpdateFilteredList(_:)......."),
                  line(u"updateFilteredArray()......."),
                  line(u"updateFilteredArray()......NOT Adding DUPLICATE => [My Mac] ..."),
                  badKey,
                  shown,
              }));
}

TEST_F(BonjourViewControllerTest, SecondScan_LogsTheRowsOfTheFirst) {
    browser.announce(service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2")));
    scan();
    rows->setSelectionIndex(0);
    console.clear();
    scan();
    const QString dictionary = QStringLiteral(
        "[\"available\": true, \"dateAdded\": 2026-11-21 08:00:00 +0000, \"domain\": \"\", "
        "\"fullName\": \"\", \"hostPort\": 0, \"hostTarget\": \"\", \"interface\": 2, "
        "\"ip4Address\": \"10.0.0.2\", \"macAddress\": \"\", \"name\": \"My Mac\", "
        "\"scheme\": \"\", \"type\": \"_smb._tcp\"]");
    const QString selected = line(u"ibShowBonjourListInfo(_:).......self.fArrayController."
                                  "selectedObjects = [DNSSD_Service(My Mac, , 10.0.0.2)]");
    EXPECT_EQ(console.printed().sliced(3, 10),
              (QStringList{
                  QStringLiteral("self.fFoundServicesArray[Optional(1)] item"),
                  QStringLiteral("self.fTableView.selectedRow =>>>    0"),
                  selected,
                  selected,
                  QString(u"d = " + dictionary),
                  QStringLiteral("\n"),
                  QStringLiteral("\n"),
                  line(QString(u"ibShowBonjourListInfo(_:).......self.fFilteredTable = "
                               u"Optional([\"10.0.0.2\": " +
                               dictionary + u"])")),
                  QStringLiteral("\n"),
                  QStringLiteral("\n"),
              }));
}

TEST_F(BonjourViewControllerTest, LinesThatWereMadeAside_AreThoseOfTheRows) {
    const auto lines = [this] {
        console.clear();
        scan();
        return console.printed().filter(QRegularExpression(QStringLiteral("^d = ")));
    };
    const auto expected = [](std::initializer_list<int> numbers) {
        QStringList all;
        for (const int number : numbers) {
            DNSSD_Service listed = computer(number);
            listed.available = true;
            all.append(u"d = " + dictionaryText(listed));
        }
        return all;
    };
    browser.announce(computer(1));
    scan();
    browser.announce(computer(2));
    EXPECT_EQ(lines(), expected({1})) << "none are made yet";
    bgQueue.runAll();
    mainQueue.advance(0);
    EXPECT_EQ(lines(), expected({2, 1}));
    browser.announce(computer(3));
    EXPECT_EQ(lines(), expected({2, 1}));
    EXPECT_EQ(lines(), expected({3, 2, 1})) << "those that are made are of other rows";
}

TEST_F(BonjourViewControllerTest, Scan_BringsItsOwnRowsBackBeforeItTellsOfThem) {
    browser.announce(service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2")));
    scan();
    rows->setContent(std::nullopt);
    const auto selected = [this](qsizetype row) {
        rows->setSelectionIndex(row);
        console.clear();
        scan();
        return console.printed()[5];
    };
    const QString label =
        QStringLiteral("ibShowBonjourListInfo(_:).......self.fArrayController.selectedObjects = ");
    EXPECT_EQ(selected(0), line(QString(label + u"[DNSSD_Service(My Mac, , 10.0.0.2)]")));
    EXPECT_EQ(selected(1), line(QString(label + u"[]"))) << "past the end";
}

TEST_F(BonjourViewControllerTest, ScanningSign_HasItsLineFirst) {
    controller->ibSearchBonjour();
    const std::size_t before = defaults.changes().size();
    mainQueue.advance(0.1);
    ASSERT_EQ(defaults.changes().size(), before + 2);
    EXPECT_EQ(defaults.changes()[before].first, perfFirstLineMessage);
    EXPECT_EQ(defaults.changes()[before + 1].first, prefScanningBonjour);
}

TEST_F(BonjourViewControllerTest, ClosedSheet_LetsTheScanRunToItsEnd) {
    browser.announce(computer(1));
    controller->viewDidLoad();
    const std::weak_ptr<BonjourViewController> alive = controller;
    controller.reset();
    mainQueue.advance(1.5);
    EXPECT_FALSE(alive.expired());
    mainQueue.advance(0.6);
    EXPECT_TRUE(alive.expired());
    EXPECT_EQ(defaults.object(prefScanningBonjour), QVariant(false));
    EXPECT_EQ(shownNames(), QStringList{"Mac 1"});
}

// -- one row an address

TEST_F(BonjourViewControllerTest, ListBeforeAnyScan_IsEmpty) {
    browser.announce(computer(1));
    controller->ibUpdateFilteredList();
    EXPECT_EQ(rows->content(), std::optional(DNSSD_Services()));
}

TEST_F(BonjourViewControllerTest, NewComputers_AreShownNewestFirst) {
    for (const int number : {1, 2, 3})
        browser.announce(computer(number));
    scan();
    EXPECT_EQ(shownNames(), (QStringList{"Mac 3", "Mac 2", "Mac 1"}));
    for (const int number : {1, 2, 3})
        EXPECT_EQ(count(line(QStringLiteral(
                                 "updateFilteredArray()......NOT Adding DUPLICATE => [Mac %1] ...")
                                 .arg(number))),
                  1);
}

TEST_F(BonjourViewControllerTest, SameAddress_IsOneRowTheFirstFound) {
    browser.announce(service(QStringLiteral("First"), QStringLiteral("10.0.0.2"), 2));
    browser.announce(service(QStringLiteral("Second"), QStringLiteral("10.0.0.2"), 3));
    scan();
    EXPECT_EQ(shownNames(), QStringList{"First"});
}

TEST_F(BonjourViewControllerTest, AddressOfSevenCharacters_IsTheShortestShown) {
    browser.announce(service(QStringLiteral("None"), QString()));
    browser.announce(service(QStringLiteral("Five"), QStringLiteral("1.2.3")));
    browser.announce(service(QStringLiteral("Seven"), QStringLiteral("1.2.3.4")));
    scan();
    EXPECT_EQ(shownNames(), QStringList{"Seven"});
    EXPECT_EQ(count(line(u"updateFilteredArray()......badKey = [] ?????.")), 2);
    EXPECT_EQ(count(line(u"updateFilteredArray()......badKey = [1.2.3] ?????.")), 2);
}

TEST_F(BonjourViewControllerTest, SecondScan_AddsOnTopAndForgetsNothing) {
    browser.announce(computer(1));
    browser.announce(computer(2));
    browser.announce(computer(3));
    scan();
    browser.withdraw(QStringLiteral("Mac 3"));
    browser.announce(computer(4));
    console.clear();
    scan();
    EXPECT_EQ(shownNames(), (QStringList{"Mac 4", "Mac 3", "Mac 2", "Mac 1"}));
    const auto duplicates = [&](int number) {
        return count(
            line(QStringLiteral("updateFilteredArray()......NOT Adding DUPLICATE => [Mac %1] ...")
                     .arg(number)));
    };
    EXPECT_EQ(duplicates(1), 2);
    EXPECT_EQ(duplicates(2), 2);
    EXPECT_EQ(duplicates(3), 0);
    EXPECT_EQ(duplicates(4), 1);
}

TEST_F(BonjourViewControllerTest, FreshSheet_StartsWithAnEmptyMemory) {
    browser.announce(computer(1));
    scan();
    rows = std::make_shared<ArrayController>();
    controller = make();
    scan();
    EXPECT_EQ(shownNames(), QStringList{"Mac 1"});
}

TEST_F(BonjourViewControllerTest, NothingFound_LeavesAnEmptyListAndTheCalmLine) {
    scan();
    EXPECT_EQ(rows->content(), std::optional(DNSSD_Services()));
    EXPECT_EQ(defaults.stringForKey(perfFirstLineMessage), u"Bonjour List...");
}

// -- choosing

TEST_F(BonjourViewControllerTest, Confirmed_StoresHostNameAndRecordAndCloses) {
    DNSSD_Service mac = service(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2"));
    mac.hostPort = 0x80000001U;
    mac.hostTarget = QStringLiteral("elsewhere.local");
    browser.announce(mac);
    scan();
    select(0);
    EXPECT_EQ(defaults.object(prefSelectedValidRow), QVariant(true));
    console.clear();
    controller->ibSelectItem();
    EXPECT_EQ(defaults.stringForKey(prefRemoteBonjourName), u"My-Mac.local");
    const auto stored = defaults.dictionaryForKey(prefRemoteDnssdServiceData);
    ASSERT_TRUE(stored);
    EXPECT_EQ(stored->size(), 12);
    EXPECT_TRUE(sameStoredValue(*stored, *rows->content()->constFirst().asDictionary()));
    EXPECT_EQ(dismissed, 1);
    EXPECT_EQ(beeps, 0);
    const QString record = QStringLiteral("DNSSD_Service(My Mac, elsewhere.local, 10.0.0.2)");
    EXPECT_EQ(console.printed(),
              (QStringList{
                  line(u"ibSelectItem(_:)......."),
                  line(u"ibSelectItem(_:).......self.fArrayController.selectionIndex = [0]"),
                  QStringLiteral("self.fTableView.selectedRow =>>>    0"),
                  line(QString(u"ibSelectItem(_:).......self.fArrayController.selectedObjects = [" +
                               record + u']')),
                  line(u"ibSelectItem(_:).......          self.fTableView.selectedRow = 0"),
                  line(QString(u"ibSelectItem(_:).......selected obj = " + record)),
                  line(u"ibSelectItem(_:).......      name = My Mac"),
                  line(u"ibSelectItem(_:).......ip4Address = 10.0.0.2"),
                  QStringLiteral("\n"),
                  QStringLiteral("\n"),
              }));
}

TEST_F(BonjourViewControllerTest, EveryBlankOfAName_BecomesAHyphen) {
    browser.announce(service(QStringLiteral(" Studio  Mac Pro "), QStringLiteral("10.0.0.2")));
    scan();
    select(0);
    controller->handleDoubleClick();
    EXPECT_EQ(defaults.stringForKey(prefRemoteBonjourName), u"-Studio--Mac-Pro-.local");
}

TEST_F(BonjourViewControllerTest, SecondRow_IsTheRecordThatIsStored) {
    browser.announce(computer(1));
    browser.announce(computer(2));
    scan();
    select(1);
    controller->ibSelectItem();
    EXPECT_EQ(defaults.stringForKey(prefRemoteBonjourName), u"Mac-1.local");
}

TEST_F(BonjourViewControllerTest, NothingSelected_BeepsAndStoresNothing) {
    browser.announce(computer(1));
    scan();
    const auto before = defaults.changes();
    controller->ibSelectItem();
    EXPECT_EQ(beeps, 1);
    EXPECT_EQ(dismissed, 0);
    EXPECT_EQ(defaults.changes(), before);
}

TEST_F(BonjourViewControllerTest, RowsThatCannotBeRead_StillCloseTheSheet) {
    browser.announce(computer(1));
    scan();
    rows->setSelectionIndex(0);
    rows->setContent(std::nullopt);
    const auto before = defaults.changes();
    controller->ibSelectItem();
    EXPECT_EQ(dismissed, 1);
    EXPECT_EQ(defaults.changes(), before);
}

TEST_F(BonjourViewControllerTest, RowPastTheEnd_StopsTheProgram) {
    browser.announce(computer(1));
    scan();
    rows->setSelectionIndex(1);
    const char* pastTheEnd = "^The selected row is past the end of the list\\.\n";
    EXPECT_DEATH(controller->ibSelectItem(), pastTheEnd);
    EXPECT_DEATH(controller->tableViewSelectionDidChange(QString(), 1), pastTheEnd);
}

TEST_F(BonjourViewControllerTest, MissingOutlet_StopsTheProgram) {
    BonjourViewControllerParts noRows = parts();
    noRows.fArrayController = nullptr;
    const auto withoutRows = BonjourViewController::make(noRows);
    EXPECT_DEATH(withoutRows->ibUpdateFilteredList(),
                 "^The list of services has no array controller\\.\n");
    BonjourViewControllerParts noTable = parts();
    noTable.selectedRow = nullptr;
    const auto withoutTable = BonjourViewController::make(noTable);
    EXPECT_DEATH(withoutTable->viewDidLoad(), "^The list of services has no table\\.\n");
    EXPECT_DEATH(withoutTable->ibSelectItem(), "^The list of services has no table\\.\n");
}

// -- the table's questions

TEST_F(BonjourViewControllerTest, Selection_IsTrackedAndLogged) {
    browser.announce(computer(1));
    scan();
    console.clear();
    select(0);
    EXPECT_TRUE(defaults.boolForKey(prefSelectedValidRow));
    select(-1);
    EXPECT_FALSE(defaults.boolForKey(prefSelectedValidRow));
    EXPECT_EQ(defaults.object(prefSelectedValidRow), QVariant(false));
    const QString label = QStringLiteral("tableViewSelectionDidChange(_:)");
    EXPECT_EQ(console.printed(),
              (QStringList{
                  line(QString(label + u".......notification = SelectionDidChange")),
                  line(QString(label + u".......obj.selectedRow = 0")),
                  line(QString(label + u".......obj.selectedRowIndexes.first = Optional(0)")),
                  line(QString(label + u".......selected obj = DNSSD_Service(Mac 1, , 10.0.0.1)")),
                  line(u"fDidSelectRow......."),
                  line(QString(label + u".......notification = SelectionDidChange")),
                  line(QString(label + u".......obj.selectedRow = -1")),
                  line(QString(label + u".......obj.selectedRowIndexes.first = nil")),
                  line(u"fDidSelectRow......."),
              }));
}

TEST_F(BonjourViewControllerTest, SelectionWithoutTableOrRows_IsNotTracked) {
    scan();
    console.clear();
    controller->tableViewSelectionDidChange(QStringLiteral("other"), std::nullopt);
    EXPECT_EQ(console.printed(),
              QStringList{line(u"tableViewSelectionDidChange(_:).......notification = other")});
    rows->setContent(std::nullopt);
    select(0);
    EXPECT_FALSE(defaults.object(prefSelectedValidRow).isValid());
}

TEST_F(BonjourViewControllerTest, NumberOfRows_CountsTheFilteredList) {
    EXPECT_EQ(controller->numberOfRows(), 0);
    browser.announce(computer(1));
    browser.announce(computer(2));
    scan();
    console.clear();
    EXPECT_EQ(controller->numberOfRows(), 2);
    controller->tableViewDidClick(QStringLiteral("name"));
    EXPECT_EQ(console.printed(),
              (QStringList{line(u"numberOfRows(in:)......."),
                           line(u"tableView(_:didClick:).......tableColumn = name")}));
}

} // namespace
} // namespace kelvo
