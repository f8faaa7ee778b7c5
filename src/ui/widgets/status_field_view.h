// StatusFieldView: the status line on the screen; trouble is told by a sign as well as by colour.
#pragma once

#include "ports/status_field.h"

#include <QFrame>
#include <QPointer>

class QLabel;

namespace kelvo {

class StatusFieldView final : public QFrame {
    Q_OBJECT
public:
    explicit StatusFieldView(QWidget* parent = nullptr);

    void show(const AttributedString& value);
    void clear();

protected:
    void changeEvent(QEvent* event) override;

private:
    void applyColor();
    void showSign();

    QLabel* fSign;
    QLabel* fText;
    StatusColor fColor = StatusColor::Black;
};

/// The view as a port; messages for a view that is gone are dropped.
class WidgetStatusField final : public StatusField {
public:
    explicit WidgetStatusField(StatusFieldView& view) : fView(&view) {}

    void setAttributedStringValue(const AttributedString& value) override;
    void clear() override;

private:
    QPointer<StatusFieldView> fView;
};

} // namespace kelvo
