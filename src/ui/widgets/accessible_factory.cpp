#include "ui/widgets/accessible_factory.h"

#include "ui/widgets/status_field_view.h"
#include "ui/widgets/widget_button.h"

#include <QAccessibleWidget>
#include <QFrame>

namespace kelvo {
namespace {

/// Pressed and named as any button; whether it is checked is not told, for the title tells it.
class ActionButton final : public QAccessibleWidget {
public:
    explicit ActionButton(TitledButton& button)
        : QAccessibleWidget(&button, QAccessible::PushButton), fButton(button) {}

    QString text(QAccessible::Text kind) const override {
        QString given = QAccessibleWidget::text(kind);
        if (kind != QAccessible::Name || !given.isEmpty())
            return given;
        return fButton.text().remove(u'&');
    }
    QStringList actionNames() const override {
        QStringList names = QAccessibleWidget::actionNames();
        if (fButton.isEnabled())
            names.prepend(pressAction());
        return names;
    }
    void doAction(const QString& name) override {
        if (name == pressAction())
            fButton.click();
        else
            QAccessibleWidget::doAction(name);
    }

private:
    TitledButton& fButton;
};

/// There for those who listen, although nothing of it is shown.
class Notification final : public QAccessibleWidget {
public:
    explicit Notification(Spokesman& spokesman)
        : QAccessibleWidget(&spokesman, QAccessible::Notification) {}

    QAccessible::State state() const override { return {}; }
};

bool isLine(const QFrame& frame) {
    return frame.frameShape() == QFrame::HLine;
}

QAccessibleInterface* interfaceOf(const QString&, QObject* object) {
    if (auto* button = qobject_cast<TitledButton*>(object))
        return new ActionButton(*button);
    if (auto* status = qobject_cast<StatusFieldView*>(object))
        return new QAccessibleWidget(status, QAccessible::Grouping);
    if (auto* spokesman = qobject_cast<Spokesman*>(object))
        return new Notification(*spokesman);
    if (auto* frame = qobject_cast<QFrame*>(object); frame && isLine(*frame))
        return new QAccessibleWidget(frame, QAccessible::Separator);
    return nullptr;
}

} // namespace

Spokesman::Spokesman(QWidget& place, const QString& text) : QWidget(&place) {
    setAccessibleName(text);
    setFixedSize(0, 0);
    hide();
}

void installAccessibleFactory() {
    QAccessible::installFactory(interfaceOf);
}

} // namespace kelvo
