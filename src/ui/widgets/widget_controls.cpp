#include "ui/widgets/widget_controls.h"

#include "support/file_url.h"
#include "ui/widgets/focus_keeper.h"

#include <QUrl>

namespace kelvo {

std::shared_ptr<TextField> textField(QWidget& field) {
    return std::make_shared<TextField>([guard = QPointer(&field)] {
        if (!guard || !guard->hasFocus())
            return;
        QWidget* const next = nextFocus(*guard);
        guard->clearFocus();
        if (next)
            next->setFocus(Qt::TabFocusReason);
    });
}

void WidgetPathControl::setUrl(const QString& url) {
    if (fView)
        fView->setPath(QUrl(url).toLocalFile());
}

std::optional<QString> WidgetPathControl::url() const {
    if (!fView || fView->path().isEmpty())
        return std::nullopt;
    return fileUrl(fView->path());
}

std::vector<PathControl::Item> WidgetPathControl::pathItems() const {
    return pathItemsOf(url().value_or(QString()));
}

} // namespace kelvo
