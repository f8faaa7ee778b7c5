// The accessible factory: what the window's own widgets are to a screen reader.
#pragma once

#include <QWidget>

namespace kelvo {

/// A notification, named by what it says; a child of the widget it speaks for, and never shown.
class Spokesman final : public QWidget {
    Q_OBJECT
public:
    Spokesman(QWidget& place, const QString& text);

    /// From now on the same may be said anew.
    void forget() { fForgotten = true; }
    bool isForgotten() const { return fForgotten; }

private:
    bool fForgotten = false;
};

/// From now on a TitledButton is a push button without a check, the status line a group and a line
/// between two parts a separator, neither of them a window, a Spokesman a notification. Further
/// calls do nothing. Main thread only.
void installAccessibleFactory();

} // namespace kelvo
