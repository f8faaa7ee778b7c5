// The colour of trouble, on whatever ground the desktop has.
#pragma once

#include <QColor>

namespace kelvo {

/// A red that keeps a contrast of at least 4.5 to 1 on `background`.
inline QColor troubleColor(const QColor& background) {
    return background.lightnessF() < 0.5F ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x00, 0x20);
}

} // namespace kelvo
