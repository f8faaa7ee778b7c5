// TextSize: how large a label's text is where nothing breaks it.
#pragma once

#include <QFont>
#include <QSize>
#include <QString>

class QWidget;

namespace kelvo {

/// Measured once while text and letters stay the same: layouts ask a dozen times, and each measure
/// shapes the whole text anew. Main thread only.
class TextSize {
public:
    /// Measures `text` in the letters of `label` where it was not measured before; whether it was
    /// not.
    bool measure(const QWidget& label, const QString& text);
    QSize size() const { return fSize; }

private:
    QString fText;
    QFont fFont;
    int fLine = 0; ///< how high a line was, which a screen can change too
    QSize fSize;
};

} // namespace kelvo
