#include "app/front.h"

#include "adapters/headless/headless_front.h"
#include "ui/widgets/main_window.h"
#include "ui/widgets/sheet_presenter.h"
#include "ui/widgets/status_field_view.h"
#include "ui/widgets/widget_button.h"

#include <utility>

namespace kelvo {
namespace {

class HeadlessFront final : public Front {
public:
    HeadlessFront(Console& console, DispatchQueue& mainQueue, StartAction startAction)
        : fStartButton(std::move(startAction)),
          fStatusField(std::make_shared<HeadlessStatusField>(console)),
          fAlerts(console, mainQueue) {}

    Button& ibStartButton() override { return fStartButton; }
    std::weak_ptr<StatusField> ibStatusTextField() override { return fStatusField; }
    AlertPresenter& alertPresenter() override { return fAlerts; }
    void show() override {}

private:
    HeadlessButton fStartButton;
    std::shared_ptr<HeadlessStatusField> fStatusField;
    HeadlessAlerts fAlerts;
};

class WindowFront final : public Front {
public:
    WindowFront(UserDefaults& defaults, DispatchQueue& mainQueue, StartAction startAction)
        : fWindow(defaults, mainQueue),
          fStartButton(fWindow.ibStartButton(), std::move(startAction)),
          fStatusField(std::make_shared<WidgetStatusField>(fWindow.ibStatusTextField())),
          fSheets(fWindow) {}

    Button& ibStartButton() override { return fStartButton; }
    std::weak_ptr<StatusField> ibStatusTextField() override { return fStatusField; }
    AlertPresenter& alertPresenter() override { return fSheets; }
    void show() override { fWindow.show(); }

private:
    MainWindow fWindow;
    WidgetButton fStartButton;
    std::shared_ptr<WidgetStatusField> fStatusField;
    SheetPresenter fSheets;
};

} // namespace

std::unique_ptr<Front> makeHeadlessFront(Console& console, DispatchQueue& mainQueue,
                                         StartAction startAction) {
    return std::make_unique<HeadlessFront>(console, mainQueue, std::move(startAction));
}

std::unique_ptr<Front> makeWindowFront(UserDefaults& defaults, DispatchQueue& mainQueue,
                                       StartAction startAction) {
    return std::make_unique<WindowFront>(defaults, mainQueue, std::move(startAction));
}

} // namespace kelvo
