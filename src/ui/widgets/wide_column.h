// WideColumn: one column of a tree takes the room that the others leave.
#pragma once

#include <QEvent>
#include <QHeaderView>
#include <QTreeView>

#include <algorithm>

namespace kelvo {

/// In a narrow view the column keeps a width at which it can be read; the view scrolls sideways
/// then. Belongs to `view`. Main thread only.
class WideColumn final : public QObject {
public:
    WideColumn(QTreeView& view, int column) : QObject(&view), fView(view), fColumn(column) {
        view.viewport()->installEventFilter(this);
    }

    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::Resize) {
            QHeaderView& columns = *fView.header();
            const int others = columns.length() - columns.sectionSize(fColumn);
            const int atLeast = fView.fontMetrics().averageCharWidth() * cLetters;
            columns.resizeSection(fColumn, std::max(atLeast, fView.viewport()->width() - others));
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static constexpr int cLetters = 18;

    QTreeView& fView;
    const int fColumn;
};

} // namespace kelvo
