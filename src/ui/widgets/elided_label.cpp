#include "ui/widgets/elided_label.h"

#include <QClipboard>
#include <QContextMenuEvent>
#include <QGuiApplication>
#include <QMenu>

#include <algorithm>

namespace kelvo {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) {
    setTextFormat(Qt::PlainText);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    alignToLayout();
}

void ElidedLabel::setFullText(const QString& text) {
    if (text == fFullText)
        return;
    fFullText = text;
    setAccessibleName(text);
    updateGeometry();
    elide();
}

QSize ElidedLabel::minimumSizeHint() const {
    const int few = fontMetrics().horizontalAdvance(QStringLiteral("mmmm…mmmm"));
    return {std::min(few, sizeHint().width()), QLabel::minimumSizeHint().height()};
}

QSize ElidedLabel::sizeHint() const {
    const QMargins around = contentsMargins();
    return {fontMetrics().horizontalAdvance(fFullText) + around.left() + around.right() + 2,
            std::max(QLabel::sizeHint().height(), fontMetrics().height())};
}

void ElidedLabel::resizeEvent(QResizeEvent* event) {
    QLabel::resizeEvent(event);
    elide();
}

void ElidedLabel::changeEvent(QEvent* event) {
    QLabel::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange)
        elide();
    if (event->type() == QEvent::LayoutDirectionChange)
        alignToLayout();
}

/// A path or a name begins where the window's lines begin, whichever way it is written itself.
void ElidedLabel::alignToLayout() {
    setAlignment((isRightToLeft() ? Qt::AlignRight : Qt::AlignLeft) | Qt::AlignAbsolute |
                 Qt::AlignVCenter);
}

void ElidedLabel::contextMenuEvent(QContextMenuEvent* event) {
    if (fFullText.isEmpty())
        return;
    QMenu menu(this);
    menu.addAction(tr("&Copy"), this, [this] { QGuiApplication::clipboard()->setText(fFullText); });
    menu.exec(event->globalPos());
}

void ElidedLabel::elide() {
    const QString shown =
        fontMetrics().elidedText(fFullText, Qt::ElideMiddle, contentsRect().width());
    setText(shown);
    setToolTip(shown == fFullText ? QString() : plainToolTip(fFullText));
}

QString plainToolTip(const QString& text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace kelvo
