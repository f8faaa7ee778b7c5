#include "ui/widgets/status_field_view.h"

#include "ui/widgets/announcement.h"
#include "ui/widgets/trouble_color.h"
#include "ui/widgets/wrapped_label.h"
#include "ui/words.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QStyle>
#include <QStyleOptionFocusRect>
#include <QStylePainter>

namespace kelvo {
namespace {

constexpr int cAroundTheFocus = 3;

} // namespace

StatusFieldView::StatusFieldView(QWidget* parent)
    : QFrame(parent), fSign(new QLabel(this)), fText(new WrappedLabel(this)) {
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
    fText->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fText->setFocusPolicy(Qt::StrongFocus);
    fText->setAccessibleDescription(tr("What the program is doing"));
    fText->installEventFilter(this);
    setFrameShape(QFrame::StyledPanel);
    clear();
}

void StatusFieldView::show(const AttributedString& value) {
    fColor = value.foregroundColor;
    fText->setText(value.string);
    fText->setAlignment(
        (value.alignment == TextAlignment::Centered ? Qt::AlignHCenter : Qt::AlignLeft) |
        Qt::AlignVCenter);
    if (fColor == StatusColor::Red)
        showSign();
    else
        fSign->hide();
    applyColor();
    speak(value.string);
}

QWidget& StatusFieldView::focusPlace() const {
    return *fText;
}

void StatusFieldView::speak(const QString& text) {
    QString said = text;
    said.removeIf([](QChar letter) { return letter.isDigit(); });
    const bool trouble = fColor == StatusColor::Red;
    if (fSpoken.contains(said))
        return;
    if (trouble)
        fSpoken.clear();
    fSpoken.append(said);
    announce(*this, text, trouble ? Urgency::Urgent : Urgency::Polite);
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
    fSign->hide();
}

void StatusFieldView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange)
        applyColor();
    QFrame::changeEvent(event);
}

bool StatusFieldView::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        update();
    return QFrame::eventFilter(watched, event);
}

void StatusFieldView::paintEvent(QPaintEvent* event) {
    QFrame::paintEvent(event);
    if (!fText->hasFocus())
        return;
    QStylePainter painter(this);
    QStyleOptionFocusRect option;
    option.initFrom(this);
    option.state |= QStyle::State_HasFocus | QStyle::State_KeyboardFocusChange;
    option.rect = fText->geometry().adjusted(-cAroundTheFocus, -cAroundTheFocus, cAroundTheFocus,
                                             cAroundTheFocus);
    painter.drawPrimitive(QStyle::PE_FrameFocusRect, option);
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
