#include "ui/widgets/clear_box.h"

#include "ui/widgets/muted_hints.h"

#include <QFontMetrics>
#include <QTextLayout>

#include <algorithm>

namespace kelvo {

QString wrappedText(const QString& text, const QFont& font, int width) {
    if (QFontMetrics(font).size(Qt::TextShowMnemonic, text).width() <= width)
        return text;
    QTextLayout layout(text, font);
    QTextOption byWords;
    byWords.setWrapMode(QTextOption::WordWrap);
    layout.setTextOption(byWords);
    QStringList lines;
    layout.beginLayout();
    for (QTextLine line = layout.createLine(); line.isValid(); line = layout.createLine()) {
        line.setLineWidth(std::max(width, 1));
        lines.append(text.mid(line.textStart(), line.textLength()).trimmed());
    }
    layout.endLayout();
    return lines.join(u'\n');
}

void showFrame(QPalette& palette, const QStyle& style) {
    const QColor ground = palette.color(QPalette::Window);
    if (ground.lightness() < 128 && style.name() == u"fusion")
        palette.setColor(QPalette::Window, mutedColor(palette.color(QPalette::WindowText), ground));
}

} // namespace kelvo
