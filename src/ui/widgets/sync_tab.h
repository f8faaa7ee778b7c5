// SyncTab: where files come from and go to, the start button, and how it goes.
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class SyncTab;
}

namespace kelvo {

class Bindings;
class ChecklistView;
class PathControlView;
class StatusFieldView;
struct WorkState;

class SyncTab final : public QWidget {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit SyncTab(Bindings& bindings, QWidget* parent = nullptr);
    ~SyncTab() override;

    PathControlView& fNsPathControl1();
    PathControlView& destinationPath();
    StatusFieldView& ibStatusTextField();
    ChecklistView& checklist();

    void showWork(const WorkState& work);

    /// The network line; an empty text leaves its place empty.
    void setNetworkStatus(const QString& text);

private:
    void showSource(Bindings& bindings);

    std::unique_ptr<Ui::SyncTab> fUi;
};

} // namespace kelvo
