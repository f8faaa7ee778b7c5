#include "ui/widgets/first_paint.h"

#include "ports/dispatch_queue.h"

#include <QEvent>
#include <QPointer>
#include <QWidget>

#include <utility>

namespace kelvo {
namespace {

constexpr double cLongest = 1.0; // seconds

class FirstPaint final : public QObject {
public:
    FirstPaint(QWidget& window, DispatchQueue& mainQueue, std::function<void()> work)
        : QObject(&window), fMainQueue(mainQueue), fWork(std::move(work)) {
        window.installEventFilter(this);
        plan(cLongest);
    }

    bool eventFilter(QObject* window, QEvent* event) override {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            plan(0);
        }
        return false;
    }

private:
    void plan(double seconds) {
        fMainQueue.asyncAfter(seconds, [alive = QPointer(this)] {
            if (!alive)
                return;
            const auto work = std::exchange(alive->fWork, {});
            delete alive.data();
            work();
        });
    }

    DispatchQueue& fMainQueue;
    std::function<void()> fWork;
};

} // namespace

void afterFirstPaint(QWidget& window, DispatchQueue& mainQueue, std::function<void()> work) {
    new FirstPaint(window, mainQueue, std::move(work)); // the window's child
}

} // namespace kelvo
