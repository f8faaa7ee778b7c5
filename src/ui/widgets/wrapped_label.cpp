#include "ui/widgets/wrapped_label.h"

#include <algorithm>

namespace kelvo {
namespace {

/// More come together only while a person draws the window wider or narrower.
constexpr std::size_t cMostWidths = 8;

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
    }
    const auto known = std::ranges::find(fHeights, width, &std::pair<int, int>::first);
    if (known != fHeights.end())
        return known->second;
    if (fHeights.size() == cMostWidths)
        fHeights.clear();
    return fHeights.emplace_back(width, QLabel::heightForWidth(width)).second;
}

} // namespace kelvo
