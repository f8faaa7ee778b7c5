// WrappedLabel: a plain text of as many lines as its width makes it.
#pragma once

#include "ui/widgets/text_size.h"

#include <QLabel>

#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

/// What it measures is kept while text and letters stay the same: layouts ask a dozen times, and
/// each measure breaks the text into lines anew. Nothing is measured for widths that the whole
/// text fits into. Main thread only.
class WrappedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit WrappedLabel(QWidget* parent = nullptr);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;
    int heightForWidth(int width) const override;

private:
    QSize wholeSize() const;

    mutable TextSize fWhole;
    mutable std::optional<int> fLongestWord;           ///< how wide it is
    mutable std::vector<std::pair<int, int>> fHeights; ///< of widths, measured so far
};

} // namespace kelvo
