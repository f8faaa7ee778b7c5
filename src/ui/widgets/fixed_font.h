// fixedFont: letters of one width, as large as those around them.
#pragma once

#include <QFontDatabase>

namespace kelvo {

/// The desktop's own may be of another size, which a person who asks for large letters does not
/// read.
inline QFont fixedFont(const QFont& around) {
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    if (around.pixelSize() > 0)
        fixed.setPixelSize(around.pixelSize());
    else
        fixed.setPointSizeF(around.pointSizeF());
    return fixed;
}

} // namespace kelvo
