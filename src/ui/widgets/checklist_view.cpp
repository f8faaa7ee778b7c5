#include "ui/widgets/checklist_view.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

namespace kelvo {
namespace {

QString titleOf(Remedy remedy) {
    switch (remedy) {
    case Remedy::ShowRemoteTab:
        return ChecklistView::tr("Show Remote Mac");
    case Remedy::ChooseSource:
    case Remedy::ChooseDestination:
        return ChecklistView::tr("Choose…");
    case Remedy::CopyInstallCommand:
        return ChecklistView::tr("Copy the command");
    case Remedy::CheckAgain:
        return ChecklistView::tr("Check Again");
    case Remedy::ShowDetails:
        return ChecklistView::tr("Details");
    case Remedy::OpenLog:
        return ChecklistView::tr("Open the Log");
    case Remedy::None:
        break;
    }
    return {};
}

} // namespace

ChecklistView::ChecklistView(QWidget* parent) : QFrame(parent), fRows(new QGridLayout(this)) {
    setObjectName(QStringLiteral("checklist"));
    setAccessibleName(tr("What is missing before a pass"));
    fRows->setColumnStretch(1, 1);
    fRows->setContentsMargins(0, 0, 0, 0);
    hide();
}

void ChecklistView::setLines(const std::vector<ChecklistLine>& lines) {
    for (QWidget* old : findChildren<QWidget*>(QString(), Qt::FindDirectChildrenOnly)) {
        fRows->removeWidget(old);
        old->hide();
        old->deleteLater();
    }
    int row = 0;
    for (const ChecklistLine& line : lines) {
        auto* sign = new QLabel(QStringLiteral("•")); // The desktop's signs take too long to find.
        auto* text = new QLabel(line.text);
        text->setTextFormat(Qt::PlainText);
        text->setWordWrap(true);
        auto* button = new QToolButton;
        button->setText(titleOf(line.remedy));
        button->setFocusPolicy(Qt::StrongFocus);
        button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
        button->setAccessibleName(QString(titleOf(line.remedy) + u": " + line.text));
        if (line.remedy == Remedy::CopyInstallCommand)
            button->setToolTip(cInstallCommand.toString());
        connect(button, &QToolButton::clicked, this, [this, remedy = line.remedy] {
            if (fRemedyChosen)
                fRemedyChosen(remedy);
        });
        fRows->addWidget(sign, row, 0);
        fRows->addWidget(text, row, 1);
        fRows->addWidget(button, row, 2);
        ++row;
    }
    setVisible(!lines.empty());
}

} // namespace kelvo
