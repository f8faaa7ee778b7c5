#include "ui/widgets/checklist_view.h"

#include "ui/widgets/remedy_title.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

namespace kelvo {

ChecklistView::ChecklistView(QWidget* parent) : QFrame(parent), fRows(new QGridLayout(this)) {
    setObjectName(QStringLiteral("checklist"));
    setAccessibleName(tr("What is missing before a pass"));
    fRows->setColumnStretch(1, 1);
    fRows->setContentsMargins(0, 0, 0, 0);
    hide();
}

void ChecklistView::setLines(const std::vector<ChecklistLine>& lines) {
    while (fLabels.size() < lines.size())
        addRow();
    std::map<Remedy, QToolButton*> unused = fButtons;
    QToolButton* before = nullptr;
    for (std::size_t i = 0; i < fLabels.size(); ++i) {
        const bool isThere = i < lines.size();
        fLabels[i].sign->setVisible(isThere);
        fLabels[i].text->setVisible(isThere);
        fLabels[i].text->setText(isThere ? lines[i].text : QString());
        if (!isThere)
            continue;
        const Remedy remedy = lines[i].remedy;
        QToolButton& button = buttonFor(remedy);
        const bool isFirst = unused.erase(remedy) > 0 || button.parentWidget() == nullptr;
        if (!isFirst)
            continue;
        fRows->addWidget(&button, static_cast<int>(i), 2);
        button.setAccessibleName(QString(remedyTitle(remedy) + u": " + lines[i].text));
        button.show();
        if (before)
            setTabOrder(before, &button);
        before = &button;
    }
    for (const auto& [remedy, button] : unused)
        button->hide();
    setVisible(!lines.empty());
}

void ChecklistView::addRow() {
    Row row{new QLabel(QStringLiteral("•")), new QLabel}; // The desktop's signs take too long.
    row.text->setTextFormat(Qt::PlainText);
    row.text->setWordWrap(true);
    const int place = static_cast<int>(fLabels.size());
    fRows->addWidget(row.sign, place, 0);
    fRows->addWidget(row.text, place, 1);
    fLabels.push_back(row);
}

/// A new one has no parent yet.
QToolButton& ChecklistView::buttonFor(Remedy remedy) {
    QToolButton*& button = fButtons[remedy];
    if (button)
        return *button;
    button = new QToolButton;
    button->setText(remedyTitle(remedy));
    button->setFocusPolicy(Qt::StrongFocus);
    button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    if (remedy == Remedy::CopyInstallCommand)
        button->setToolTip(cInstallCommand.toString());
    connect(button, &QToolButton::clicked, this, [this, remedy] {
        if (fRemedyChosen)
            fRemedyChosen(remedy);
    });
    return *button;
}

} // namespace kelvo
