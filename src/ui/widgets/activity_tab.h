// ActivityTab: what has arrived, what the passes did, and how much came on which day.
#pragma once

#include "support/subscription.h"
#include "support/work_state.h"
#include "ui/widgets/arrivals_view.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class ActivityTab;
}

namespace kelvo {

class PassesView;
struct PassRecord;

/// Empty until it is first shown, for the window comes up sooner without it; then it reads the
/// store, and follows it from there on. Main thread only.
class ActivityTab final : public QWidget {
    Q_OBJECT
public:
    explicit ActivityTab(QWidget* parent = nullptr);
    ~ActivityTab() override;

    /// Called once, before the tab is shown.
    void setParts(ActivityParts parts);

    /// What is known of the pass that runs, and how the passes stand.
    void showWork(const WorkState& work);

    /// Turns to what has arrived.
    void showArrived();

    /// Turns to all passes and selects the pass `id`, the newest one when it is not kept any more.
    void showPass(qint64 id);

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void build();
    void add(const PassRecord& record);
    void readDays();
    void fitChart();

    std::optional<ActivityParts> fParts;
    std::unique_ptr<Ui::ActivityTab> fUi; ///< none until it is built
    ArrivalsView* fArrivals = nullptr;
    PassesView* fPasses = nullptr;
    std::optional<qint64> fWanted; ///< the pass to show once it is built
    WorkState fWork;
    Subscription fObservation;
};

} // namespace kelvo
