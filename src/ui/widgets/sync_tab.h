// SyncTab: where files come from and go to, the start button, and how it goes.
#pragma once

#include "ui/widgets/focus_keeper.h"

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
struct PassRecord;
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

    /// A pass is over. A screen reader speaks what it brought; that it brought nothing only where a
    /// person waits for it.
    void passEnded(const PassRecord& pass);

    /// A person has asked for a pass: how it goes is spoken although it is no news.
    void awaitPass();

    /// From now on a click on the button of the health line or of a line of the checklist calls
    /// `chosen`.
    void setRemedyChosen(const std::function<void(Remedy)>& chosen);

    /// The network line; an empty text leaves its place empty.
    void setNetworkStatus(const QString& text);

protected:
    void changeEvent(QEvent* event) override;
    bool focusNextPrevChild(bool next) override;

private:
    void showSource(Bindings& bindings);
    void layOut();
    void fitStartIcon();

    std::unique_ptr<Ui::SyncTab> fUi;
    FocusKeeper fFocus{*this};
    bool fPassAwaited = false;
};

} // namespace kelvo
