// WidgetMainView and WidgetApplication: the window and the program as controllers see them.
#pragma once

#include "ports/application.h"
#include "ports/main_view.h"
#include "ui/widgets/main_window.h"

#include <QPointer>

namespace kelvo {

class WidgetMainView final : public MainView {
public:
    explicit WidgetMainView(MainWindow& window);

    bool hasWindow() const override;
    void makeNothingFirstResponder() override;
    void showNetworkStatus(const QString& text) override;
    void showTesting(bool testing) override;
    void showTask(RemoteTaskKind kind) override;
    void showKeyState(KeyState state) override;
    void showWork(const WorkState& work) override;
    Subscription observeAttention(std::function<void(Attention)> changed) override;
    void beep() override;

    /// `view` is a WidgetControl; any other hears nothing.
    Subscription monitorRightMouseDown(const Control& view,
                                       std::function<void(bool inside)> handler) override;

private:
    QPointer<MainWindow> fWindow;
};

class WidgetApplication final : public Application {
public:
    /// `willTerminate` is called before the windows are closed for the orderly end.
    WidgetApplication(MainWindow& window, std::function<void()> willTerminate);

    void hide() override;
    void bringToFront() override;
    void terminate() override;

private:
    QPointer<MainWindow> fWindow;
    const std::function<void()> fWillTerminate;
};

} // namespace kelvo
