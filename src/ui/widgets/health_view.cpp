#include "ui/widgets/health_view.h"

#include "ui/widgets/announcement.h"
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/remedy_title.h"
#include "ui/widgets/trouble_color.h"
#include "ui/widgets/wrapped_label.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

#include <utility>

namespace kelvo {
namespace {

constexpr int cGap = 8;
/// Narrower than this many letters the words leave the row to the button.
constexpr int cFewestLetters = 24;
/// Two for the words, one for the last success.
constexpr int cLines = 3;

QString nameOf(HealthSign sign) {
    switch (sign) {
    case HealthSign::Well:
        return HealthView::tr("All is well");
    case HealthSign::Trouble:
        return HealthView::tr("Trouble");
    case HealthSign::Unknown:
        break;
    }
    return HealthView::tr("Not known yet");
}

} // namespace

HealthView::HealthView(QWidget* parent)
    : QWidget(parent), fSign(new QLabel), fText(new WrappedLabel), fLastSuccess(new WrappedLabel),
      fButton(new QPushButton) {
    fSign->setObjectName(QStringLiteral("healthSign"));
    for (const auto& [label, name] :
         {std::pair(fText, "healthText"), std::pair(fLastSuccess, "lastSuccess")}) {
        label->setObjectName(QString::fromLatin1(name));
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    fButton->setObjectName(QStringLiteral("healthButton"));
    fButton->setAutoDefault(true);
    fButton->setAccessibleName(tr("Next step"));
    fButton->setAccessibleDescription(tr("Does the next step"));
    connect(fButton, &QPushButton::clicked, this, [this] {
        if (fRemedyChosen)
            fRemedyChosen(fHealth.remedy);
    });
    QSizePolicy keepsItsRoom = fButton->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    fButton->setSizePolicy(keepsItsRoom);

    auto* words = new QWidget;
    words->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* wordsRow = new QHBoxLayout(words);
    wordsRow->setContentsMargins(0, 0, 0, 0);
    wordsRow->addWidget(fSign, 0, Qt::AlignTop);
    auto* lines = new QVBoxLayout;
    lines->setSpacing(0);
    lines->addWidget(fText);
    lines->addWidget(fLastSuccess);
    lines->addStretch();
    wordsRow->addLayout(lines, 1);
    auto* flow = new FlowLayout(*this);
    flow->setSpacing(cGap);
    flow->addWidget(words);
    flow->addWidget(fButton);
    applyLook();
    muteHints(*this);
}

void HealthView::showHealth(const Health& health) {
    if (health == fHealth)
        return;
    fHealth = health;
    applyLook();
    speak();
}

QWidget& HealthView::focusPlace() const {
    return *fButton;
}

void HealthView::speak() {
    const bool trouble = fHealth.sign == HealthSign::Trouble;
    const QString cause = trouble ? fHealth.cause : QString();
    if (fHealth.sign == HealthSign::Unknown)
        return;
    const bool isAnswer = std::exchange(fAskedFor, false) && trouble;
    const bool isNews = std::exchange(fSpoken, cause) != cause || isAnswer;
    if (!isNews)
        return;
    forgetSpoken(*this);
    announce(*this, fHealth.text, trouble ? Urgency::Urgent : Urgency::Polite);
}

void HealthView::changeEvent(QEvent* event) {
    if (event->type() == QEvent::PaletteChange || event->type() == QEvent::FontChange)
        applyLook();
    QWidget::changeEvent(event);
}

void HealthView::applyLook() {
    const bool empty = fHealth.text.isEmpty();
    const QString text = empty ? tr("How the last pass went will stand here.") : fHealth.text;
    fText->setText(text);
    fLastSuccess->setText(fHealth.lastSuccess);
    fText->parentWidget()->setMinimumSize(fontMetrics().averageCharWidth() * cFewestLetters,
                                          fontMetrics().lineSpacing() * cLines);
    fSign->setFixedSize(fontMetrics().height(), fontMetrics().height());
    const bool trouble = fHealth.sign == HealthSign::Trouble;
    const QColor ink = trouble ? troubleColor(palette().color(QPalette::Window))
                               : palette().color(QPalette::WindowText);
    fSign->setPixmap(healthSign(fHealth.sign, ink, fSign->width(), devicePixelRatioF()));
    fSign->setAccessibleName(nameOf(fHealth.sign));
    fText->setForegroundRole(empty ? QPalette::PlaceholderText : QPalette::WindowText);
    QPalette shown = fText->palette();
    if (shown.color(QPalette::WindowText) != ink) {
        shown.setColor(QPalette::WindowText, ink);
        fText->setPalette(shown);
    }
    const QString title = remedyTitle(fHealth.remedy);
    if (!title.isEmpty()) {
        fButton->setText(title);
        fButton->setAccessibleName(QString(title + u": " + text));
    }
    fButton->setVisible(!title.isEmpty());
}

} // namespace kelvo
