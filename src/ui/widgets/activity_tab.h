// ActivityTab: what the passes did, newest first, and what their commands said.
#pragma once

#include "support/subscription.h"

#include <QTimer>
#include <QWidget>

#include <memory>

namespace Ui {
class ActivityTab;
}

namespace kelvo {

class PassRows;
class PassStore;
struct PassRecord;

/// Empty until it is first shown, for the window comes up sooner without it; then it reads the
/// store, and follows it from there on.
class ActivityTab final : public QWidget {
    Q_OBJECT
public:
    explicit ActivityTab(QWidget* parent = nullptr);
    ~ActivityTab() override;

    /// `store` outlives the tab. Called once.
    void setStore(PassStore& store);

    /// Writes all passes to `path` as comma-separated values; says under the table how it went. Not
    /// before it has been shown.
    void exportTo(const QString& path);

    void setVisible(bool visible) override;

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void build();
    void readStore();
    void add(const PassRecord& record);
    void showHeadline();
    void showSelected();
    void copyPass();
    void exportPasses();

    std::unique_ptr<Ui::ActivityTab> fUi; ///< none until it is built
    PassRows* fRows = nullptr;
    QTimer fHeadlineTimer; ///< "minutes ago" grows old
    PassStore* fStore = nullptr;
    bool fRead = false;
    Subscription fObservation;
};

} // namespace kelvo
