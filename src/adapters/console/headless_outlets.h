// What lies in the window where there is none: every status message and alert is one line on
// standard output.
#pragma once

#include "ports/alert_presenter.h"
#include "ports/control.h"
#include "ports/main_view.h"
#include "ports/path_control.h"
#include "ports/status_field.h"

#include <functional>
#include <map>
#include <utility>

namespace kelvo {

class Console;
class DispatchQueue;

/// Prints the network line as "network: <text>", the progress as "progress: <text>" and the health
/// as "health: <text>" whenever they read otherwise than before.
class HeadlessView final : public MainView {
public:
    /// `shown`, which may be empty, receives each state of the work too.
    explicit HeadlessView(Console& console, std::function<void(const WorkState&)> shown = {})
        : fConsole(console), fShown(std::move(shown)) {}

    bool hasWindow() const override { return false; }
    void makeNothingFirstResponder() override {}
    void showNetworkStatus(const QString& text) override;
    void showTesting(bool) override {}
    void showTask(RemoteTaskKind) override {}
    void showKeyState(KeyState) override {}
    void showWork(const WorkState& work) override;
    Subscription observeAttention(std::function<void(Attention)> changed) override;
    void beep() override {}
    Subscription monitorRightMouseDown(const Control&, std::function<void(bool)>) override {
        return {};
    }

    /// Says that there is no window for the sheet; false for one that no window has either.
    bool presentSheet(QStringView identifier);

private:
    Console& fConsole;
    const std::function<void(const WorkState&)> fShown;
    QString fProgress;
    QString fHealth;
};

/// A start button that nobody can see; the program itself clicks it.
class HeadlessButton final : public Button {
public:
    /// `action` receives the button after each click.
    explicit HeadlessButton(std::function<void(Control*)> action) : fAction(std::move(action)) {}

    int state() const override { return fState; }
    void performClick() override;
    void setTitle(const QString&) override {}

private:
    std::function<void(Control*)> fAction;
    int fState = 0;
};

/// Prints "status <colour>: <text>"; an empty text when cleared.
class HeadlessStatusField final : public StatusField {
public:
    explicit HeadlessStatusField(Console& console) : fConsole(console) {}

    void setAttributedStringValue(const AttributedString& value) override;
    void clear() override;

private:
    Console& fConsole;
};

/// Prints "alert: <title> | <text>". An alert that answers itself waits for its
/// maker; any other is answered with its first button.
class HeadlessAlerts final : public AlertPresenter {
public:
    HeadlessAlerts(Console& console, DispatchQueue& mainQueue)
        : fConsole(console), fMainQueue(mainQueue) {}

    bool hasWindow() const override { return true; }
    SheetId beginSheet(const Alert& alert, std::function<void(ModalResponse)> handler) override;
    void endSheet(SheetId sheet) override;
    ModalResponse runModal(const Alert& alert) override;

private:
    void printAlert(const Alert& alert);
    void answer(SheetId sheet, ModalResponse response);

    Console& fConsole;
    DispatchQueue& fMainQueue;
    std::map<SheetId, std::function<void(ModalResponse)>> fOpenSheets;
    SheetId fLastSheet = 0;
};

/// Keeps the location it was given.
class HeadlessPathControl final : public PathControl {
public:
    void setUrl(const QString& url) override { fUrl = url; }
    std::optional<QString> url() const override;
    std::vector<Item> pathItems() const override { return pathItemsOf(fUrl); }

private:
    QString fUrl;
};

} // namespace kelvo
