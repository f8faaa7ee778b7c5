#include "adapters/console/headless_view.h"

#include "ports/console.h"

namespace kelvo {

void HeadlessView::showNetworkStatus(const QString& text) {
    if (!text.isEmpty())
        fConsole.print(u"network: " + text);
}

} // namespace kelvo
