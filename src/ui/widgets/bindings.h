// Bindings: keeps controls and settings equal, in both directions.
#pragma once

#include "support/subscription.h"

#include <QString>

#include <functional>
#include <vector>

class QAbstractButton;
class QComboBox;
class QDoubleSpinBox;
class QLineEdit;
class QObject;
class QPlainTextEdit;
class QWidget;

namespace kelvo {

class DispatchQueue;
class UserDefaults;

/// Main thread only. A control shows its key's value at once and after every change, whoever makes
/// it; what a person does to the control is stored. The controls go before the bindings, and the
/// main queue must have ended by then.
class Bindings {
public:
    /// Called when a person has finished editing the text of `field`.
    using EditingEnded = std::function<void(QWidget& field)>;

    Bindings(UserDefaults& defaults, DispatchQueue& mainQueue);

    /// Nobody is told until this is set.
    void setEditingEnded(EditingEnded editingEnded) { fEditingEnded = std::move(editingEnded); }

    /// Text is stored when editing ends: Return, or the keyboard focus leaves. Escape brings the
    /// stored text back. A change from outside replaces half-typed text only once it is stored or
    /// given up. Text that a person empties drops the user's value.
    void text(QLineEdit& field, QStringView key);
    void text(QPlainTextEdit& field, QStringView key);

    /// `negated`: the control is on while the key is false. One of several radio buttons stores
    /// only when it is switched on.
    void flag(QAbstractButton& control, QStringView key, bool negated = false);

    /// Stores the data (an integer) of the item a person chooses. A value without an item is shown
    /// as one of its own, named by `foreignTitle`, for as long as it lasts. The mouse wheel chooses
    /// only while the control has the keyboard focus.
    void choice(QComboBox& control, QStringView key,
                const std::function<QString(int)>& foreignTitle);

    /// A value outside the control's range is shown at the nearer end and stays stored as it is.
    /// The mouse wheel changes it only while the control has the keyboard focus.
    void number(QDoubleSpinBox& control, QStringView key);

    /// Calls `show` now and after every change of one of `keys`, while `context` lives.
    void follow(QObject& context, const std::vector<QStringView>& keys, std::function<void()> show);

    UserDefaults& defaults() { return fDefaults; }
    DispatchQueue& mainQueue() { return fMainQueue; }

private:
    template <typename Field>
    void bindText(Field& field, QStringView key);
    template <typename Field>
    void store(Field& field, QStringView key);

    UserDefaults& fDefaults;
    DispatchQueue& fMainQueue;
    EditingEnded fEditingEnded;
    std::vector<Subscription> fObservations;
};

} // namespace kelvo
