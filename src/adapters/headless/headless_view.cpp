#include "adapters/headless/headless_view.h"

#include "ports/console.h"

namespace kelvo {

void HeadlessView::showNetworkStatus(const QString& text) {
    if (!text.isEmpty())
        fConsole.print(u"network: " + text);
}

bool HeadlessSheets::presentSheet(QStringView identifier) {
    fConsole.log(u"There is no window to show the sheet " + identifier + u" on.");
    return true;
}

} // namespace kelvo
