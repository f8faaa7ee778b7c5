// PassesView: what the passes did, newest first, and what their commands said.
#pragma once

#include "support/work_state.h"

#include <QWidget>

#include <memory>
#include <optional>
#include <vector>

namespace Ui {
class PassesView;
}

namespace kelvo {

class PassRows;
class PassStore;
class UserDefaults;
struct PassRecord;

/// Reads the store when it is first shown.
class PassesView final : public QWidget {
    Q_OBJECT
public:
    /// Both outlive the view; `defaults` keeps how list and text share the room.
    PassesView(PassStore& store, UserDefaults& defaults, QWidget* parent = nullptr);
    ~PassesView() override;

    /// A pass that the store has just been given.
    void add(const PassRecord& record);
    void showWork(const WorkState& work);

    /// Selects the pass `id` and scrolls to it, without a filter that hides it; the newest one when
    /// it is not kept any more.
    void showPass(qint64 id);

    /// Writes all passes to `path` as comma-separated values; says under the table how it went.
    void exportTo(const QString& path);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void keepHalves(UserDefaults& defaults);
    void readStore();
    void select(qint64 id);
    void setFilter();
    void showSelected();
    void showReport(const QString& report);
    void copyPass();
    void exportPasses();

    PassStore& fStore;
    std::unique_ptr<Ui::PassesView> fUi;
    PassRows* fRows;
    WorkState fWork;
    qint64 fSelected = 0;          ///< the pass whose report stands there; 0: none
    std::optional<qint64> fWanted; ///< to be shown once the store has answered
    bool fAsked = false;
    bool fRead = false;
};

} // namespace kelvo
