// SyncTab: where files come from and go to, the start button, and how it goes.
#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class SyncTab;
}

namespace kelvo {

class Bindings;
class ChecklistView;
class PathControlView;
class RecentArrivals;
class StatusFieldView;
struct WorkState;
enum class Remedy;

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
    RecentArrivals& recentArrivals();

    void showWork(const WorkState& work);

    /// From now on a click on the button of the health line or of a line of the checklist calls
    /// `chosen`.
    void setRemedyChosen(const std::function<void(Remedy)>& chosen);

    /// The network line; an empty text leaves its place empty.
    void setNetworkStatus(const QString& text);

protected:
    void changeEvent(QEvent* event) override;

private:
    void showSource(Bindings& bindings);
    void layOut();
    void fitStartIcon();

    std::unique_ptr<Ui::SyncTab> fUi;
};

} // namespace kelvo
