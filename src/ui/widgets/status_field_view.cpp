#include "ui/widgets/status_field_view.h"

#include "ui/widgets/trouble_color.h"
#include "ui/words.h"

#include <QAccessible>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>

namespace kelvo {

StatusFieldView::StatusFieldView(QWidget* parent)
    : QFrame(parent), fSign(new QLabel(this)), fText(new QLabel(this)) {
    auto* row = new QHBoxLayout(this);
    row->addWidget(fSign);
    row->addWidget(fText, 1);
    const int side = style()->pixelMetric(QStyle::PM_SmallIconSize);
    fSign->setFixedSize(side, side);
    fSign->setAccessibleName(tr("Trouble"));
    QSizePolicy keepsItsPlace = fSign->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    fSign->setSizePolicy(keepsItsPlace);
    fText->setObjectName(QStringLiteral("statusText"));
    fText->setTextFormat(Qt::PlainText);
    fText->setWordWrap(true);
    fText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fText->setAccessibleDescription(tr("What the program is doing"));
    setFrameShape(QFrame::StyledPanel);
    clear();
}

void StatusFieldView::show(const AttributedString& value) {
    fColor = value.foregroundColor;
    fText->setText(value.string);
    fText->setAccessibleName(tr("Status: %1").arg(value.string));
    fText->setAlignment(
        (value.alignment == TextAlignment::Centered ? Qt::AlignHCenter : Qt::AlignLeft) |
        Qt::AlignVCenter);
    if (fColor == StatusColor::Red)
        showSign();
    else
        fSign->hide();
    applyColor();
    QAccessibleEvent event(fText, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

/// The desktop's sign is looked for at the first trouble: that takes longer than all the window.
void StatusFieldView::showSign() {
    if (fSign->pixmap().isNull())
        fSign->setPixmap(
            style()->standardIcon(QStyle::SP_MessageBoxWarning).pixmap(fSign->width()));
    fSign->show();
}

void StatusFieldView::clear() {
    fText->clear();
    fText->setAccessibleName(tr("Status"));
    fSign->hide();
}

void StatusFieldView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        applyColor();
    QFrame::changeEvent(event);
}

void StatusFieldView::applyColor() {
    const QColor color = fColor == StatusColor::Red
                             ? troubleColor(palette().color(QPalette::Window))
                             : palette().color(QPalette::WindowText);
    QPalette shown = fText->palette();
    if (shown.color(QPalette::WindowText) == color)
        return;
    shown.setColor(QPalette::WindowText, color);
    fText->setPalette(shown);
}

void WidgetStatusField::setAttributedStringValue(const AttributedString& value) {
    if (!fView)
        return;
    AttributedString inTheLanguage = value;
    inTheLanguage.string = Words::shown(value.string);
    fView->show(inTheLanguage);
}

void WidgetStatusField::clear() {
    if (fView)
        fView->clear();
}

} // namespace kelvo
