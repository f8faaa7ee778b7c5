#include "fakes/memory_defaults.h"
#include "fakes/recording_console.h"
#include "fakes/scripted_browser.h"
#include "fakes/virtual_queues.h"
#include "settings/preference_keys.h"
#include "support/text.h"
#include "ui/widgets/accessible_factory.h"
#include "ui/widgets/bonjour_sheet.h"

#include <QAbstractButton>
#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLabel>
#include <QProgressBar>
#include <QTableView>
#include <QTest>

#include <gtest/gtest.h>

namespace kelvo {
namespace {

class BonjourSheetTest : public ::testing::Test {
protected:
    BonjourSheetTest() { window.show(); }

    void announce(const QString& name, const QString& address) {
        DNSSD_Service service;
        service.name = name;
        service.type = QStringLiteral("_smb._tcp");
        service.hostTarget = QStringLiteral("host.local");
        service.ip4Address = address;
        service.interface = 2;
        browser.announce(service);
    }

    bool present(QStringView identifier = cBonjourVCstoryboardID) {
        return presentSheet(identifier,
                            {.defaults = defaults,
                             .mainQueue = mainQueue,
                             .bgQueue = bgQueue,
                             .console = console,
                             .browser = browser,
                             .hasNetwork = [this] { return hasNetwork; }},
                            window);
    }

    /// Opens the sheet and lets its first scan run to the end.
    void open() {
        ASSERT_TRUE(present());
        mainQueue.advance(2.1);
    }

    /// The open sheet; one that was closed is swept away first.
    BonjourSheet* sheet() {
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        return window.findChild<BonjourSheet*>();
    }
    template <typename Widget>
    Widget* child(const char* name) {
        return sheet()->findChild<Widget*>(QString::fromLatin1(name));
    }
    QTableView* table() { return child<QTableView>("fTableView"); }
    QAbstractButton* button(const char* name) { return child<QAbstractButton>(name); }
    QString cell(int row, int column) {
        return table()->model()->index(row, column).data().toString();
    }
    QPoint middleOf(int row) {
        return table()->visualRect(table()->model()->index(row, 0)).center();
    }
    std::optional<QString> chosen() const { return defaults.stringForKey(prefRemoteBonjourName); }

    MemoryDefaults defaults;
    VirtualMainQueue mainQueue;
    ManualBackgroundQueue bgQueue;
    RecordingConsole console;
    ScriptedBrowser browser;
    bool hasNetwork = true;
    QWidget window;
};

TEST_F(BonjourSheetTest, UnknownSheet_IsNotThere) {
    EXPECT_FALSE(present(u"AnotherSheet"));
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(BonjourSheetTest, Rows_AreNameAddressAndHostAsPlainTextNewestFirst) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    announce(QStringLiteral("Turned \u202eround"), QStringLiteral("10.0.0.3"));
    open();
    EXPECT_EQ(sheet()->windowModality(), Qt::WindowModal);
    ASSERT_EQ(table()->model()->rowCount(), 2);
    EXPECT_EQ(cell(0, 0), u"Turned \\u202eround");
    EXPECT_EQ(cell(1, 0), u"First");
    EXPECT_EQ(cell(1, 1), u"10.0.0.2");
    EXPECT_EQ(cell(1, 2), u"host.local");
    EXPECT_EQ(child<QLabel>("firstLineMessage")->textFormat(), Qt::PlainText);
}

TEST_F(BonjourSheetTest, Scanning_IsSaidAndShown) {
    ASSERT_TRUE(present());
    mainQueue.advance(0.2);
    EXPECT_EQ(child<QLabel>("firstLineMessage")->text(),
              u"Please Wait - Scanning for smb machines on network...");
    EXPECT_TRUE(child<QProgressBar>("scanningSign")->isVisible());
    EXPECT_FALSE(child<QWidget>("emptyText")->isVisible());
    mainQueue.advance(1.4);
    EXPECT_EQ(child<QLabel>("firstLineMessage")->text(), u"Bonjour List...");
    EXPECT_FALSE(child<QProgressBar>("scanningSign")->isVisible());
}

TEST_F(BonjourSheetTest, NothingFound_SaysWhatToCheck) {
    open();
    auto* text = child<QLabel>("emptyText");
    EXPECT_TRUE(text->isVisible());
    EXPECT_FALSE(table()->isVisible());
    for (const char* what : {"File Sharing", "Remote Login", "same network"})
        EXPECT_TRUE(text->text().contains(QLatin1String(what))) << what;
    announce(QStringLiteral("Late"), QStringLiteral("10.0.0.2"));
    button("rescanButton")->click();
    mainQueue.advance(2.1);
    EXPECT_FALSE(text->isVisible());
    EXPECT_EQ(cell(0, 0), u"Late");
}

TEST_F(BonjourSheetTest, EndOfAScan_IsSpokenWithWhatWasFound) {
    const auto spoken = [this] {
        const auto spokesmen =
            sheet()->findChildren<Spokesman*>(QString(), Qt::FindDirectChildrenOnly);
        return spokesmen.isEmpty() ? QString() : spokesmen.last()->accessibleName();
    };
    ASSERT_TRUE(present());
    QApplication::setActiveWindow(sheet());
    mainQueue.advance(0.2);
    EXPECT_EQ(spoken(), QString()) << "nothing is known yet";
    mainQueue.advance(1.9);
    EXPECT_EQ(spoken(), child<QLabel>("emptyText")->text());
    const auto rescan = [this](const char* address) {
        announce(QString::fromLatin1(address), QString::fromLatin1(address));
        button("rescanButton")->click();
        mainQueue.advance(2.1);
    };
    rescan("10.0.0.2");
    EXPECT_EQ(spoken(), u"1 Mac found.");
    rescan("10.0.0.3");
    EXPECT_EQ(spoken(), u"2 Macs found.");
}

TEST_F(BonjourSheetTest, DiscoveryAway_IsSaidAtOnceWithItsCommand) {
    for (const auto& [state, command] :
         {std::pair(DiscoveryState::NotRunning,
                    QStringLiteral("sudo systemctl start avahi-daemon")),
          std::pair(DiscoveryState::NotInstalled,
                    QStringLiteral("sudo apt install avahi-daemon"))}) {
        browser.setRunning(true);
        browser.away = state;
        browser.setRunning(false);
        ASSERT_TRUE(present());
        mainQueue.advance(0.2);
        auto* text = child<QLabel>("emptyText");
        EXPECT_TRUE(text->isVisible());
        EXPECT_TRUE(text->text().contains(u"on this computer"));
        EXPECT_TRUE(text->text().contains(command));
        EXPECT_FALSE(text->text().contains(u"On the Mac")) << "it is not the Mac's fault";
        QGuiApplication::clipboard()->clear();
        button("copyCommandButton")->click();
        EXPECT_EQ(QGuiApplication::clipboard()->text(), command);
        button("cancelButton")->click();
        EXPECT_EQ(sheet(), nullptr);
    }
}

TEST_F(BonjourSheetTest, DiscoveryThatComes_FillsTheListByItself) {
    browser.setRunning(false);
    open();
    EXPECT_TRUE(child<QLabel>("emptyText")->text().startsWith(u"Discovery is not running"));
    button("rescanButton")->setFocus();
    browser.setRunning(true);
    mainQueue.advance(3);
    EXPECT_TRUE(child<QLabel>("emptyText")->isVisible());
    EXPECT_TRUE(child<QLabel>("emptyText")->text().startsWith(u"No Mac has answered yet."));
    EXPECT_FALSE(button("copyCommandButton")->isVisible());
    announce(QStringLiteral("Late"), QStringLiteral("10.0.0.2"));
    mainQueue.advance(5);
    EXPECT_EQ(cell(0, 0), u"Late");
    EXPECT_EQ(sheet()->focusWidget(), button("rescanButton")) << "the focus stays";
    const qsizetype scans = browser.browsed.size();
    mainQueue.advance(60);
    EXPECT_EQ(browser.browsed.size(), scans) << "and that is that";
    EXPECT_TRUE(mainQueue.idle());
}

TEST_F(BonjourSheetTest, DiscoveryThatFindsNothing_IsGivenUpAfterAFewScans) {
    browser.setRunning(false);
    open();
    browser.setRunning(true);
    mainQueue.advance(60);
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_TRUE(child<QLabel>("emptyText")->text().startsWith(u"No Mac was found."));
    EXPECT_EQ(browser.browsed.size(), 6);
}

TEST_F(BonjourSheetTest, SheetThatCloses_ScansNoMore) {
    browser.setRunning(false);
    open();
    browser.setRunning(true);
    button("cancelButton")->click();
    EXPECT_EQ(sheet(), nullptr);
    mainQueue.advance(60);
    EXPECT_EQ(browser.browsed.size(), 2);
    browser.setRunning(false);
}

TEST_F(BonjourSheetTest, NoNetwork_IsTheReason) {
    hasNetwork = false;
    open();
    EXPECT_TRUE(child<QLabel>("emptyText")
                    ->text()
                    .startsWith(u"This computer is not connected to a network."));
    hasNetwork = true;
    button("rescanButton")->click();
    mainQueue.advance(2.1);
    EXPECT_TRUE(child<QLabel>("emptyText")->text().startsWith(u"No Mac was found."));
}

TEST_F(BonjourSheetTest, Select_IsEnabledByASelectedRowOnly) {
    defaults.setObject(prefSelectedValidRow, true); // left over
    announce(QStringLiteral("My Mac"), QStringLiteral("10.0.0.2"));
    open();
    EXPECT_FALSE(button("selectButton")->isEnabled());
    table()->selectRow(0);
    mainQueue.runDue();
    EXPECT_EQ(defaults.object(prefSelectedValidRow), QVariant(true));
    EXPECT_TRUE(button("selectButton")->isEnabled());
    table()->clearSelection();
    mainQueue.runDue();
    EXPECT_FALSE(button("selectButton")->isEnabled());
    table()->selectRow(0);
    defaults.setObject(prefSelectedValidRow, false);
    mainQueue.runDue();
    EXPECT_FALSE(button("selectButton")->isEnabled());
}

TEST_F(BonjourSheetTest, Keyboard_ChoosesAndConfirms) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    announce(QStringLiteral("Second"), QStringLiteral("10.0.0.3"));
    open();
    QTest::keyClick(table(), Qt::Key_Down);
    QTest::keyClick(table(), Qt::Key_Down);
    mainQueue.runDue();
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_EQ(chosen(), u"First.local");
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(BonjourSheetTest, ReturnWithNothingSelected_StoresNothingAndStays) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    open();
    QTest::keyClick(table(), Qt::Key_Return);
    EXPECT_EQ(chosen(), std::nullopt);
    EXPECT_NE(sheet(), nullptr);
}

TEST_F(BonjourSheetTest, EscapeAndCancel_CloseWithoutAChoice) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    open();
    table()->selectRow(0);
    QTest::keyClick(table(), Qt::Key_Escape);
    EXPECT_EQ(sheet(), nullptr);
    open();
    button("cancelButton")->click();
    EXPECT_EQ(sheet(), nullptr);
    EXPECT_EQ(chosen(), std::nullopt);
}

TEST_F(BonjourSheetTest, DoubleClick_ConfirmsItsRow) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    announce(QStringLiteral("Second"), QStringLiteral("10.0.0.3"));
    open();
    QTest::mouseClick(table()->viewport(), Qt::LeftButton, {}, middleOf(1));
    QTest::mouseDClick(table()->viewport(), Qt::LeftButton, {}, middleOf(1));
    EXPECT_EQ(chosen(), u"First.local");
    EXPECT_EQ(sheet(), nullptr);
}

TEST_F(BonjourSheetTest, Rescan_KeepsTheSelectedComputerSelected) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    open();
    table()->selectRow(0);
    announce(QStringLiteral("Second"), QStringLiteral("10.0.0.3"));
    button("rescanButton")->click();
    mainQueue.advance(2.1);
    ASSERT_EQ(table()->model()->rowCount(), 2);
    EXPECT_EQ(table()->selectionModel()->selectedRows().value(0).row(), 1);
    button("selectButton")->click();
    EXPECT_EQ(chosen(), u"First.local");
}

TEST_F(BonjourSheetTest, ClosedInMidScan_TheScanEndsQuietly) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    ASSERT_TRUE(present());
    mainQueue.advance(0.5);
    button("cancelButton")->click();
    EXPECT_EQ(sheet(), nullptr);
    mainQueue.advance(5);
    EXPECT_TRUE(mainQueue.idle());
    EXPECT_TRUE(
        console.printed().contains(QStringLiteral("self.fTableView.selectedRow =>>>    -1")));
    EXPECT_EQ(console.printed().count(
                  QStringLiteral("Inside BonjourViewController->numberOfRows(in:).......")),
              3)
        << "at each setting of the rows";
    EXPECT_EQ(defaults.object(prefScanningBonjour), QVariant(false));
}

TEST_F(BonjourSheetTest, HeaderClick_ReachesTheController) {
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    open();
    const QHeaderView& header = *table()->horizontalHeader();
    QTest::mouseClick(header.viewport(), Qt::LeftButton, {},
                      {header.sectionViewportPosition(1) + 20, header.height() / 2});
    EXPECT_TRUE(console.printed().contains(QStringLiteral(
        "Inside BonjourViewController->tableView(_:didClick:).......tableColumn = Address")));
    EXPECT_EQ(cell(0, 0), u"First");
}

TEST_F(BonjourSheetTest, EveryControl_HasAnAccessibleName) {
    open();
    int controls = 0;
    for (const QWidget* widget : sheet()->findChildren<QWidget*>()) {
        if (widget->focusPolicy() == Qt::NoFocus || widget->objectName().startsWith(u"qt_"))
            continue;
        ++controls;
        if (qobject_cast<const QLabel*>(widget))
            EXPECT_EQ(widget->accessibleName(), QString()) << "its words are its name";
        else
            EXPECT_FALSE(widget->accessibleName().isEmpty()) << widget->objectName().toStdString();
    }
    EXPECT_GE(controls, 5);
}

TEST_F(BonjourSheetTest, FiveHundredComputers_AreAllShown) {
    for (int number = 0; number < 500; ++number)
        announce(QStringLiteral("Mac %1").arg(number),
                 QStringLiteral("10.0.%1.%2").arg(number / 250).arg(number % 250));
    open();
    EXPECT_EQ(table()->model()->rowCount(), 500);
    EXPECT_EQ(cell(0, 0), u"Mac 499");
}

TEST_F(BonjourSheetTest, Columns_HaveRoomForANameAndAnAddress) {
    announce(QStringLiteral("Living Room Mac mini"), QStringLiteral("255.255.255.255"));
    open();
    const QFontMetrics letters = table()->fontMetrics();
    EXPECT_GT(table()->columnWidth(0), letters.horizontalAdvance(cell(0, 0)) + 6);
    EXPECT_GT(table()->columnWidth(1), letters.horizontalAdvance(cell(0, 1)) + 6);
    EXPECT_TRUE(table()->horizontalHeader()->sectionsClickable());
    EXPECT_TRUE(table()->hasFocus() || sheet()->focusWidget() == table());
}

TEST_F(BonjourSheetTest, PageThatComes_TakesTheFocusOfTheOneThatGoes) {
    open();
    EXPECT_EQ(sheet()->focusWidget(), child<QLabel>("emptyText"));
    announce(QStringLiteral("First"), QStringLiteral("10.0.0.2"));
    button("rescanButton")->click();
    mainQueue.advance(2.1);
    EXPECT_EQ(sheet()->focusWidget(), table());
    EXPECT_FALSE(child<QWidget>("copyCommandButton")->isVisible());
}

TEST_F(BonjourSheetTest, MessageFromBelow_IsShownInTheWindowsWords) {
    open();
    defaults.setObject(perfFirstLineMessage, QStringLiteral("Bonjour List..."));
    mainQueue.runDue();
    EXPECT_EQ(child<QLabel>("firstLineMessage")->text(), u"Bonjour List...");
    defaults.removeObject(perfFirstLineMessage);
    mainQueue.runDue();
    EXPECT_EQ(child<QLabel>("firstLineMessage")->text(), QString());
    defaults.setObject(prefScanningBonjour, true);
    mainQueue.runDue();
    EXPECT_TRUE(child<QProgressBar>("scanningSign")->isVisible());
    defaults.setObject(prefScanningBonjour, false);
    mainQueue.runDue();
    EXPECT_FALSE(child<QProgressBar>("scanningSign")->isVisible());
}

} // namespace
} // namespace kelvo
