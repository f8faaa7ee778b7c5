#include "ui/widgets/bonjour_sheet.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/array_controller.h"
#include "support/text.h"
#include "ui/bonjour_view_controller.h"
#include "ui/widgets/announcement.h"
#include "ui/words.h"
#include "ui_bonjour_sheet.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QPointer>

#include <algorithm>

namespace kelvo {
namespace {

/// What a person can do about the reason, as a command; empty where none helps.
QString remedyFor(WhyEmpty why) {
    switch (why) {
    case WhyEmpty::DiscoveryNotInstalled:
        return QStringLiteral("sudo apt install avahi-daemon");
    case WhyEmpty::DiscoveryNotRunning:
        return QStringLiteral("sudo systemctl start avahi-daemon");
    default:
        return {};
    }
}

} // namespace

BonjourSheet::BonjourSheet(const BonjourSheetParts& parts, QWidget* parent)
    : QDialog(parent), fParts(parts), fUi(std::make_unique<Ui::BonjourSheet>()),
      fRecords(std::make_shared<ArrayController>()), fController(makeController()),
      fEmptyWatch({.mainQueue = parts.mainQueue,
                   .browser = parts.browser,
                   .hasNetwork = parts.hasNetwork,
                   .isEmpty = [this] { return fRows.rowCount() == 0; },
                   .scan = [this] { fController->ibSearchBonjour(); },
                   .changed = [this] { showState(); }}) {
    fUi->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    QTableView& table = *fUi->fTableView;
    table.setModel(&fRows);
    table.horizontalHeader()->setSectionsClickable(true);
    table.horizontalHeader()->resizeSection(0, 200);
    table.horizontalHeader()->resizeSection(1, 120);
    connect(&table, &QTableView::doubleClicked, this,
            [controller = fController] { controller->handleDoubleClick(); });
    connect(table.horizontalHeader(), &QHeaderView::sectionClicked, this, [this](int section) {
        fController->tableViewDidClick(
            fRows.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString());
    });
    connect(table.selectionModel(), &QItemSelectionModel::selectionChanged, this,
            &BonjourSheet::selectionChanged);
    connect(fUi->rescanButton, &QPushButton::clicked, this,
            [this] { fController->ibSearchBonjour(); });
    connect(fUi->selectButton, &QPushButton::clicked, this,
            [controller = fController] { controller->ibSelectItem(); });
    connect(fUi->copyCommandButton, &QPushButton::clicked, this,
            [this] { QGuiApplication::clipboard()->setText(remedyFor(fEmptyWatch.why())); });
    connect(fUi->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    for (const QStringView key : {perfFirstLineMessage, prefScanningBonjour, prefSelectedValidRow})
        fObservations.push_back(parts.defaults.observe(key, [this](const DefaultsChange&) {
            fParts.mainQueue.async([self = QPointer(this)] {
                if (self)
                    self->showState();
            });
        }));
    fEmptyWatch.begin();
    table.setFocus();
}

BonjourSheet::~BonjourSheet() {
    fRecords->setSelectionIndex(-1);
}

/// The controller outlives the sheet while a scan runs, and what it works with so does too.
std::shared_ptr<BonjourViewController> BonjourSheet::makeController() {
    const QPointer<BonjourSheet> self(this);
    auto controller = BonjourViewController::make({
        .defaults = fParts.defaults,
        .mainQueue = fParts.mainQueue,
        .bgQueue = fParts.bgQueue,
        .console = fParts.console,
        .browser = fParts.browser,
        .fArrayController = fRecords,
        .selectedRow = [self]() -> qsizetype { return self ? self->selectedRow() : -1; },
        .dismiss =
            [self] {
                if (self)
                    self->accept();
            },
        .beep = [] { QApplication::beep(); },
    });
    fRecords->setShow([self, weak = std::weak_ptr(controller), &records = *fRecords] {
        DNSSD_Services shown = records.content().value_or(DNSSD_Services());
        if (const auto alive = weak.lock())
            shown.resize(std::min(shown.size(), alive->numberOfRows()));
        if (self)
            self->setRecords(shown);
    });
    return controller;
}

void BonjourSheet::present() {
    show();
    fController->viewDidLoad();
}

void BonjourSheet::setRecords(const DNSSD_Services& records) {
    const int before = selectedRow();
    const auto selected = before < 0 ? std::nullopt : std::optional(fRows.records().at(before));
    const QSignalBlocker silence(fUi->fTableView->selectionModel());
    fRows.setRecords(records);
    const auto after = selected ? records.indexOf(*selected) : -1;
    if (after >= 0)
        fUi->fTableView->selectRow(static_cast<int>(after));
    fFilled = true;
    if (after != before)
        selectionChanged();
    showState();
}

int BonjourSheet::selectedRow() const {
    const QModelIndexList rows = fUi->fTableView->selectionModel()->selectedRows();
    return rows.isEmpty() ? -1 : rows.constFirst().row();
}

void BonjourSheet::selectionChanged() {
    const int row = selectedRow();
    fRecords->setSelectionIndex(row);
    fController->tableViewSelectionDidChange(QStringLiteral("TableViewSelectionDidChange"), row);
    showState();
}

void BonjourSheet::showState() {
    const bool scanning = fParts.defaults.boolForKey(prefScanningBonjour);
    fUi->firstLineMessage->setText(
        Words::shown(fParts.defaults.stringForKey(perfFirstLineMessage).value_or(QString())));
    fUi->scanningSign->setVisible(scanning);
    // The setting may be left over from an earlier sheet.
    fUi->selectButton->setEnabled(fParts.defaults.boolForKey(prefSelectedValidRow) &&
                                  selectedRow() >= 0);
    const WhyEmpty why = fEmptyWatch.why();
    const bool known =
        why == WhyEmpty::NothingFound || why == WhyEmpty::NoNetwork ? fFilled && !scanning : true;
    const int found = fRows.rowCount();
    const bool empty = known && found == 0;
    if (empty)
        showWhyEmpty(why);
    showPage(empty);
    if (scanning)
        forgetSpoken(*this);
    else if (empty)
        announce(*this, fUi->emptyText->text());
    else if (fFilled)
        announce(*this, Words::counted("%Ln Mac found.",
                                       QT_TRANSLATE_N_NOOP("Words", "%Ln Macs found."), found));
}

/// The focus of the page that goes goes to the one that comes.
void BonjourSheet::showPage(bool empty) {
    QWidget* page = empty ? fUi->emptyPage : fUi->listPage;
    if (fUi->pages->currentWidget() == page)
        return;
    const bool hadFocus = !focusWidget() || fUi->pages->isAncestorOf(focusWidget());
    fUi->pages->setCurrentWidget(page);
    if (!hadFocus)
        return;
    if (empty)
        fUi->emptyText->setFocus();
    else
        fUi->fTableView->setFocus();
}

void BonjourSheet::showWhyEmpty(WhyEmpty why) {
    const QString command = remedyFor(why);
    QString text;
    switch (why) {
    case WhyEmpty::DiscoveryNotInstalled:
        text = tr("Discovery is not installed on this computer. Install it with:\n\n%1\n\nThe list "
                  "fills by itself once discovery runs. Without it, type the Mac's host name on "
                  "the Remote Mac tab.")
                   .arg(command);
        break;
    case WhyEmpty::DiscoveryNotRunning:
        text = tr("Discovery is not running on this computer. Start it with:\n\n%1\n\nThe list "
                  "fills by itself once discovery runs. Without it, type the Mac's host name on "
                  "the Remote Mac tab.")
                   .arg(command);
        break;
    case WhyEmpty::NoNetwork:
        text =
            tr("This computer is not connected to a network.\n\nConnect it to the network of the "
               "Mac. Then choose Rescan.");
        break;
    case WhyEmpty::StillLooking:
        text =
            tr("No Mac has answered yet.\n\nDiscovery has only just started; the search goes on.");
        break;
    case WhyEmpty::NothingFound:
        text =
            tr("No Mac was found.\n\nOn the Mac, open System Settings, General, Sharing, and check "
               "that File Sharing and Remote Login are on.\nCheck that both computers are on the "
               "same network.\nThen choose Rescan.\n\nThe Mac's host name can also be typed on "
               "the Remote Mac tab.");
        break;
    }
    if (fUi->emptyText->text() != text)
        fUi->emptyText->setText(text);
    fUi->copyCommandButton->setVisible(!command.isEmpty());
}

bool presentSheet(QStringView identifier, const BonjourSheetParts& parts, QWidget& mainWindow) {
    if (identifier != cBonjourVCstoryboardID)
        return false;
    auto* sheet = new BonjourSheet(parts, &mainWindow);
    sheet->present();
    return true;
}

} // namespace kelvo
