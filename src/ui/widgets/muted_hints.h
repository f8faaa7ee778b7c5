// Muted hints: what stands where there is nothing to show yet, readable on any desktop.
#pragma once

#include <QColor>

class QWidget;

namespace kelvo {

/// `text` drawn towards `background` as far as a contrast of 4.5 to 1 between the two allows;
/// `text` itself where that has less.
QColor mutedColor(const QColor& text, const QColor& background);

/// Gives `view` and what it holds `mutedColor` of the palette's window and its text as
/// QPalette::PlaceholderText, which many desktops leave unset, from now on and with each change of
/// the palette.
void muteHints(QWidget& view);

} // namespace kelvo
