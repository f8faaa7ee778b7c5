// KeptPlace: rows that join or leave above do not move what is being read.
#pragma once

#include <QPersistentModelIndex>
#include <QScrollBar>
#include <QTreeView>

namespace kelvo {

/// While it lives the model of `view` may change; then the row at the top stands there again. A
/// view at its very beginning stays there and shows what is new. Main thread only.
class KeptPlace {
public:
    explicit KeptPlace(QTreeView& view)
        : fView(view), fTop(view.verticalScrollBar()->value() == 0 ? QModelIndex()
                                                                   : view.indexAt(QPoint(0, 0))) {}
    ~KeptPlace() {
        if (fTop.isValid())
            fView.scrollTo(fTop, QAbstractItemView::PositionAtTop);
    }
    KeptPlace(const KeptPlace&) = delete;
    KeptPlace& operator=(const KeptPlace&) = delete;

private:
    QTreeView& fView;
    const QPersistentModelIndex fTop;
};

} // namespace kelvo
