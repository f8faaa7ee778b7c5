// StatusFieldView: the status line on the screen; trouble is told by a sign as well as by colour.
#pragma once

#include "ports/status_field.h"

#include <QFrame>
#include <QPointer>
#include <QStringList>

class QLabel;

namespace kelvo {

/// The text takes the focus, to be read again. A screen reader speaks each text when it comes first
/// and again after trouble; trouble whose figures alone change is spoken once.
class StatusFieldView final : public QFrame {
    Q_OBJECT
public:
    explicit StatusFieldView(QWidget* parent = nullptr);

    void show(const AttributedString& value);
    void clear();

    /// Takes the focus of the Tab key.
    QWidget& focusPlace() const;

    /// A person has asked for a pass: what it comes to is spoken anew.
    void forgetSpokenTexts() { fSpoken.clear(); }

protected:
    void changeEvent(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    void applyColor();
    void showSign();
    void speak(const QString& text);

    QLabel* fSign;
    QLabel* fText;
    StatusColor fColor = StatusColor::Black;
    QStringList fSpoken; ///< without their figures
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
