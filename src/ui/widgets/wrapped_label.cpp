#include "ui/widgets/wrapped_label.h"

#include <algorithm>

namespace kelvo {
namespace {

/// More come together only while a person draws the window wider or narrower.
constexpr std::size_t cMostWidths = 8;
/// What rounding may add to a line, with room to spare.
constexpr int cSlack = 8;
/// How many letters a line takes at most where the text has the choice.
constexpr int cLettersOfALine = 80;

} // namespace

WrappedLabel::WrappedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setWordWrap(true);
}

QSize WrappedLabel::sizeHint() const {
    const QSize whole = wholeSize().grownBy(contentsMargins());
    const int width = std::min(
        {whole.width(), maximumWidth(), fontMetrics().averageCharWidth() * cLettersOfALine});
    const int lines = width > 0 ? (whole.width() + width - 1) / width : 1;
    return QSize(width, whole.height() * lines).expandedTo(minimumSize());
}

QSize WrappedLabel::minimumSizeHint() const {
    const QSize whole = wholeSize();
    if (!fLongestWord)
        fLongestWord = fontMetrics()
                           .boundingRect(QRect(0, 0, 0, QWIDGETSIZE_MAX),
                                         Qt::AlignLeft | Qt::TextWordWrap, text())
                           .width();
    return QSize(*fLongestWord, whole.height()).grownBy(contentsMargins());
}

int WrappedLabel::heightForWidth(int width) const {
    const QSize whole = wholeSize().grownBy(contentsMargins());
    if (width >= whole.width() + cSlack)
        return std::max(whole.height(), minimumHeight());
    const auto known = std::ranges::find(fHeights, width, &std::pair<int, int>::first);
    if (known != fHeights.end())
        return known->second;
    if (fHeights.size() == cMostWidths)
        fHeights.clear();
    return fHeights.emplace_back(width, QLabel::heightForWidth(width)).second;
}

QSize WrappedLabel::wholeSize() const {
    if (fWhole.measure(*this, text())) {
        fHeights.clear();
        fLongestWord.reset();
    }
    return fWhole.size();
}

} // namespace kelvo
