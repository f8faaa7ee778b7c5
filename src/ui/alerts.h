// Alerts: every question and warning that the program puts to its user.
#pragma once

#include "support/alert.h"

#include <QList>
#include <QMap>

#include <functional>
#include <optional>

namespace kelvo {

class AlertPresenter;
class Console;
class DispatchQueue;

/// A button of the alert; only the entry "title" is read.
using ButtonDescription = QMap<QString, QString>;
using AlertCompletion = std::function<void(ModalResponse)>;

/// A sheet that is due while there is no main window stops the program.
class Alerts {
public:
    Alerts(DispatchQueue& mainQueue, Console& console, AlertPresenter& presenter)
        : fMainQueue(mainQueue), fConsole(console), fPresenter(presenter) {}

    /// Shows a critical sheet 0.1 s from now; a description without "title" adds no button, no
    /// button at all leaves the default one. `completion` gets the answer on the main thread.
    /// Any thread; returns at once.
    void showAlertWithClosure(const QString& message, const std::optional<QString>& text,
                              const std::optional<QList<ButtonDescription>>& buttons,
                              AlertCompletion completion);

    /// Asks how to reveal a folder; true for "Open in Finder" only. Main thread; blocks.
    bool showChoices(const QString& message, const QString& text);

    /// The problem alert, built and not shown. Main thread.
    std::optional<Alert> showProblemWithBonjourNew(const QString& message, const QString& text);

    /// Shows the self-closing alert 0.1 s from now. `completion` runs on the main thread, more than
    /// once: with the user's answer if there is one, and always with cAlertFirstButtonReturn about
    /// 6.1 s after the alert appeared. Any thread; returns at once.
    void showProblemWithBonjourClosure(const QString& message, const QString& text,
                                       AlertCompletion completion);

private:
    void printEntry(QStringView operation);
    void showProblem(const QString& message, const QString& text,
                     const AlertCompletion& completion);

    DispatchQueue& fMainQueue;
    Console& fConsole;
    AlertPresenter& fPresenter;
};

} // namespace kelvo
