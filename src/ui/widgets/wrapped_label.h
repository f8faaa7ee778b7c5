// WrappedLabel: a plain text of as many lines as its width makes it.
#pragma once

#include <QLabel>

#include <optional>
#include <utility>
#include <vector>

namespace kelvo {

/// The height for a width is measured once while text and letters stay the same: a layout asks for
/// it a dozen times, and each measure breaks the text into lines anew. A text that stands in one
/// line is not measured again for widths that it fits into. Main thread only.
class WrappedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit WrappedLabel(QWidget* parent = nullptr);

    int heightForWidth(int width) const override;

private:
    int wholeWidth() const;

    mutable QString fMeasuredText;
    mutable QFont fMeasuredFont;
    mutable int fMeasuredLine = 0; ///< how high a line was, which a screen can change too
    mutable std::vector<std::pair<int, int>> fHeights; ///< of widths, measured so far
    mutable std::optional<int> fOneLineHeight;         ///< of a width that was measured so far
    mutable std::optional<int> fWholeWidth;            ///< in which there is surely one line
};

} // namespace kelvo
