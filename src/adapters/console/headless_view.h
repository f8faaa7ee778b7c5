// The parts of a main view that a program without a window still has: each says so, or keeps still.
#pragma once

#include "ports/application.h"
#include "ports/main_view.h"

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
    void showTesting(bool) override {}
    void showKeyState(KeyState) override {}
    void beep() override {}

    /// Says that there is no window for the sheet; false for one that no window has either.
    bool presentSheet(QStringView identifier);

    Subscription monitorRightMouseDown(const Control&, std::function<void(bool)>) override {
        return {};
    }

private:
    Console& fConsole;
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
