#include "ui/widgets/widget_main_view.h"

#include "ui/widgets/remote_tab.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/widget_controls.h"
#include "ui/words.h"

#include <QApplication>
#include <QMouseEvent>

#include <memory>
#include <utility>

namespace kelvo {
namespace {

/// Sees every press once: on its way into a window, before the window's widgets share it out.
class RightMouseMonitor final : public QObject {
public:
    RightMouseMonitor(QWidget* view, std::function<void(bool)> handler)
        : fView(view), fHandler(std::move(handler)) {
        QCoreApplication::instance()->installEventFilter(this);
    }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override {
        if (event->type() == QEvent::MouseButtonPress && watched->isWindowType() && fView) {
            const auto* press = static_cast<QMouseEvent*>(event);
            if (press->button() == Qt::RightButton) {
                const QPoint place = fView->mapFromGlobal(press->globalPosition().toPoint());
                // The handler may end this monitor.
                const auto handler = fHandler;
                handler(fView->isVisible() && fView->rect().contains(place));
            }
        }
        return false;
    }

private:
    QPointer<QWidget> fView;
    std::function<void(bool)> fHandler;
};

/// Follows whether the window can be seen.
class AttentionMonitor final : public QObject {
public:
    AttentionMonitor(QWidget* window, std::function<void(Attention)> changed)
        : fWindow(window), fChanged(std::move(changed)) {
        window->installEventFilter(this);
        look();
    }

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        const QEvent::Type type = event->type();
        if (type == QEvent::Show || type == QEvent::Hide || type == QEvent::WindowStateChange)
            look();
        return false;
    }

private:
    void look() {
        const Attention now =
            fWindow->isVisible() && !fWindow->isMinimized() ? Attention::Seen : Attention::Unseen;
        if (std::exchange(fTold, now) == now)
            return;
        // The handler may end this monitor.
        const auto changed = fChanged;
        changed(now);
    }

    QPointer<QWidget> fWindow;
    std::optional<Attention> fTold;
    std::function<void(Attention)> fChanged;
};

} // namespace

WidgetMainView::WidgetMainView(MainWindow& window) : fWindow(&window) {}

bool WidgetMainView::hasWindow() const {
    return !fWindow.isNull();
}

void WidgetMainView::makeNothingFirstResponder() {
    if (QWidget* focused = fWindow ? fWindow->focusWidget() : nullptr)
        focused->clearFocus();
}

void WidgetMainView::showNetworkStatus(const QString& text) {
    if (fWindow)
        fWindow->syncTab().setNetworkStatus(Words::shown(text));
}

void WidgetMainView::showTesting(bool testing) {
    if (fWindow)
        fWindow->remoteTab().setTesting(testing);
}

void WidgetMainView::showTask(RemoteTaskKind kind) {
    if (fWindow)
        fWindow->remoteTab().setTask(kind);
}

void WidgetMainView::showKeyState(KeyState state) {
    if (fWindow)
        fWindow->showKeyState(state);
}

void WidgetMainView::showWork(const WorkState& work) {
    if (fWindow)
        fWindow->showWork(work);
}

Subscription WidgetMainView::observeAttention(std::function<void(Attention)> changed) {
    if (!fWindow)
        return {};
    auto monitor = std::make_shared<AttentionMonitor>(fWindow, std::move(changed));
    return Subscription([monitor]() mutable { monitor.reset(); });
}

void WidgetMainView::beep() {
    QApplication::beep();
}

Subscription WidgetMainView::monitorRightMouseDown(const Control& view,
                                                   std::function<void(bool)> handler) {
    const auto* control = dynamic_cast<const WidgetControl*>(&view);
    if (!control)
        return {};
    auto monitor = std::make_shared<RightMouseMonitor>(control->widget(), std::move(handler));
    return Subscription([monitor]() mutable { monitor.reset(); });
}

WidgetApplication::WidgetApplication(MainWindow& window, std::function<void()> willTerminate)
    : fWindow(&window), fWillTerminate(std::move(willTerminate)) {}

void WidgetApplication::hide() {
    for (QWidget* top : QApplication::topLevelWidgets()) {
        if (top->isVisible() && !top->windowFlags().testFlag(Qt::ToolTip))
            top->hide();
    }
}

void WidgetApplication::bringToFront() {
    if (fWindow)
        fWindow->bringToFront();
}

void WidgetApplication::terminate() {
    fWillTerminate();
    QCoreApplication::quit();
}

} // namespace kelvo
