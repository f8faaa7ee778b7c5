#include "ui/terminal_notice.h"

#include "ui/alerts.h"

namespace kelvo {

void TerminalNotice::show(const QString& command) {
    const QList<ButtonDescription> buttons{
        {{QStringLiteral("title"), QStringLiteral("Copy Command")}},
        {{QStringLiteral("title"), QStringLiteral("Close")}}};
    fAlerts.showAlertWithClosure(
        QStringLiteral("No Terminal Found"),
        QString(u"Please run this command in a terminal and answer what it asks:\n\n" + command),
        buttons, [copyText = fCopyText, command](ModalResponse response) {
            if (response == cAlertFirstButtonReturn)
                copyText(command);
        });
}

} // namespace kelvo
