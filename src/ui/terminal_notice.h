// TerminalNotice: what a person does by hand where no terminal window can be opened.
#pragma once

#include <QString>

namespace kelvo {

class GeneralAlerts;
class Pasteboard;

class TerminalNotice {
public:
    /// Both outlive the notice and the alerts it shows.
    TerminalNotice(GeneralAlerts& alerts, Pasteboard& pasteboard)
        : fAlerts(alerts), fPasteboard(pasteboard) {}

    /// Shows `command` in an alert that can copy it. Main thread; returns at once.
    void show(const QString& command);

private:
    GeneralAlerts& fAlerts;
    Pasteboard& fPasteboard;
};

} // namespace kelvo
