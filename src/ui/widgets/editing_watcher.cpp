#include "ui/widgets/editing_watcher.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QWidget>

#include <utility>

namespace kelvo {

EditingWatcher::EditingWatcher(QWidget& field, bool returnEnds, std::function<void()> ended,
                               std::function<void()> givenUp)
    : QObject(&field), fReturnEnds(returnEnds), fEnded(std::move(ended)),
      fGivenUp(std::move(givenUp)) {
    field.installEventFilter(this);
}

bool EditingWatcher::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusOut) {
        // The field's own menu takes the focus for a while; that is not the end of editing.
        if (static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason)
            fEnded();
    } else if (event->type() == QEvent::KeyPress) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (fReturnEnds && (key == Qt::Key_Return || key == Qt::Key_Enter))
            fEnded();
        else if (key == Qt::Key_Escape)
            fGivenUp();
    }
    return QObject::eventFilter(watched, event);
}

} // namespace kelvo
