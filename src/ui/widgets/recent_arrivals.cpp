#include "ui/widgets/recent_arrivals.h"

#include "ports/pass_store.h"
#include "support/plain_line.h"
#include "ui/activity_texts.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/wrapped_label.h"

#include <QDateTime>
#include <QEvent>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLocale>
#include <QPointer>
#include <QStyle>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {
namespace {

enum Column { Time, Name, Size, Columns };

constexpr int cAroundARow = 4; // points above and below the letters together
constexpr int cPathRole = Qt::UserRole;

QString whenText(const QDateTime& arrived) {
    const QDateTime here = arrived.toLocalTime();
    return here.date() == QDate::currentDate()
               ? timeText(arrived)
               : QLocale().toString(here.date(), QLocale::ShortFormat);
}

} // namespace

RecentArrivals::RecentArrivals(QWidget* parent) : QWidget(parent), fEmpty(new WrappedLabel) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    fEmpty->setObjectName(QStringLiteral("noArrivals"));
    fEmpty->setText(tr("Movies that have arrived will stand here, the newest first. A double click "
                       "opens one."));
    fEmpty->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    fEmpty->setForegroundRole(QPalette::PlaceholderText);
    muteHints(*this);
    rows->addWidget(fEmpty);
    keepRoom();
}

void RecentArrivals::paintEvent(QPaintEvent* event) {
    QWidget::paintEvent(event);
    if (fRead || !fStore)
        return;
    fRead = true;
    QMetaObject::invokeMethod(this, &RecentArrivals::readStore, Qt::QueuedConnection);
}

void RecentArrivals::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange) {
        keepRoom();
        showArrivals();
    }
    QWidget::changeEvent(event);
}

void RecentArrivals::readStore() {
    fStore->readArrivals({.most = cMost}, [this, alive = QPointer<RecentArrivals>(this)](
                                              const std::vector<KeptArrival>& kept) {
        if (!alive)
            return;
        for (const KeptArrival& each : kept)
            fArrivals.push_back(each.arrival);
        showArrivals();
        // What is told from here on is not in the answer yet.
        fObservation =
            fStore->observe([this](const PassRecord& pass, const Standing&) { add(pass); });
    });
}

void RecentArrivals::add(const PassRecord& pass) {
    if (pass.arrivals.empty())
        return;
    fArrivals.insert(fArrivals.begin(), pass.arrivals.rbegin(), pass.arrivals.rend());
    if (fArrivals.size() > cMost)
        fArrivals.resize(cMost);
    // The rows that stay keep the selection of a person who reads them.
    for (std::size_t i = 0; i < std::min<std::size_t>(pass.arrivals.size(), cMost); ++i)
        list().insertTopLevelItem(0, new QTreeWidgetItem);
    while (list().topLevelItemCount() > cMost)
        delete list().topLevelItem(cMost);
    showArrivals();
}

void RecentArrivals::showArrivals() {
    if (fArrivals.empty())
        return;
    for (std::size_t i = 0; i < fArrivals.size(); ++i) {
        const Arrival& arrival = fArrivals[i];
        const QString path = QFile::decodeName(arrival.path);
        const int place = static_cast<int>(i);
        QTreeWidgetItem* const row = place < list().topLevelItemCount()
                                         ? list().topLevelItem(place)
                                         : new QTreeWidgetItem(&list());
        row->setText(Time, whenText(arrival.arrived));
        row->setText(Name, oneLine(path.section(u'/', -1)));
        row->setText(Size, bytesText(arrival.size));
        row->setTextAlignment(Time, Qt::AlignRight | Qt::AlignVCenter);
        row->setTextAlignment(Size, Qt::AlignRight | Qt::AlignVCenter);
        row->setToolTip(Name, plainToolTip(oneLine(path)));
        row->setData(Name, cPathRole, path);
        row->setSizeHint(Name, QSize(0, rowHeight()));
    }
    fEmpty->hide();
    list().show();
}

QTreeWidget& RecentArrivals::list() {
    if (fList)
        return *fList;
    fList = new QTreeWidget;
    fList->setObjectName(QStringLiteral("arrivals"));
    fList->setAccessibleName(tr("Movies that arrived last"));
    fList->setColumnCount(Columns);
    fList->setHeaderLabels({tr("Arrived"), tr("Name"), tr("Size")});
    fList->setHeaderHidden(true);
    fList->setRootIsDecorated(false);
    fList->setUniformRowHeights(true);
    fList->setTabKeyNavigation(false);
    fList->setAllColumnsShowFocus(true);
    fList->setTextElideMode(Qt::ElideMiddle);
    fList->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fList->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QHeaderView& columns = *fList->header();
    columns.setStretchLastSection(false);
    columns.setSectionResizeMode(QHeaderView::ResizeToContents);
    columns.setSectionResizeMode(Name, QHeaderView::Stretch);
    connect(fList, &QTreeWidget::itemActivated, this, [this](const QTreeWidgetItem* row) {
        Q_EMIT openRequested(row->data(Name, cPathRole).toString());
    });
    layout()->addWidget(fList);
    return *fList;
}

int RecentArrivals::rowHeight() const {
    return fontMetrics().lineSpacing() + cAroundARow;
}

/// The room of the whole list, also while there is none.
void RecentArrivals::keepRoom() {
    setFixedHeight(cMost * rowHeight() + 2 * style()->pixelMetric(QStyle::PM_DefaultFrameWidth));
}

} // namespace kelvo
