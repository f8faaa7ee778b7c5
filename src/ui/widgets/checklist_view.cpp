#include "ui/widgets/checklist_view.h"

#include "ui/widgets/remedy_title.h"
#include "ui/widgets/wrapped_label.h"

#include <QGridLayout>
#include <QLabel>
#include <QToolButton>

#include <algorithm>

namespace kelvo {

ChecklistView::ChecklistView(QWidget* parent) : QWidget(parent), fGrid(new QGridLayout(this)) {
    setObjectName(QStringLiteral("checklist"));
    setAccessibleName(tr("What is missing before a pass"));
    fGrid->setColumnStretch(1, 1);
    fGrid->setContentsMargins(0, 0, 0, 0);
    addRow();
    hide();
}

QWidget& ChecklistView::focusPlace() const {
    return *fRows.front().button;
}

void ChecklistView::setLines(const std::vector<ChecklistLine>& lines) {
    while (fRows.size() < lines.size())
        addRow();
    const auto focused =
        std::ranges::find_if(fRows, [](const Row& row) { return row.button->hasFocus(); });
    const Remedy wanted = focused == fRows.end() ? Remedy::None : focused->remedy;
    fFocus.keep([&] { showLines(lines); });
    const auto now = std::ranges::find(fRows, wanted, &Row::remedy);
    if (wanted != Remedy::None && now != fRows.end() && !now->button->hasFocus())
        now->button->setFocus(Qt::OtherFocusReason);
}

void ChecklistView::showLines(const std::vector<ChecklistLine>& lines) {
    if (lines.empty())
        hide();
    std::vector<Remedy> offered;
    for (std::size_t i = 0; i < fRows.size(); ++i) {
        Row& row = fRows[i];
        const bool isThere = i < lines.size();
        row.text->setText(isThere ? lines[i].text : QString());
        row.sign->setVisible(isThere);
        row.text->setVisible(isThere);
        const Remedy remedy = isThere ? lines[i].remedy : Remedy::None;
        const bool isFirst = std::ranges::find(offered, remedy) == offered.end();
        row.remedy = isFirst ? remedy : Remedy::None;
        if (row.remedy != Remedy::None) {
            offered.push_back(remedy);
            const QString title = remedyTitle(remedy);
            row.button->setText(title);
            row.button->setAccessibleName(QString(title + u": " + lines[i].text));
            row.button->setToolTip(remedy == Remedy::CopyInstallCommand ? cInstallCommand.toString()
                                                                        : QString());
        }
        row.button->setVisible(row.remedy != Remedy::None);
    }
    if (lines.empty())
        return;
    // Laid out at the width it began with, it would have each text measured in many lines.
    if (isHidden() && parentWidget())
        resize(std::max(width(), parentWidget()->width()), height());
    // Last: each row that comes into sight has all of the page laid out.
    show();
}

void ChecklistView::addRow() {
    const std::size_t place = fRows.size();
    Row row{new QLabel(QStringLiteral("•")), new WrappedLabel, // The desktop's signs take too long.
            new QToolButton};
    row.button->setFocusPolicy(Qt::StrongFocus);
    row.button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    row.button->setAccessibleName(tr("Next step"));
    row.button->hide();
    connect(row.button, &QToolButton::clicked, this, [this, place] {
        if (fRemedyChosen)
            fRemedyChosen(fRows[place].remedy);
    });
    QWidget* const cells[] = {row.sign, row.text, row.button};
    for (int column = 0; column < 3; ++column)
        fGrid->addWidget(cells[column], static_cast<int>(place), column);
    if (!fRows.empty())
        setTabOrder(fRows.back().button, row.button);
    fRows.push_back(row);
}

bool ChecklistView::focusNextPrevChild(bool next) {
    return fFocus.handOn() || QWidget::focusNextPrevChild(next);
}

} // namespace kelvo
