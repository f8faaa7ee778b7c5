// RemoteTab: which Mac files are pulled from, and whether it lets us in.
#pragma once

#include "support/remote_task_kind.h"

#include <QWidget>

#include <memory>

namespace Ui {
class RemoteTab;
}

namespace kelvo {

class Bindings;

class RemoteTab final : public QWidget {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit RemoteTab(Bindings& bindings, QWidget* parent = nullptr);
    ~RemoteTab() override;

    /// Whether the connection test is running.
    void setTesting(bool testing);

    /// What a person has set going on the remote side.
    void setTask(RemoteTaskKind kind);

    /// What is known of the key, in words.
    void setKeyState(const QString& text);

private:
    void showRunningSource(Bindings& bindings);

    std::unique_ptr<Ui::RemoteTab> fUi;
};

} // namespace kelvo
