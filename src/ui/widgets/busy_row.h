// BusyRow: what a person has set going on the remote side, with a way to end it.
#pragma once

#include "support/remote_task_kind.h"

#include <QPointer>
#include <QWidget>

class QLabel;
class QPushButton;

namespace kelvo {

/// Takes no room while nothing runs: it belongs below what can give room away. What runs is spoken,
/// and its end. When it goes, the focus goes back to where it was when the row came. Its button is
/// named "ibCancelCommand".
class BusyRow final : public QWidget {
    Q_OBJECT
public:
    explicit BusyRow(QWidget* parent = nullptr);

    void setTask(RemoteTaskKind kind);

private:
    static QString wordsFor(RemoteTaskKind kind);
    static QString endOf(RemoteTaskKind kind);

    QLabel* const fText;
    QPushButton* const fCancel;
    QPointer<QWidget> fFocusBefore;
    RemoteTaskKind fTask = RemoteTaskKind::None;
};

} // namespace kelvo
