#include "ui/widgets/dark_palette.h"

#include "ui/widgets/muted_hints.h"

namespace kelvo {

QPalette darkPalette() {
    const QColor window(0x2a, 0x2c, 0x2e);
    const QColor field(0x1d, 0x1f, 0x20);
    const QColor text(0xf0, 0xf0, 0xf0);
    QPalette palette(QColor(0x3a, 0x3d, 0x40), window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor(0x8c, 0x8f, 0x92));
    }
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, QColor(0x25, 0x27, 0x29));
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::PlaceholderText, mutedColor(text, window));
    palette.setColor(QPalette::Highlight, QColor(0x2f, 0x6f, 0xb5));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x50, 0x54, 0x58));
    palette.setColor(QPalette::Link, QColor(0x7a, 0xb8, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xc5, 0xa3, 0xf0));
    return palette;
}

} // namespace kelvo
