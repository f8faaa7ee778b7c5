#include "ui/widgets/start_style.h"

#include "ui/widgets/icons.h"

#include <QStyleOption>

namespace kelvo {

QIcon StartStyle::standardIcon(StandardPixmap kind, const QStyleOption* option,
                               const QWidget* widget) const {
    if (kind == SP_ToolBarHorizontalExtensionButton)
        return moreIcon(option && option->direction == Qt::RightToLeft);
    return QProxyStyle::standardIcon(kind, option, widget);
}

} // namespace kelvo
