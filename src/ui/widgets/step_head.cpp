#include "ui/widgets/step_head.h"

#include "ui/widgets/elided_label.h"
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/trouble_color.h"

#include <QEvent>
#include <QLabel>
#include <QPushButton>

namespace kelvo {
namespace {

constexpr int cGap = 8;

QString wordFor(StepState state) {
    switch (state) {
    case StepState::Done:
        return StepHead::tr("Done");
    case StepState::Next:
        return StepHead::tr("Next");
    case StepState::Trouble:
        return StepHead::tr("Trouble");
    case StepState::Later:
        break;
    }
    return StepHead::tr("Later");
}

HealthSign signFor(StepState state) {
    switch (state) {
    case StepState::Done:
        return HealthSign::Well;
    case StepState::Trouble:
        return HealthSign::Trouble;
    default:
        return HealthSign::Unknown;
    }
}

} // namespace

StepHead::StepHead(QWidget* parent)
    : QWidget(parent), fSign(new QLabel(this)), fTitle(new QLabel(this)), fWord(new QLabel(this)),
      fSummary(new ElidedLabel(this)), fChange(new QPushButton(this)) {
    for (QLabel* label : {fTitle, fWord})
        label->setTextFormat(Qt::PlainText);
    fTitle->setObjectName(QStringLiteral("stepTitle"));
    fWord->setObjectName(QStringLiteral("stepWord"));
    fSummary->setObjectName(QStringLiteral("stepSummary"));
    QFont bold = fTitle->font();
    bold.setBold(true);
    fTitle->setFont(bold);
    fChange->setAutoDefault(true);
    fChange->hide();
    fSummary->hide();
    (new FlowLayout(*this))->setSpacing(cGap);
}

QString StepHead::title() const {
    return fTitle->text();
}

void StepHead::setTitle(const QString& title) {
    fTitle->setText(title);
}

void StepHead::showStep(const SetupLine& line, Fold fold) {
    fState = line.state;
    fWord->setText(wordFor(fState));
    fSummary->setFullText(line.summary);
    fSummary->setVisible(fold == Fold::Folded);
    const QString text = fold == Fold::Unfolded ? tr("Close") : tr("Change");
    fChange->setText(text);
    fChange->setAccessibleName(tr("%1: %2").arg(text, title()));
    fChange->setVisible(fold != Fold::Never);
    drawSign();
}

void StepHead::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    drawSign();
}

void StepHead::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        drawSign();
    QWidget::changeEvent(event);
}

/// Drawing waits until somebody looks.
void StepHead::drawSign() {
    const int side = fontMetrics().height();
    fSign->setFixedSize(side, side);
    if (!isVisible())
        return;
    if (fState == StepState::Later) {
        fSign->clear();
        return;
    }
    const bool trouble = fState == StepState::Trouble;
    const QColor ink = trouble ? troubleColor(palette().color(QPalette::Window))
                               : palette().color(QPalette::WindowText);
    fSign->setPixmap(healthSign(signFor(fState), ink, side, devicePixelRatioF()));
}

} // namespace kelvo
