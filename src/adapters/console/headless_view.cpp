#include "adapters/console/headless_view.h"

#include "ports/console.h"
#include "support/text.h"

namespace kelvo {

void HeadlessView::showNetworkStatus(const QString& text) {
    if (!text.isEmpty())
        fConsole.print(u"network: " + text);
}

bool HeadlessView::presentSheet(QStringView identifier) {
    fConsole.print(u"There is no window to show the sheet " + identifier + u" on.");
    return identifier == cBonjourVCstoryboardID;
}

} // namespace kelvo
