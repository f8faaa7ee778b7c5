#include "ui/terminal_notice.h"

#include "ui/alerts.h"
#include "ui/words.h"

namespace kelvo {

void TerminalNotice::show(const QString& command) {
    const QList<ButtonDescription> buttons{{{QStringLiteral("title"), Words::tr("Copy Command")}},
                                           {{QStringLiteral("title"), Words::tr("Close")}}};
    fAlerts.showAlertWithClosure(
        Words::tr("No Terminal Found"),
        Words::tr("Please run this command in a terminal and answer what it asks:\n\n%1")
            .arg(command),
        buttons, [copyText = fCopyText, command](ModalResponse response) {
            if (response == cAlertFirstButtonReturn)
                copyText(command);
        });
}

} // namespace kelvo
