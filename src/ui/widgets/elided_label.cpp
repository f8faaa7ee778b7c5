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
    fFew.measure(*this, QStringLiteral("mmmm…mmmm"));
    const QSize whole = sizeHint();
    return {std::min(fFew.size().width(), whole.width()), whole.height()};
}

QSize ElidedLabel::sizeHint() const {
    fWhole.measure(*this, fFullText);
    const QMargins around = contentsMargins();
    return {fWhole.size().width() + around.left() + around.right() + 2,
            std::max(fWhole.size().height(), fontMetrics().height()) + around.top() +
                around.bottom()};
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
    const int room = contentsRect().width();
    fWhole.measure(*this, fFullText);
    const QString shown = fWhole.size().width() <= room
                              ? fFullText
                              : fontMetrics().elidedText(fFullText, Qt::ElideMiddle, room);
    setText(shown);
    setToolTip(shown == fFullText ? QString() : plainToolTip(fFullText));
}

QString plainToolTip(const QString& text) {
    return text.isEmpty() ? QString() : Qt::convertFromPlainText(text, Qt::WhiteSpaceNormal);
}

} // namespace kelvo
