#include "ui/widgets/late_tab.h"

#include <utility>

namespace kelvo {

void LateTab::whenBuilt(const std::function<void()>& built) {
    if (fIsBuilt)
        built();
    else
        connect(this, &LateTab::controlsBuilt, this, built);
}

/// Not in the event of it: children that come to a widget in sight are shown a turn later.
void LateTab::setVisible(bool visible) {
    if (visible)
        build();
    QWidget::setVisible(visible);
}

void LateTab::build() {
    if (std::exchange(fIsBuilt, true))
        return;
    makeControls();
    Q_EMIT controlsBuilt();
}

} // namespace kelvo
