// The desktop where there is none: nobody can choose or answer, and each says so or keeps
// still.
#pragma once

#include "ports/application.h"
#include "ports/open_panel.h"
#include "ports/status_menu.h"
#include "ports/terminal.h"
#include "ports/workspace.h"

#include <functional>
#include <utility>

namespace kelvo {

class Console;

/// Nothing can be opened, and nobody is told.
class HeadlessWorkspace final : public Workspace {
public:
    void openUrl(const QString&) override {}
    void openFile(const QString&) override {}
    void revealInFinder(const QString&) override {}
    void activateFileViewerSelecting(const QStringList&) override {}
};

class HeadlessApplication final : public Application {
public:
    /// `quit` asks for the orderly end.
    explicit HeadlessApplication(std::function<void()> quit) : fQuit(std::move(quit)) {}

    void hide() override {}
    void bringToFront() override {}
    void terminate() override { fQuit(); }

private:
    const std::function<void()> fQuit;
};

/// No icon, no menu, never reachable.
class HeadlessStatusMenu final : public StatusMenu {
public:
    void setActions(StatusMenuActions) override {}
    void show(StatusMenuState) override {}
    void showWork(const WorkState&) override {}
    void setStartTitle(const QString&) override {}
    void hide() override {}
    bool isReachable() const override { return false; }
};

/// Every panel counts as cancelled, and a line in the system log says why.
class HeadlessOpenPanel final : public OpenPanel {
public:
    explicit HeadlessOpenPanel(Console& console) : fConsole(console) {}

    OpenPanelAnswer runModal(const OpenPanelOptions& options) override;

private:
    Console& fConsole;
};

/// Prints "terminal: <command>" for somebody to run it by hand, and never learns of its end.
class HeadlessTerminal final : public Terminal {
public:
    explicit HeadlessTerminal(Console& console) : fConsole(console) {}

    void openCommandFile(const QString& path, const QString& command, const QString& title,
                         std::function<void(TerminalOutcome)> ended) override;

private:
    Console& fConsole;
};

} // namespace kelvo
