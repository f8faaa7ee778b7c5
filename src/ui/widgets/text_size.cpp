#include "ui/widgets/text_size.h"

#include <QFontMetrics>
#include <QWidget>

namespace kelvo {

bool TextSize::measure(const QWidget& label, const QString& text) {
    const QFontMetrics letters = label.fontMetrics();
    const int line = letters.lineSpacing();
    if (fLine == line && fText == text && fFont == label.font())
        return false;
    fText = text;
    fFont = label.font();
    fLine = line;
    fSize = letters.boundingRect(QRect(0, 0, QWIDGETSIZE_MAX, QWIDGETSIZE_MAX), Qt::AlignLeft, text)
                .size();
    return true;
}

} // namespace kelvo
