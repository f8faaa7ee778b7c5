// Widgets as the controls that actions and controllers know.
#pragma once

#include "ports/control.h"
#include "ports/path_control.h"
#include "ui/widgets/path_control_view.h"

#include <QPointer>

#include <memory>

class QWidget;

namespace kelvo {

/// A widget that actions may name as their sender. The widget may go first.
class WidgetControl final : public Control {
public:
    explicit WidgetControl(QWidget& widget) : fWidget(&widget) {}

    /// Null once the widget is gone.
    QWidget* widget() const { return fWidget; }

private:
    QPointer<QWidget> fWidget;
};

/// The text field `field`, which may go first. The focus that it resigns goes to the next place in
/// the order of the Tab key.
std::shared_ptr<TextField> textField(QWidget& field);

/// A path control; one that is gone shows nothing.
class WidgetPathControl final : public PathControl {
public:
    explicit WidgetPathControl(PathControlView& view) : fView(&view) {}

    void setUrl(const QString& url) override;
    std::optional<QString> url() const override;
    std::vector<Item> pathItems() const override;

private:
    QPointer<PathControlView> fView;
};

} // namespace kelvo
