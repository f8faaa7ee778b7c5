// StartStyle: the desktop's style, less what would be read from disk at the start.
#pragma once

#include <QProxyStyle>

namespace kelvo {

/// The sign for the menus that have no room in the menu bar is drawn. Every menu bar asks for it as
/// it is made, and of the toolkit's own picture the first one has all its readers of pictures
/// loaded and linked. Main thread only.
class StartStyle final : public QProxyStyle {
public:
    /// Takes `style` over, with all else.
    explicit StartStyle(QStyle* style) : QProxyStyle(style) {}

    QIcon standardIcon(StandardPixmap kind, const QStyleOption* option,
                       const QWidget* widget) const override;
};

} // namespace kelvo
