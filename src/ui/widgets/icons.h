// The program's own icons: the application's, and a tray icon for each state.
#pragma once

#include "ports/status_menu.h"
#include "support/work_state.h"

#include <QColor>
#include <QIcon>
#include <QPalette>

namespace kelvo {

/// In its own colours, readable on light and dark ground. Main thread; needs a QGuiApplication.
QIcon applicationIcon();

/// The sign of `state` in `ink`, with a thin rim of `ground` around it, so that it can be read on a
/// panel of either colour. Signs differ by shape. Main thread; needs a QGuiApplication.
QIcon statusIcon(StatusMenuState state, const QColor& ink, const QColor& ground);

/// A triangle that starts, or a square that stops, in the colours of `palette`. Main thread; needs
/// a QGuiApplication.
QIcon startIcon(bool stops, const QPalette& palette);

/// The sign for what has no room here and stands in a menu, on light and dark ground alike. Main
/// thread; needs a QGuiApplication.
QIcon moreIcon(bool rightToLeft);

/// A tick, a cross, or a dot for what is not known, in `ink`, `side` points high and wide on a
/// screen with `ratio` pixels a point. The signs differ by shape. Main thread; needs a
/// QGuiApplication.
QPixmap healthSign(HealthSign sign, const QColor& ink, int side, qreal ratio);

} // namespace kelvo
