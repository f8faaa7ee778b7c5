#include "ui/widgets/progress_view.h"

#include "support/work_state.h"
#include "ui/widgets/elided_label.h"
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/muted_hints.h"
#include "ui/words.h"

#include <QBasicTimer>
#include <QProgressBar>
#include <QStyleOptionProgressBar>
#include <QStylePainter>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvo {
namespace {

constexpr int cWholeBar = 1000;
constexpr int cBarHeight = 12;
constexpr int cGap = 12;

/// While the share is not known a block wanders, a step at a time: the style's own animation would
/// redraw the bar thirty times a second.
class CalmBar final : public QProgressBar {
public:
    using QProgressBar::QProgressBar;

protected:
    void paintEvent(QPaintEvent* event) override {
        if (isKnown()) {
            QProgressBar::paintEvent(event);
            return;
        }
        if (!fSteps.isActive())
            fSteps.start(cStepInterval, this);
        QStylePainter painter(this);
        QStyleOptionProgressBar option;
        initStyleOption(&option);
        option.maximum = 1;
        painter.drawControl(QStyle::CE_ProgressBarGroove, option);
        const int block = width() / cStepsToTheEnd;
        const QRect place(fStep * block, 1, block, height() - 2);
        painter.fillRect(QStyle::visualRect(layoutDirection(), rect(), place),
                         palette().color(QPalette::Highlight));
    }
    void timerEvent(QTimerEvent*) override {
        if (isKnown() || !isVisible()) {
            fSteps.stop();
            return;
        }
        fStep = (fStep + 1) % cStepsToTheEnd;
        update();
    }

private:
    static constexpr int cStepsToTheEnd = 8;
    static constexpr int cStepInterval = 400; // milliseconds

    bool isKnown() const { return maximum() > 0; }

    QBasicTimer fSteps;
    int fStep = 0;
};

/// What is being done, beyond what the status line says.
QString stepText(const WorkState& work) {
    switch (work.phase) {
    case WorkPhase::Running:
        return work.step;
    case WorkPhase::Missing:
    case WorkPhase::Finishing:
    case WorkPhase::Cancelling:
        return work.headline;
    case WorkPhase::Off:
    case WorkPhase::Resting:
        break;
    }
    return {};
}

/// Keeps the width of the longest text so far, so that figures do not push each other about. Any
/// digit counts as a wide one.
void showFigure(QLabel& label, const QString& text) {
    label.setText(text);
    QString widest = text;
    for (QChar& letter : widest) {
        if (letter.isDigit())
            letter = u'0';
    }
    const int width = text.isEmpty() ? 0 : label.fontMetrics().horizontalAdvance(widest);
    label.setMinimumWidth(text.isEmpty() ? 0 : std::max(label.minimumWidth(), width));
    label.setVisible(!text.isEmpty());
}

FlowLayout* addRow(QVBoxLayout& rows) {
    auto* row = new QWidget;
    rows.addWidget(row);
    auto* layout = new FlowLayout(*row);
    layout->setSpacing(cGap);
    return layout;
}

} // namespace

ProgressView::ProgressView(QWidget* parent)
    : QWidget(parent), fBar(new CalmBar), fShare(addFigure("progressShare")),
      fStep(new ElidedLabel), fNextPass(addFigure("nextPass")),
      fAmount(addFigure("progressAmount")), fSpeed(addFigure("progressSpeed")),
      fTimeLeft(addFigure("progressTimeLeft")), fFile(new ElidedLabel),
      fCount(addFigure("progressCount")) {
    fBar->setObjectName(QStringLiteral("progressBar"));
    fBar->setAccessibleName(tr("Progress of the pass"));
    fBar->setTextVisible(false);
    fBar->setFixedHeight(cBarHeight);
    fBar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    fBar->hide();
    fStep->setObjectName(QStringLiteral("progressStep"));
    fFile->setObjectName(QStringLiteral("progressFile"));

    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    FlowLayout* figures = addRow(*rows);
    for (QWidget* widget :
         std::initializer_list<QWidget*>{fStep, fShare, fAmount, fSpeed, fTimeLeft, fNextPass})
        figures->addWidget(widget);
    QSizePolicy keepsItsRoom = fBar->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    fBar->setSizePolicy(keepsItsRoom);
    rows->addWidget(fBar);
    FlowLayout* files = addRow(*rows);
    files->addWidget(fFile);
    files->addWidget(fCount);
    muteHints(*this);
    showWork({});
}

void ProgressView::showWork(const WorkState& work) {
    const bool running = passRuns(work.phase);
    const QString step = stepText(work);
    fStep->setForegroundRole(step.isEmpty() ? QPalette::PlaceholderText : QPalette::WindowText);
    if (!step.isEmpty())
        fStep->setFullText(step);
    else
        fStep->setFullText(running ? QString()
                                   : tr("The movie that is being copied will stand here."));
    const bool known = running && work.share.has_value();
    const double share = std::clamp(work.share.value_or(0.0), 0.0, 1.0);
    fBar->setMaximum(known || !running ? cWholeBar : 0);
    fBar->setValue(known ? static_cast<int>(share * cWholeBar) : 0);
    fBar->setVisible(running);
    showFigure(*fShare, known ? Words::percent(share) : QString());
    showFigure(*fAmount, work.amount);
    showFigure(*fSpeed, work.speed);
    showFigure(*fTimeLeft, work.timeLeft);
    showFigure(*fCount, work.count);
    showFigure(*fNextPass, work.nextPass);
    fFile->setFullText(work.file);
}

QLabel* ProgressView::addFigure(const char* name) {
    auto* label = new QLabel(this);
    label->setObjectName(QString::fromLatin1(name));
    label->setTextFormat(Qt::PlainText);
    label->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    label->hide();
    return label;
}

} // namespace kelvo
