#include "ui/widgets/passes_view.h"

#include "ports/pass_store.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/activity_texts.h"
#include "ui/pass_words.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/fixed_font.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/kept_place.h"
#include "ui/widgets/pass_rows.h"
#include "ui/widgets/wide_column.h"
#include "ui/words.h"
#include "ui/work_words.h"
#include "ui_passes_view.h"

#include <QClipboard>
#include <QFileDialog>
#include <QGuiApplication>
#include <QPointer>
#include <QSaveFile>
#include <QStyle>

#include <utility>

namespace kelvo {
namespace {

PassRows::Icons iconsOf(const QWidget& view) {
    return {.well = view.style()->standardIcon(QStyle::SP_DialogApplyButton),
            .trouble = view.style()->standardIcon(QStyle::SP_MessageBoxWarning),
            .running = startIcon(false, view.palette())};
}

} // namespace

PassesView::PassesView(PassStore& store, UserDefaults& defaults, QWidget* parent)
    : QWidget(parent), fStore(store), fUi(std::make_unique<Ui::PassesView>()),
      fRows(new PassRows(iconsOf(*this), this)) {
    fUi->setupUi(this);
    fUi->passes->setModel(fRows);
    const auto widen = [this](PassRows::Column column, const QString& text, int more = 0) {
        fUi->passes->header()->resizeSection(column,
                                             fontMetrics().horizontalAdvance(text + u"m") + more);
    };
    fUi->passes->setIndentation(fontMetrics().height());
    PassRecord widest;
    widest.began = QDateTime(QDate(2000, 12, 28), QTime(22, 28, 28));
    widen(PassRows::When, beganText(widest), fUi->passes->indentation());
    widen(PassRows::Files, filesText(Transfer{TransferSource::Lines, 0, 0}));
    widen(PassRows::Size, sizeText(Transfer{TransferSource::Lines, 1, 888'800'000}));
    widen(PassRows::Time, TimeLeftWords().text(55 * 60));
    new WideColumn(*fUi->passes, PassRows::Outcome);
    fUi->passText->setFont(fixedFont(font()));
    keepHalves(defaults);
    connect(fUi->broughtFiles, &QCheckBox::toggled, this, [this] { setFilter(); });
    connect(fUi->inTrouble, &QCheckBox::toggled, this, [this] { setFilter(); });
    connect(fUi->passes->selectionModel(), &QItemSelectionModel::currentRowChanged, this,
            [this] { showSelected(); });
    connect(fUi->copyPass, &QPushButton::clicked, this, [this] { copyPass(); });
    connect(fUi->exportPasses, &QPushButton::clicked, this, [this] { exportPasses(); });
}

PassesView::~PassesView() = default;

void PassesView::keepHalves(UserDefaults& defaults) {
    const QStringList kept =
        defaults.stringForKey(prefPassesHalves).value_or(QString()).split(u':');
    if (const QList sizes{kept.value(0).toInt(), kept.value(1).toInt()};
        sizes[0] > 0 && sizes[1] > 0)
        fUi->halves->setSizes(sizes);
    connect(fUi->halves, &QSplitter::splitterMoved, this, [this, &defaults] {
        const QList<int> sizes = fUi->halves->sizes();
        defaults.setObject(prefPassesHalves, QStringLiteral("%1:%2").arg(sizes[0]).arg(sizes[1]));
    });
}

void PassesView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    readStore();
    showWork(fWork);
}

void PassesView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        fRows->setIcons(iconsOf(*this));
    if (event->type() == QEvent::FontChange)
        fUi->passText->setFont(fixedFont(font()));
    QWidget::changeEvent(event);
}

void PassesView::readStore() {
    if (fAsked)
        return;
    fAsked = true;
    fStore.readAll([this, alive = QPointer(this)](std::vector<PassRecord> records) {
        if (!alive)
            return;
        fRows->setRecords(std::move(records));
        fRead = true;
        if (const auto wanted = std::exchange(fWanted, {}))
            showPass(*wanted);
    });
}

void PassesView::add(const PassRecord& record) {
    if (!fRead)
        return; // What is told before the answer is in the answer.
    const QModelIndex current = fUi->passes->currentIndex();
    const bool follows = fRows->isRunningPass(current);
    const PassRecord* selected = fRows->recordAt(current);
    const qint64 kept = selected ? selected->id : 0;
    const KeptPlace place(*fUi->passes);
    fRows->addNewest(record, PassStore::cMostPasses);
    const PassRecord* now = fRows->recordAt(fUi->passes->currentIndex());
    if (follows)
        select(record.id);
    else if (kept != 0 && !now && fRows->has(kept))
        select(kept);
}

void PassesView::showWork(const WorkState& work) {
    fWork = work;
    if (!isVisible())
        return;
    const QString health =
        QStringList{work.health.text, work.health.lastSuccess}.join(u'\n').trimmed();
    fUi->headline->setText(health);
    fUi->headline->setVisible(!health.isEmpty());
    std::optional<KeptPlace> place;
    if (fRows->isRunningPass(fRows->index(0, 0)) != isRunning(work))
        place.emplace(*fUi->passes);
    fRows->setWork(work);
    if (fRows->isRunningPass(fUi->passes->currentIndex()))
        showReport(runningReport(work));
}

void PassesView::showPass(qint64 id) {
    if (!fRead) {
        fWanted = id;
        return;
    }
    if (!fRows->indexOf(id).isValid()) {
        fUi->broughtFiles->setChecked(false);
        fUi->inTrouble->setChecked(false);
    }
    select(id);
}

void PassesView::select(qint64 id) {
    const QModelIndex found = fRows->indexOf(id);
    fUi->passes->setExpanded(found.parent(), true);
    fUi->passes->setCurrentIndex(found);
    fUi->passes->scrollTo(found);
}

void PassesView::setFilter() {
    const qint64 kept = fSelected;
    fRows->setFilter(
        {.broughtFiles = fUi->broughtFiles->isChecked(), .inTrouble = fUi->inTrouble->isChecked()});
    if (kept != 0 && fRows->has(kept))
        select(kept);
    showSelected();
}

// -- the selected pass

void PassesView::showSelected() {
    const QModelIndex current = fUi->passes->currentIndex();
    const PassRecord* selected = fRows->recordAt(current);
    if (!selected) {
        fSelected = 0;
        const QString folded = current.siblingAtColumn(PassRows::Outcome).data().toString();
        showReport(fRows->isRunningPass(current) ? runningReport(fWork) : folded);
        return;
    }
    if (selected->id != 0 && selected->id == fSelected)
        return;
    fSelected = selected->id;
    showReport(passReport(*selected));
    if (fSelected == 0)
        return;
    fStore.read(fSelected, [this, alive = QPointer(this),
                            id = fSelected](const std::optional<PassRecord>& whole) {
        if (alive && whole && id == fSelected)
            showReport(passReport(*whole));
    });
}

void PassesView::showReport(const QString& report) {
    if (report != fUi->passText->toPlainText())
        fUi->passText->setPlainText(report);
}

void PassesView::copyPass() {
    QGuiApplication::clipboard()->setText(fUi->passText->toPlainText());
}

void PassesView::exportPasses() {
    const QString path = QFileDialog::getSaveFileName(
        this, tr("Export passes"), QDir::home().filePath(QStringLiteral("kelvo-mirror-passes.csv")),
        tr("Comma-separated values (*.csv)"));
    if (!path.isEmpty())
        exportTo(path);
}

void PassesView::exportTo(const QString& path) {
    const std::vector<PassRecord> records = fRows->records();
    QSaveFile file(path);
    const bool written = file.open(QIODevice::WriteOnly) &&
                         file.write(passesAsCsv(records).toUtf8()) >= 0 && file.commit();
    fUi->exportResult->setText(
        written ? Words::counted("%Ln pass written.",
                                 QT_TRANSLATE_N_NOOP("Words", "%Ln passes written."),
                                 static_cast<qint64>(records.size()))
                : tr("Not written: %1").arg(file.errorString()));
    forgetSpoken(*this);
    announce(*this, fUi->exportResult->text(), written ? Urgency::Asked : Urgency::Urgent);
}

} // namespace kelvo
