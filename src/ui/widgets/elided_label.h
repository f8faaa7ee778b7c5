// ElidedLabel: a line of plain text that gives up its middle when the room is short.
#pragma once

#include "ui/widgets/text_size.h"

#include <QLabel>

namespace kelvo {

/// The whole text stays there for tool tip and screen reader, and can be copied.
class ElidedLabel final : public QLabel {
    Q_OBJECT
public:
    explicit ElidedLabel(QWidget* parent = nullptr);

    void setFullText(const QString& text);
    const QString& fullText() const { return fFullText; }

    QSize minimumSizeHint() const override;
    QSize sizeHint() const override;

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void elide();
    void alignToLayout();

    QString fFullText;
    mutable TextSize fWhole;
    mutable TextSize fFew; ///< of the few letters that it keeps when there is little room
};

/// `text` as a tool tip that shows it letter by letter, whatever markup it looks like.
QString plainToolTip(const QString& text);

} // namespace kelvo
