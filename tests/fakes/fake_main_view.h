// FakeMainView and FakeApplication: a window and a program that tests look at.
#pragma once

#include "ports/application.h"
#include "ports/control.h"
#include "ports/main_view.h"

#include <map>
#include <memory>
#include <utility>
#include <vector>

namespace kelvo {

class FakeMainView final : public MainView {
public:
    bool hasWindow() const override { return window; }
    void makeNothingFirstResponder() override { ++focusDropped; }
    void showNetworkStatus(const QString& text) override { networkLines.push_back(text); }
    void showTesting(bool testing) override { testSigns.push_back(testing); }
    void showTask(RemoteTaskKind kind) override { tasks.push_back(kind); }
    void showKeyState(KeyState state) override { keyStates.push_back(state); }
    void showWork(const WorkState& state) override { works.push_back(state); }
    Subscription observeAttention(std::function<void(Attention)> changed) override {
        changed(Attention::Seen);
        *attention = std::move(changed);
        return Subscription([attention = attention] { *attention = {}; });
    }
    void beep() override { ++beeps; }
    Subscription monitorRightMouseDown(const Control& view,
                                       std::function<void(bool)> handler) override {
        monitors->emplace(&view, std::move(handler));
        return Subscription([all = std::weak_ptr(monitors), key = &view] {
            if (const auto alive = all.lock())
                alive->erase(key);
        });
    }

    /// A right click inside `view`; outside every other watched view.
    void rightClick(const Control& view) {
        for (const auto& [watched, handler] : std::map(*monitors))
            handler(watched == &view);
    }

    bool window = true;
    int focusDropped = 0;
    int beeps = 0;
    std::vector<QString> networkLines; ///< every text so far
    std::vector<bool> testSigns;       ///< every call so far
    std::vector<RemoteTaskKind> tasks; ///< every call so far
    std::vector<WorkState> works;      ///< every state so far
    std::vector<KeyState> keyStates;   ///< every state so far
    /// Tells who follows the view; it does nothing while nobody asks.
    std::shared_ptr<std::function<void(Attention)>> attention =
        std::make_shared<std::function<void(Attention)>>();
    std::shared_ptr<std::map<const Control*, std::function<void(bool)>>> monitors =
        std::make_shared<std::map<const Control*, std::function<void(bool)>>>();
};

class FakeApplication final : public Application {
public:
    void hide() override { requests.push_back("hide"); }
    void bringToFront() override { requests.push_back("bringToFront"); }
    void terminate() override { requests.push_back("terminate"); }

    std::vector<std::string> requests; ///< every request so far
};

} // namespace kelvo
