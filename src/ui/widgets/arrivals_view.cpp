#include "ui/widgets/arrivals_view.h"

#include "ports/dispatch_queue.h"
#include "ports/workspace.h"
#include "support/system_error_text.h"
#include "ui/activity_texts.h"
#include "ui/widgets/arrival_rows.h"
#include "ui/widgets/kept_place.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/wide_column.h"
#include "ui/words.h"
#include "ui_arrivals_view.h"

#include <QAction>
#include <QClipboard>
#include <QGuiApplication>
#include <QPointer>

#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace kelvo {
namespace {

/// Why there is nothing to open at `path`; empty when there is.
QString faultOf(const QByteArray& path) {
    struct stat status {};
    if (::stat(path.constData(), &status) == 0)
        return {};
    const int error = errno;
    return error == ENOENT || error == ENOTDIR ? ArrivalsView::tr("not there any more")
                                               : Words::shown(systemErrorText(error));
}

/// Byte for byte, whatever the encoding of the name.
QString addressOf(const QByteArray& path) {
    return u"file://" + QString::fromLatin1(path.toPercentEncoding("/"));
}

} // namespace

ArrivalsView::ArrivalsView(ActivityParts parts, QWidget* parent)
    : QWidget(parent), fParts(std::move(parts)), fUi(std::make_unique<Ui::ArrivalsView>()),
      fRows(new ArrivalRows(this)) {
    fUi->setupUi(this);
    muteHints(*fUi->searchText);
    QTreeView& list = *fUi->arrivals;
    list.setModel(fRows);
    list.setIndentation(fontMetrics().height());
    list.header()->resizeSection(
        ArrivalRows::Time,
        fontMetrics().horizontalAdvance(QString(timeText(QDateTime::currentDateTime()) + u"m")) +
            2 * list.indentation());
    list.header()->resizeSection(
        ArrivalRows::Size, fontMetrics().horizontalAdvance(QString(bytesText(88'800'000) + u"mm")));
    new WideColumn(list, ArrivalRows::Name);
    connect(fRows, &QAbstractItemModel::rowsInserted, this,
            [&list](const QModelIndex& parent, int first, int last) {
                for (int row = first; !parent.isValid() && row <= last; ++row) {
                    list.setFirstColumnSpanned(row, parent, true);
                    list.expand(list.model()->index(row, 0));
                }
            });
    addAction(QStringLiteral("openArrival"), tr("&Open"),
              [this](const KeptArrival& arrival) { open(arrival); });
    addAction(QStringLiteral("revealArrival"), tr("&Reveal"),
              [this](const KeptArrival& arrival) { reveal(arrival); });
    addAction(QStringLiteral("copyArrivalPath"), tr("&Copy Path"), [](const KeptArrival& arrival) {
        QGuiApplication::clipboard()->setText(arrivedName(arrival.arrival.path, {}));
    });
    QAction* openAction = list.actions().constFirst();
    openAction->setShortcuts({Qt::Key_Return, Qt::Key_Enter});
    openAction->setShortcutContext(Qt::WidgetShortcut);
    connect(&list, &QTreeView::doubleClicked, openAction, &QAction::trigger);
    connect(list.selectionModel(), &QItemSelectionModel::currentChanged, this,
            [this] { enableActions(); });
    connect(fRows, &QAbstractItemModel::modelReset, this, [this] { enableActions(); });
    connect(list.verticalScrollBar(), &QScrollBar::valueChanged, this, [this] { askOlder(); });
    connect(fUi->searchText, &QLineEdit::textChanged, this, [this] { ask(Want::All); });
    enableActions();
}

ArrivalsView::~ArrivalsView() = default;

void ArrivalsView::beginSearch() {
    fUi->searchText->setFocus();
    fUi->searchText->selectAll();
}

// -- what is shown

void ArrivalsView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    ask(Want::Nothing);
}

void ArrivalsView::refresh() {
    ask(Want::Newer);
}

void ArrivalsView::askOlder() {
    const QScrollBar& bar = *fUi->arrivals->verticalScrollBar();
    if (fMore && bar.value() + bar.pageStep() >= bar.maximum())
        ask(Want::Older);
}

void ArrivalsView::ask(Want want) {
    fWant = std::max(fWant, want);
    if (fWant == Want::Nothing || fAsking || !isVisible())
        return;
    fAsking = true;
    const Want wanted = std::exchange(fWant, Want::Nothing);
    fParts.store.readArrivals(
        {.text = fUi->searchText->text(), .before = wanted == Want::Older ? fRows->oldest() : 0},
        [this, alive = QPointer(this), wanted](const std::vector<KeptArrival>& arrivals) {
            if (!alive)
                return;
            fAsking = false;
            if (fWant != Want::All) // Another text is wanted by now.
                take(wanted, arrivals);
            ask(Want::Nothing);
        });
}

void ArrivalsView::take(Want wanted, const std::vector<KeptArrival>& arrivals) {
    const bool full = std::cmp_greater_equal(arrivals.size(), ArrivalQuestion{}.most);
    const bool gap = full && arrivals.back().id > fRows->newest();
    if (wanted == Want::All || (wanted == Want::Newer && gap)) {
        fRows->setArrivals(arrivals, fParts.destination());
        fMore = full;
    } else if (wanted == Want::Older) {
        fRows->addOlder(arrivals);
        fMore = full;
    } else {
        const KeptPlace place(*fUi->arrivals);
        fRows->addNewer(arrivals);
    }
    const bool empty = fRows->rowCount() == 0;
    fUi->arrivals->setVisible(!empty);
    fUi->emptyText->setVisible(empty);
    fUi->emptyText->setText(fUi->searchText->text().isEmpty()
                                ? tr("Nothing has arrived yet.\n\nThe movies that a pass brings "
                                     "will stand here.")
                                : tr("No movie with this text in its path has arrived."));
}

// -- what is done with a movie

void ArrivalsView::addAction(const QString& name, const QString& text,
                             std::function<void(const KeptArrival&)> action) {
    auto* entry = new QAction(text, fUi->arrivals);
    entry->setObjectName(name);
    fUi->arrivals->addAction(entry);
    connect(entry, &QAction::triggered, this, [this, action = std::move(action)] {
        if (const KeptArrival* chosen = fRows->arrivalAt(fUi->arrivals->currentIndex()))
            action(*chosen);
    });
}

void ArrivalsView::enableActions() {
    const bool chosen = fRows->arrivalAt(fUi->arrivals->currentIndex()) != nullptr;
    for (QAction* action : fUi->arrivals->actions())
        action->setEnabled(chosen);
}

/// Calls `use` if there is a file; else its row says why not.
void ArrivalsView::withFile(const KeptArrival& arrival, std::function<void()> use) {
    fParts.bgQueue.async([this, alive = QPointer(this), &mainQueue = fParts.mainQueue,
                          id = arrival.id, path = arrival.arrival.path, use = std::move(use)] {
        mainQueue.async([this, alive, id, use, fault = faultOf(path)] {
            if (!alive)
                return;
            fRows->setFault(id, fault);
            if (fault.isEmpty())
                use();
        });
    });
}

void ArrivalsView::open(const KeptArrival& arrival) {
    withFile(arrival,
             [this, path = arrival.arrival.path] { fParts.workspace.openUrl(addressOf(path)); });
}

void ArrivalsView::reveal(const KeptArrival& arrival) {
    withFile(arrival, [this, id = arrival.id, path = arrival.arrival.path] {
        const QString text = QString::fromUtf8(path);
        if (text.toUtf8() == path)
            fParts.workspace.revealInFinder(text);
        else
            fRows->setFault(id, tr("its name is not UTF-8"));
    });
}

} // namespace kelvo
