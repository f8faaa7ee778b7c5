#include "ui/widgets/profiles_sheet.h"

#include "ports/dispatch_queue.h"
#include "support/plain_line.h"
#include "ui/activity_texts.h"
#include "ui/pass_words.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/elided_label.h"
#include "ui/words.h"
#include "ui_profiles_sheet.h"

#include <QHeaderView>
#include <QPointer>

#include <utility>

namespace kelvo {

ProfilesSheet::ProfilesSheet(ProfilesSheetParts parts, QWidget* parent)
    : QDialog(parent), fParts(std::move(parts)), fUi(std::make_unique<Ui::ProfilesSheet>()) {
    fUi->setupUi(this);
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    QTableWidget& table = *fUi->profiles;
    table.horizontalHeader()->setHighlightSections(false);
    connect(&table, &QTableWidget::itemSelectionChanged, this, &ProfilesSheet::rowChosen);
    connect(&table, &QTableWidget::itemDoubleClicked, this, &ProfilesSheet::openChosen);
    connect(fUi->nameField, &QLineEdit::textChanged, this, &ProfilesSheet::nameEdited);
    connect(fUi->openButton, &QPushButton::clicked, this, &ProfilesSheet::openChosen);
    connect(fUi->cancelButton, &QPushButton::clicked, this, &QDialog::reject);
    nameEdited();
    fUi->nameField->setFocus();
    fParts.bgQueue.async(
        [self = QPointer(this), list = fParts.list, &mainQueue = fParts.mainQueue] {
            mainQueue.async([self, states = list()] {
                if (self)
                    self->setStates(states);
            });
        });
}

ProfilesSheet::~ProfilesSheet() = default;

void ProfilesSheet::setStates(std::vector<ProfileState> states) {
    fStates = std::move(states);
    for (const ProfileState& each : fStates)
        addRow(each);
    // The last one has the rest of the room.
    for (int column = 0; column + 1 < fUi->profiles->columnCount(); ++column)
        fUi->profiles->resizeColumnToContents(column);
    nameEdited();
}

void ProfilesSheet::addRow(const ProfileState& state) {
    QTableWidget& table = *fUi->profiles;
    const int row = table.rowCount();
    table.insertRow(row);
    const QString why = state.trouble            ? sentenceFor(*state.trouble)
                        : !state.fault.isEmpty() ? oneLine(state.fault)
                                                 : QString();
    int column = 0;
    for (const QString& text :
         {state.profile.isNamed() ? state.profile.name : tr("Without a name"), oneLine(state.mac),
          stateText(state),
          state.lastSuccess.isValid() ? momentText(state.lastSuccess, fParts.now())
                                      : tr("None yet")}) {
        auto* item = new QTableWidgetItem(text);
        item->setToolTip(plainToolTip(why));
        item->setData(Qt::AccessibleDescriptionRole, why);
        table.setItem(row, column++, item);
    }
}

QString ProfilesSheet::stateText(const ProfileState& state) const {
    if (state.profile == fParts.own)
        return tr("This window");
    if (state.trouble || !state.fault.isEmpty())
        return state.isRunning ? tr("Running, in trouble") : tr("Not running, in trouble");
    return state.isRunning ? tr("Running") : tr("Not running");
}

void ProfilesSheet::rowChosen() {
    if (const Profile* chosen = chosenProfile())
        fUi->nameField->setText(chosen->name);
    nameEdited();
}

void ProfilesSheet::nameEdited() {
    const QString name = fUi->nameField->text();
    const bool isName = profileNameFault(name).isEmpty();
    // What is typed goes before the row that was chosen.
    if (const Profile* chosen = chosenProfile(); chosen && chosen->name != name)
        fUi->profiles->clearSelection();
    fUi->openButton->setEnabled(isName || (name.isEmpty() && chosenProfile()));
    showTrouble(
        isName || name.isEmpty()
            ? QString()
            : tr("A name has 1 to 64 letters (A to Z), digits, “-” and “_”, and no blank."));
}

void ProfilesSheet::showTrouble(const QString& text) {
    if (text == fUi->trouble->text())
        return;
    fUi->trouble->setText(text);
    if (text.isEmpty())
        forgetSpoken(*this);
    else
        announce(*this, text);
}

const Profile* ProfilesSheet::chosenProfile() const {
    const QModelIndexList rows = fUi->profiles->selectionModel()->selectedRows();
    return rows.isEmpty() ? nullptr
                          : &fStates.at(static_cast<std::size_t>(rows.constFirst().row())).profile;
}

void ProfilesSheet::openChosen() {
    if (!fUi->openButton->isEnabled())
        return;
    const QString fault = fParts.open({.name = fUi->nameField->text()});
    if (fault.isEmpty())
        accept();
    else
        showTrouble(tr("No window could be opened: %1").arg(oneLine(Words::shown(fault))));
}

} // namespace kelvo
