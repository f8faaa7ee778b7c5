#include "ui/widgets/day_chart.h"

#include "ui/activity_texts.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/trouble_color.h"

#include <QHeaderView>
#include <QLocale>
#include <QPainter>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cHeight = 48;
constexpr int cMark = 7; ///< the triangle's height, kept free above the bars

void drawMark(QPainter& painter, const QRectF& place) {
    painter.drawPolygon(QPolygonF(
        {place.bottomLeft(), place.bottomRight(), QPointF(place.center().x(), place.top())}));
}

} // namespace

DayChart::DayChart(QWidget* parent) : QTableView(parent) {
    fModel.setHorizontalHeaderLabels({tr("Day"), tr("Size"), tr("Movies"), tr("Trouble")});
    setModel(&fModel);
    horizontalHeader()->hide();
    verticalHeader()->hide();
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setFrameShape(NoFrame);
    setEditTriggers(NoEditTriggers);
    setSelectionMode(SingleSelection);
    setSelectionBehavior(SelectRows);
    setTabKeyNavigation(false);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    viewport()->setAutoFillBackground(false);
}

void DayChart::setDays(const std::vector<DayOfPasses>& days, QDate today) {
    fDays.clear();
    fMost = 0;
    for (int row = 0; row < cDays; ++row) {
        const QDate date = today.addDays(row + 1 - cDays);
        const auto found = std::ranges::find(days, date, &DayOfPasses::day);
        const DayOfPasses& day =
            fDays.emplace_back(found == days.end() ? DayOfPasses{.day = date} : *found);
        fMost = std::max(fMost, day.bytes);
        const QString name = dayText(date, today);
        const QString texts[Columns] = {name, bytesText(day.bytes), QLocale().toString(day.files),
                                        day.trouble ? tr("in trouble") : tr("none")};
        for (int column = 0; column < Columns; ++column) {
            const QModelIndex cell = fModel.index(row, column);
            fModel.setData(cell, texts[column]);
            fModel.setData(
                cell,
                plainToolTip(tr("%1: %2", "a day, what came on it").arg(name, dayReport(day))),
                Qt::ToolTipRole);
        }
        fModel.setData(fModel.index(row, Day), dayReport(day), Qt::AccessibleDescriptionRole);
    }
    const DayOfPasses& greatest = *std::ranges::max_element(fDays, {}, &DayOfPasses::bytes);
    setAccessibleDescription(
        fMost == 0
            ? tr("Nothing has arrived. The arrow keys go from day to day.")
            : tr("%1. The most came on this day: %2, %3. The arrow keys go from day to day.")
                  .arg(totalText(fDays, cDays), dayText(greatest.day, today), dayReport(greatest)));
    viewport()->update();
}

QSize DayChart::sizeHint() const {
    return {cDays * 8, cHeight};
}

QSize DayChart::minimumSizeHint() const {
    return {cDays * 3, cHeight};
}

QRect DayChart::visualRect(const QModelIndex& index) const {
    if (!index.isValid())
        return {};
    const int width = viewport()->width();
    const int left = width * index.row() / cDays;
    const QRect place(left, 0, width * (index.row() + 1) / cDays - left, viewport()->height());
    return QStyle::visualRect(layoutDirection(), viewport()->rect(), place);
}

QModelIndex DayChart::indexAt(const QPoint& point) const {
    for (int row = 0; row < cDays; ++row) {
        const QModelIndex day = fModel.index(row, Day);
        if (visualRect(day).contains(point))
            return day;
    }
    return {};
}

void DayChart::paintEvent(QPaintEvent*) {
    QPainter painter(viewport());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    for (std::size_t i = 0; i < fDays.size(); ++i) {
        const QModelIndex index = fModel.index(static_cast<int>(i), Day);
        const QRect place = visualRect(index);
        const QRect ground = place.adjusted(1, cMark + 2, -1, -1);
        int height = 1; // a day without a movie is a line
        if (fDays[i].bytes > 0)
            height = std::max(3, static_cast<int>(double(ground.height()) * double(fDays[i].bytes) /
                                                  double(fMost)));
        painter.setBrush(palette().color(fDays[i].bytes > 0 ? QPalette::Highlight : QPalette::Mid));
        painter.drawRect(
            QRect(ground.left(), ground.bottom() + 1 - height, ground.width(), height));
        if (fDays[i].trouble) {
            painter.setBrush(troubleColor(palette().color(QPalette::Window)));
            const QRectF mark(place.center().x() + 0.5 - cMark / 2.0,
                              ground.bottom() - height - cMark, cMark, cMark);
            drawMark(painter, mark);
        }
        if (hasFocus() && currentIndex().row() == index.row()) {
            QStyleOptionFocusRect option;
            option.initFrom(this);
            option.rect = place;
            style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
        }
    }
}

QModelIndex DayChart::moveCursor(CursorAction action, Qt::KeyboardModifiers) {
    int row = currentIndex().isValid() ? currentIndex().row() : cDays;
    if (isRightToLeft() && (action == MoveLeft || action == MoveRight))
        action = action == MoveLeft ? MoveRight : MoveLeft;
    switch (action) {
    case MoveLeft:
    case MoveUp:
    case MovePrevious:
        --row;
        break;
    case MoveRight:
    case MoveDown:
    case MoveNext:
        ++row;
        break;
    case MoveHome:
    case MovePageUp:
        row = 0;
        break;
    case MoveEnd:
    case MovePageDown:
        row = cDays - 1;
        break;
    }
    return fModel.index(std::clamp(row, 0, cDays - 1), Day);
}

void DayChart::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    viewport()->update();
}

void DayChart::focusInEvent(QFocusEvent* event) {
    QTableView::focusInEvent(event);
    if (!currentIndex().isValid())
        setCurrentIndex(fModel.index(cDays - 1, Day));
    viewport()->update();
}

} // namespace kelvo
