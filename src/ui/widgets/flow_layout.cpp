#include "ui/widgets/flow_layout.h"

#include <QStyle>
#include <QWidget>

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

bool expands(const QLayoutItem& item) {
    return item.expandingDirections().testFlag(Qt::Horizontal);
}

/// The width without which `item` goes to the next row.
int needed(const QLayoutItem& item) {
    return expands(item) ? item.minimumSize().width() : item.sizeHint().width();
}

int heightOf(const QLayoutItem& item, int width) {
    return item.hasHeightForWidth() ? item.heightForWidth(width) : item.sizeHint().height();
}

struct Placed {
    QLayoutItem* item;
    int width;
};

/// Gives what is left of `width` to those that expand.
void share(std::vector<Placed>& row, int width, int gap) {
    int left = width - gap * (static_cast<int>(row.size()) - 1);
    int takers = 0;
    for (const Placed& placed : row) {
        left -= placed.width;
        takers += expands(*placed.item) ? 1 : 0;
    }
    for (Placed& placed : row) {
        if (!expands(*placed.item) || left <= 0 || takers <= 0)
            continue;
        const int more = left / takers--;
        placed.width += more;
        left -= more;
    }
}

} // namespace

FlowLayout::FlowLayout(QWidget& parent) : QLayout(&parent) {
    setContentsMargins(0, 0, 0, 0);
    for (QWidget* child : parent.findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly))
        addWidget(child);
}

FlowLayout::~FlowLayout() = default;

void FlowLayout::addItem(QLayoutItem* item) {
    fItems.emplace_back(item);
    invalidate();
}

int FlowLayout::count() const {
    return static_cast<int>(fItems.size());
}

QLayoutItem* FlowLayout::itemAt(int index) const {
    return index >= 0 && index < count() ? fItems[static_cast<std::size_t>(index)].get() : nullptr;
}

QLayoutItem* FlowLayout::takeAt(int index) {
    if (!itemAt(index))
        return nullptr;
    QLayoutItem* taken = fItems[static_cast<std::size_t>(index)].release();
    fItems.erase(fItems.begin() + index);
    invalidate();
    return taken;
}

int FlowLayout::heightForWidth(int width) const {
    if (fKnownWidth != width) {
        fKnownHeight = arrange(QRect(0, 0, width, 0), false);
        fKnownWidth = width;
    }
    return fKnownHeight;
}

void FlowLayout::invalidate() {
    fKnownWidth = -1;
    QLayout::invalidate();
}

QSize FlowLayout::sizeHint() const {
    QSize all(0, 0);
    for (const auto& item : fItems) {
        if (item->isEmpty())
            continue;
        const QSize wanted = item->sizeHint();
        all = QSize(all.width() + wanted.width() + (all.width() > 0 ? spacing() : 0),
                    std::max(all.height(), wanted.height()));
    }
    return all;
}

QSize FlowLayout::minimumSize() const {
    QSize largest(0, 0);
    for (const auto& item : fItems) {
        if (!item->isEmpty())
            largest = largest.expandedTo(item->minimumSize());
    }
    return largest;
}

void FlowLayout::setGeometry(const QRect& place) {
    QLayout::setGeometry(place);
    arrange(place, true);
}

/// The height of all rows in the width of `place`.
int FlowLayout::arrange(const QRect& place, bool move) const {
    int y = place.y();
    std::vector<Placed> row;
    const auto endRow = [&] {
        share(row, place.width(), spacing());
        int height = 0;
        for (const Placed& placed : row)
            height = std::max(height, heightOf(*placed.item, placed.width));
        int x = place.x();
        for (const Placed& placed : std::exchange(row, {})) {
            const QRect spot(x, y, placed.width, height);
            if (move)
                placed.item->setGeometry(
                    QStyle::visualRect(parentWidget()->layoutDirection(), place, spot));
            x += placed.width + spacing();
        }
        y += height;
    };
    int used = 0;
    for (const auto& item : fItems) {
        if (item->isEmpty())
            continue;
        const int width = std::min(needed(*item), std::max(place.width(), 1));
        if (!row.empty() && used + spacing() + width > place.width()) {
            endRow();
            y += spacing();
        }
        used = row.empty() ? width : used + spacing() + width;
        row.push_back({item.get(), width});
    }
    endRow();
    return y - place.y();
}

} // namespace kelvo
