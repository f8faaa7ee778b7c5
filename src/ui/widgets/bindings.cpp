#include "ui/widgets/bindings.h"

#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "ui/widgets/editing_watcher.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QEvent>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPointer>
#include <QSignalBlocker>
#include <QTextDocument>

#include <utility>

namespace kelvo {
namespace {

QString textOf(const QLineEdit& field) {
    return field.text();
}
QString textOf(const QPlainTextEdit& field) {
    return field.toPlainText();
}
void setTextOf(QLineEdit& field, const QString& text) {
    field.setText(text);
}
void setTextOf(QPlainTextEdit& field, const QString& text) {
    field.setPlainText(text);
}
bool isEdited(const QLineEdit& field) {
    return field.isModified();
}
bool isEdited(const QPlainTextEdit& field) {
    return field.document()->isModified();
}
void setEdited(QLineEdit& field, bool edited) {
    field.setModified(edited);
}
void setEdited(QPlainTextEdit& field, bool edited) {
    field.document()->setModified(edited);
}

/// Marks the item that stands for a stored value outside the list.
constexpr int cForeignRole = Qt::UserRole + 1;

/// Leaves the wheel over a control without the focus to whatever scrolls there.
class WheelGuard final : public QObject {
public:
    explicit WheelGuard(QWidget& control) : QObject(&control), fControl(control) {
        control.setFocusPolicy(Qt::StrongFocus);
        control.installEventFilter(this);
    }

    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() != QEvent::Wheel || fControl.hasFocus())
            return false;
        event->ignore();
        return true;
    }

private:
    QWidget& fControl;
};

} // namespace

Bindings::Bindings(UserDefaults& defaults, DispatchQueue& mainQueue)
    : fDefaults(defaults), fMainQueue(mainQueue) {}

void Bindings::follow(QObject& context, const std::vector<QStringView>& keys,
                      std::function<void()> show) {
    show();
    const auto shared = std::make_shared<std::function<void()>>(std::move(show));
    for (const QStringView key : keys) {
        fObservations.push_back(fDefaults.observe(
            key, [this, guard = QPointer<QObject>(&context), shared](const DefaultsChange&) {
                fMainQueue.async([guard, shared] {
                    if (guard)
                        (*shared)();
                });
            }));
    }
}

void Bindings::text(QLineEdit& field, QStringView key) {
    bindText(field, key);
}

void Bindings::text(QPlainTextEdit& field, QStringView key) {
    bindText(field, key);
}

template <typename Field>
void Bindings::bindText(Field& field, QStringView key) {
    constexpr bool cOneLine = std::is_same_v<Field, QLineEdit>;
    const auto showStored = [this, &field, key] {
        const QString stored = fDefaults.stringForKey(key).value_or(QString());
        if (stored != textOf(field))
            setTextOf(field, stored);
        setEdited(field, false);
    };
    new EditingWatcher(
        field, cOneLine, [this, &field, key] { store(field, key); }, showStored);
    follow(field, {key}, [&field, showStored] {
        if (!(field.hasFocus() && isEdited(field)))
            showStored();
    });
}

template <typename Field>
void Bindings::store(Field& field, QStringView key) {
    if (!isEdited(field))
        return;
    setEdited(field, false);
    const QString text = textOf(field);
    if (text.isEmpty())
        fDefaults.removeObject(key);
    else
        fDefaults.setObject(key, text);
    if (fEditingEnded)
        fEditingEnded(field);
}

void Bindings::flag(QAbstractButton& control, QStringView key, bool negated) {
    follow(control, {key}, [this, &control, key, negated] {
        const QSignalBlocker blocker(control);
        control.setChecked(fDefaults.boolForKey(key) != negated);
    });
    QObject::connect(&control, &QAbstractButton::toggled, &control,
                     [this, &control, key, negated](bool checked) {
                         if (checked || !control.autoExclusive())
                             fDefaults.setObject(key, checked != negated);
                     });
}

void Bindings::choice(QComboBox& control, QStringView key,
                      const std::function<QString(int)>& foreignTitle) {
    new WheelGuard(control); // the control's child
    follow(control, {key}, [this, &control, key, foreignTitle] {
        const QSignalBlocker blocker(control);
        if (const int foreign = control.findData(true, cForeignRole); foreign >= 0)
            control.removeItem(foreign);
        if (!fDefaults.object(key).isValid()) {
            control.setCurrentIndex(-1);
            return;
        }
        const auto stored = static_cast<int>(fDefaults.integerForKey(key));
        if (control.findData(stored) < 0) {
            control.addItem(foreignTitle(stored), stored);
            control.setItemData(control.count() - 1, true, cForeignRole);
        }
        control.setCurrentIndex(control.findData(stored));
    });
    QObject::connect(&control, &QComboBox::activated, &control, [this, &control, key](int index) {
        fDefaults.setObject(key, control.itemData(index).toInt());
    });
}

void Bindings::number(QDoubleSpinBox& control, QStringView key) {
    new WheelGuard(control); // the control's child
    follow(control, {key}, [this, &control, key] {
        const QSignalBlocker blocker(control);
        control.setValue(fDefaults.doubleForKey(key));
    });
    QObject::connect(&control, &QDoubleSpinBox::valueChanged, &control,
                     [this, key](double value) { fDefaults.setObject(key, value); });
}

} // namespace kelvo
