#include "ui/widgets/wrapped_label.h"

#include <algorithm>

namespace kelvo {
namespace {

/// More come together only while a person draws the window wider or narrower.
constexpr std::size_t cMostWidths = 8;
/// What rounding may add to a line, with room to spare.
constexpr int cSlack = 8;

} // namespace

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

int WrappedLabel::heightForWidth(int width) const {
    const int line = fontMetrics().lineSpacing();
    if (text() != fMeasuredText || font() != fMeasuredFont || line != fMeasuredLine) {
        fMeasuredText = text();
        fMeasuredFont = font();
        fMeasuredLine = line;
        fHeights.clear();
        fOneLineHeight.reset();
        fWholeWidth.reset();
    }
    const auto known = std::ranges::find(fHeights, width, &std::pair<int, int>::first);
    if (known != fHeights.end())
        return known->second;
    if (fOneLineHeight && width >= wholeWidth())
        return *fOneLineHeight;
    if (fHeights.size() == cMostWidths)
        fHeights.clear();
    const int height = fHeights.emplace_back(width, QLabel::heightForWidth(width)).second;
    if (height < 2 * line)
        fOneLineHeight = height;
    return height;
}

int WrappedLabel::wholeWidth() const {
    if (!fWholeWidth) {
        const QMargins around = contentsMargins();
        fWholeWidth =
            fontMetrics().horizontalAdvance(text()) + around.left() + around.right() + cSlack;
    }
    return *fWholeWidth;
}

} // namespace kelvo
