// The accessible factory: what the window's own widgets are to a screen reader.
#pragma once

#include <QWidget>

namespace kelvo {

/// A notification, named by what it says; a child of the widget it speaks for, and never shown.
class Spokesman final : public QWidget {
    Q_OBJECT
public:
    explicit Spokesman(QWidget& place);
};

/// From now on a TitledButton is a push button without a check, the status line a group and not a
/// window, a Spokesman a notification. Further calls do
/// nothing. Main thread only.
void installAccessibleFactory();

} // namespace kelvo
