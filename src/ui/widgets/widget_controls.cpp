#include "ui/widgets/widget_controls.h"

#include "support/file_url.h"

#include <QUrl>

namespace kelvo {

void WidgetTextField::resignFirstResponder() {
    if (fField && fField->hasFocus())
        fField->clearFocus();
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
    std::vector<Item> items;
    if (fView) {
        for (const PathControlView::Part& part : fView->parts())
            items.push_back({part.title, fileUrl(part.path)});
    }
    return items;
}

} // namespace kelvo
