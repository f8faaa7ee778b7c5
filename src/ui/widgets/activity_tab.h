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

/// Reads the store when it is first shown; follows it from then on.
class ActivityTab final : public QWidget {
    Q_OBJECT
public:
    explicit ActivityTab(QWidget* parent = nullptr);
    ~ActivityTab() override;

    /// `store` outlives the tab. Called once.
    void setStore(PassStore& store);

    /// The selected pass's text goes to the clipboard.
    void copyPass();

    /// Asks for a file and writes all passes there as comma-separated values.
    void exportPasses();

    /// The same to `path`; says under the table how it went.
    void exportTo(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void readStore();
    void add(const PassRecord& record);
    void showHeadline();
    void showSelected();

    std::unique_ptr<Ui::ActivityTab> fUi;
    PassRows* fRows;
    QTimer fHeadlineTimer; ///< "minutes ago" grows old
    PassStore* fStore = nullptr;
    bool fRead = false;
    Subscription fObservation;
};

} // namespace kelvo
