// The parts of a main view that a program without a window still has: each says so, or keeps still.
#pragma once

#include "ports/application.h"
#include "ports/array_controller.h"
#include "ports/main_view.h"
#include "ports/sheet_opener.h"

#include <functional>
#include <utility>

namespace kelvo {

class Console;

/// Prints the network line as "network: <text>".
class HeadlessView final : public MainView {
public:
    explicit HeadlessView(Console& console) : fConsole(console) {}

    bool hasWindow() const override { return false; }
    void makeNothingFirstResponder() override {}
    void showNetworkStatus(const QString& text) override;
    Subscription monitorRightMouseDown(const Control&, std::function<void(bool)>) override {
        return {};
    }

private:
    Console& fConsole;
};

/// Says that the sheet cannot be shown.
class HeadlessSheets final : public SheetOpener {
public:
    explicit HeadlessSheets(Console& console) : fConsole(console) {}

    bool presentSheet(QStringView identifier) override;

private:
    Console& fConsole;
};

/// Keeps the records; nothing is ever selected.
class HeadlessServiceList final : public ArrayController {
public:
    void setContent(const std::optional<DNSSD_Services>& content) override { fContent = content; }
    std::optional<DNSSD_Services> content() const override { return fContent; }
    std::optional<DNSSD_Services> arrangedObjects() const override { return fContent; }
    qsizetype selectionIndex() const override { return -1; }

private:
    std::optional<DNSSD_Services> fContent;
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

} // namespace kelvo
