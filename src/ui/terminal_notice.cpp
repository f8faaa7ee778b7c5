#include "ui/terminal_notice.h"

#include "ports/general_alerts.h"
#include "ports/pasteboard.h"

namespace kelvo {

void TerminalNotice::show(const QString& command) {
    const QList<ButtonDescription> buttons{
        {{QStringLiteral("title"), QStringLiteral("Copy Command")}},
        {{QStringLiteral("title"), QStringLiteral("Close")}}};
    fAlerts.showAlertWithClosure(
        QStringLiteral("No Terminal Found"),
        QString(u"Please run this command in a terminal and answer what it asks:\n\n" + command),
        buttons, [&pasteboard = fPasteboard, command](ModalResponse response) {
            if (response == cAlertFirstButtonReturn)
                pasteboard.setString(command);
        });
}

} // namespace kelvo
