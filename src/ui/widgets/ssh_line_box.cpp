#include "ui/widgets/ssh_line_box.h"

#include "ports/alert_presenter.h"
#include "ports/ssh_configuration.h"
#include "support/plain_line.h"

#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvo {

SshLineBox::SshLineBox(QWidget* parent)
    : QWidget(parent), fNote(new QLabel), fButton(new QPushButton(tr("Tell ssh…"))) {
    auto* rows = new QVBoxLayout(this);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->addWidget(fNote);
    rows->addWidget(fButton);
    fNote->setObjectName(QStringLiteral("sshNote"));
    fNote->setWordWrap(true);
    fNote->setTextFormat(Qt::PlainText);
    fNote->setTextInteractionFlags(Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard);
    fButton->setObjectName(QStringLiteral("sshLine"));
    fButton->setAutoDefault(true);
    fButton->setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
    connect(fButton, &QPushButton::clicked, this, [this] { askAndChange(); });
    setVisible(false);
}

void SshLineBox::setConfiguration(SshConfiguration* configuration, AlertPresenter* alerts) {
    fConfiguration = configuration;
    fAlerts = alerts;
}

void SshLineBox::look() {
    show({});
}

void SshLineBox::show(const QString& trouble) {
    using Knows = SshConfiguration::Knows;
    const Knows knows = fConfiguration ? fConfiguration->knows() : Knows::ByTheMachine;
    setVisible(knows != Knows::ByTheMachine);
    if (knows == Knows::ByTheMachine)
        return;
    const bool told = knows == Knows::ByTheLine;
    const QString file = oneLine(fConfiguration->file());
    if (!trouble.isEmpty())
        fNote->setText(tr("%1 was not changed: %2").arg(file, oneLine(trouble)));
    else if (told)
        fNote->setText(tr("A line in %1 tells ssh of the connection.").arg(file));
    else
        fNote->setText(tr("ssh does not know of the connection yet: passes log in each time."));
    fButton->setText(told ? tr("Take the Line Away") : tr("Tell ssh…"));
    fButton->setAccessibleDescription(
        told ? tr("Removes the line that Kelvo Mirror has put into your configuration of ssh")
             : tr("Shows the line that your configuration of ssh needs, and asks before it is "
                  "put there"));
    fButton->setToolTip(fButton->accessibleDescription());
}

void SshLineBox::askAndChange() {
    const bool told = fConfiguration->knows() == SshConfiguration::Knows::ByTheLine;
    if (told || !fAlerts) {
        change(!told);
        return;
    }
    fAlerts->beginSheet(
        {.messageText = tr("Tell ssh of the connection?"),
         .informativeText =
             tr("This line is put at the top of %1. It concerns no commands but those of passes.\n"
                "%2")
                 .arg(oneLine(fConfiguration->file()), oneLine(fConfiguration->line())),
         .style = AlertStyle::Informational,
         .buttons = {tr("Add the Line"), tr("Leave It as It Is")}},
        [this](ModalResponse response) {
            if (response == cAlertFirstButtonReturn)
                change(true);
        });
}

void SshLineBox::change(bool there) {
    show(fConfiguration->setLine(there));
}

} // namespace kelvo
