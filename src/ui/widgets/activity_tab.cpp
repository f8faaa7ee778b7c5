#include "ui/widgets/activity_tab.h"

#include "ui/activity_texts.h"
#include "ui/widgets/passes_view.h"
#include "ui_activity_tab.h"

#include <QPointer>
#include <QShortcut>

#include <utility>

namespace kelvo {
namespace {

constexpr int cLinesWithChart = 25; // of text, the tab's height

} // namespace

ActivityTab::ActivityTab(QWidget* parent) : QWidget(parent) {}

ActivityTab::~ActivityTab() = default;

void ActivityTab::setParts(ActivityParts parts) {
    fParts.emplace(std::move(parts));
    // The tab that the window was last left on is shown before there are any.
    if (!isHidden())
        build();
}

void ActivityTab::setVisible(bool visible) {
    if (visible && !fUi && fParts)
        build();
    QWidget::setVisible(visible);
}

void ActivityTab::build() {
    fUi = std::make_unique<Ui::ActivityTab>();
    fUi->setupUi(this);
    fArrivals = new ArrivalsView(*fParts);
    fPasses = new PassesView(fParts->store, fParts->defaults);
    fUi->pages->addWidget(fArrivals);
    fUi->pages->addWidget(fPasses);
    connect(fUi->showArrived, &QPushButton::toggled, this, [this](bool arrived) {
        fUi->pages->setCurrentIndex(arrived ? 0 : 1);
        fitChart();
    });
    auto* find = new QShortcut(QKeySequence::Find, this);
    connect(find, &QShortcut::activated, this, [this] {
        showArrived();
        fArrivals->beginSearch();
    });
    fPasses->showWork(fWork);
    if (const auto wanted = std::exchange(fWanted, {}))
        showPass(*wanted);
    fObservation =
        fParts->store.observe([this](const PassRecord& record, const Standing&) { add(record); });
}

void ActivityTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    readDays();
}

void ActivityTab::resizeEvent(QResizeEvent* event) {
    QWidget::resizeEvent(event);
    if (fUi)
        fitChart();
}

/// In a low window the passes and their text need the room.
void ActivityTab::fitChart() {
    const bool room =
        fUi->showArrived->isChecked() || height() >= cLinesWithChart * fontMetrics().lineSpacing();
    fUi->days->setVisible(room);
    fUi->total->setVisible(room);
}

void ActivityTab::readDays() {
    if (!fUi || !isVisible())
        return;
    fParts->store.readDays(DayChart::cDays,
                           [this, alive = QPointer(this)](const std::vector<DayOfPasses>& days) {
                               if (!alive)
                                   return;
                               fUi->days->setDays(days, QDate::currentDate());
                               fUi->total->setText(totalText(days, DayChart::cDays));
                           });
}

void ActivityTab::add(const PassRecord& record) {
    fPasses->add(record);
    if (!record.arrivals.empty())
        fArrivals->refresh();
    if (record.transfer.files.value_or(0) > 0 || isTrouble(record.cause))
        readDays();
}

void ActivityTab::showWork(const WorkState& work) {
    fWork = work;
    if (fPasses)
        fPasses->showWork(work);
}

void ActivityTab::showArrived() {
    if (fUi)
        fUi->showArrived->setChecked(true);
    fWanted.reset();
}

void ActivityTab::showPass(qint64 id) {
    if (!fUi) {
        fWanted = id;
        return;
    }
    fUi->showPasses->setChecked(true);
    fPasses->showPass(id);
}

} // namespace kelvo
