#include "ui/widgets/activity_tab.h"

#include "ports/pass_store.h"
#include "ui/activity_texts.h"
#include "ui/widgets/pass_rows.h"
#include "ui_activity_tab.h"

#include <QClipboard>
#include <QFileDialog>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QPointer>
#include <QSaveFile>
#include <QStyle>

namespace kelvo {
namespace {

constexpr int cHeadlineInterval = 30'000; // milliseconds

} // namespace

ActivityTab::ActivityTab(QWidget* parent) : QWidget(parent) {
    fHeadlineTimer.setInterval(cHeadlineInterval);
    connect(&fHeadlineTimer, &QTimer::timeout, this, [this] { showHeadline(); });
}

ActivityTab::~ActivityTab() = default;

void ActivityTab::setVisible(bool visible) {
    if (visible && !fUi)
        build();
    QWidget::setVisible(visible);
}

void ActivityTab::build() {
    fUi = std::make_unique<Ui::ActivityTab>();
    fUi->setupUi(this);
    fRows = new PassRows(style()->standardIcon(QStyle::SP_DialogApplyButton),
                         style()->standardIcon(QStyle::SP_MessageBoxWarning), this);
    QHeaderView& columns = *fUi->passes->horizontalHeader();
    fUi->passes->setModel(fRows);
    columns.setSectionResizeMode(QHeaderView::Interactive);
    columns.setSectionResizeMode(PassRows::Outcome, QHeaderView::Stretch);
    columns.resizeSection(PassRows::When,
                          fontMetrics().horizontalAdvance(QStringLiteral("00 May 0000 00:00:00")) *
                              6 / 5);
    fUi->passes->verticalHeader()->setDefaultSectionSize(fontMetrics().lineSpacing() * 3 / 2);
    fUi->passText->setFont(QFontDatabase::systemFont(QFontDatabase::FixedFont));
    connect(fUi->troubleOnly, &QCheckBox::toggled, fRows, &PassRows::setTroubleOnly);
    connect(fUi->passes->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { showSelected(); });
    connect(fRows, &QAbstractItemModel::modelReset, this, [this] { showSelected(); });
    connect(fUi->copyPass, &QPushButton::clicked, this, [this] { copyPass(); });
    connect(fUi->exportPasses, &QPushButton::clicked, this, [this] { exportPasses(); });
    showHeadline();
}

void ActivityTab::setStore(PassStore& store) {
    fStore = &store;
    if (isVisible())
        readStore();
}

void ActivityTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    readStore();
    showHeadline();
    fHeadlineTimer.start();
}

void ActivityTab::hideEvent(QHideEvent* event) {
    fHeadlineTimer.stop();
    QWidget::hideEvent(event);
}

void ActivityTab::readStore() {
    if (!fStore || fRead)
        return;
    fRead = true;
    fStore->readAll([this, alive = QPointer<ActivityTab>(this)](std::vector<PassRecord> records) {
        if (!alive)
            return;
        fRows->setRecords(std::move(records));
        showHeadline();
        // What is told from here on is not in the answer yet.
        fObservation = fStore->observe([this](const PassRecord& record) { add(record); });
    });
}

void ActivityTab::add(const PassRecord& record) {
    fRows->addNewest(record, PassStore::cMostPasses);
    showHeadline();
}

void ActivityTab::showHeadline() {
    fUi->headline->setText(activityHeadline(fRows->records(), QDateTime::currentDateTimeUtc()));
}

void ActivityTab::showSelected() {
    const PassRecord* selected = fRows->recordAt(fUi->passes->currentIndex().row());
    fUi->passText->setPlainText(selected ? passReport(*selected) : QString());
    if (!selected || selected->id == 0)
        return;
    fStore->read(selected->id, [this, alive = QPointer<ActivityTab>(this),
                                id = selected->id](const std::optional<PassRecord>& whole) {
        if (!alive || !whole)
            return;
        const PassRecord* now = fRows->recordAt(fUi->passes->currentIndex().row());
        if (now && now->id == id)
            fUi->passText->setPlainText(passReport(*whole));
    });
}

void ActivityTab::copyPass() {
    QGuiApplication::clipboard()->setText(fUi->passText->toPlainText());
}

void ActivityTab::exportPasses() {
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export passes"), QDir::home().filePath(QStringLiteral("kelvo-mirror-passes.csv")),
        tr("Comma-separated values (*.csv)"));
    if (!path.isEmpty())
        exportTo(path);
}

void ActivityTab::exportTo(const QString& path) {
    const std::vector<PassRecord> records = fRows->records();
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(passesAsCsv(records).toUtf8()) >= 0 && file.commit();
    fUi->exportResult->setText(
        written ? tr("%n passes written.", nullptr, static_cast<int>(records.size()))
                : tr("Not written: %1").arg(file.errorString()));
}

} // namespace kelvo
