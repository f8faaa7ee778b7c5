// TerminalNotice: what a person does by hand where no terminal window can be opened.
#pragma once

#include <QString>

#include <functional>
#include <utility>

namespace kelvo {

class Alerts;

class TerminalNotice {
public:
    /// `alerts` outlives the notice; `copyText` puts a text on the clipboard.
    TerminalNotice(Alerts& alerts, std::function<void(const QString&)> copyText)
        : fAlerts(alerts), fCopyText(std::move(copyText)) {}

    /// Shows `command` in an alert that can copy it. Main thread; returns at once.
    void show(const QString& command);

private:
    Alerts& fAlerts;
    const std::function<void(const QString&)> fCopyText;
};

} // namespace kelvo
