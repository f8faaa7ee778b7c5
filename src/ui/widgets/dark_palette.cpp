#include "ui/widgets/dark_palette.h"

#include "ui/widgets/muted_hints.h"

namespace kelvo {

QPalette darkPalette() {
    const QColor window("#2a2c2e");
    const QColor field("#1d1f20");
    const QColor text("#f0f0f0");
    QPalette palette(QColor("#3a3d40"), window);
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::BrightText, QPalette::ToolTipText}) {
        palette.setColor(role, text);
        palette.setColor(QPalette::Disabled, role, QColor("#8c8f92"));
    }
    palette.setColor(QPalette::Base, field);
    palette.setColor(QPalette::AlternateBase, QColor("#252729"));
    palette.setColor(QPalette::ToolTipBase, field);
    palette.setColor(QPalette::PlaceholderText, mutedColor(text, window));
    palette.setColor(QPalette::Highlight, QColor("#2f6fb5"));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor("#505458"));
    palette.setColor(QPalette::Link, QColor("#7ab8f5"));
    palette.setColor(QPalette::LinkVisited, QColor("#c5a3f0"));
    return palette;
}

} // namespace kelvo
