// RecentArrivals: the files that came last.
#pragma once

#include "support/pass_record.h"
#include "support/subscription.h"

#include <QWidget>

#include <vector>

class QLabel;
class QTreeWidget;

namespace kelvo {

class PassStore;

/// Reads the store once the list has been painted for the first time, for the window comes up
/// sooner without it, and follows it from there on. Keeps its room while it is empty. Main thread
/// only.
class RecentArrivals final : public QWidget {
    Q_OBJECT
public:
    static constexpr int cMost = 5;

    explicit RecentArrivals(QWidget* parent = nullptr);

    /// `store` outlives the list. Called once.
    void setStore(PassStore& store) { fStore = &store; }

Q_SIGNALS:
    /// A person wants to see the file at `path`.
    void openRequested(const QString& path);

protected:
    void paintEvent(QPaintEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void readStore();
    void add(const PassRecord& pass);
    void showArrivals();
    int rowHeight() const;
    void keepRoom();
    QTreeWidget& list();

    PassStore* fStore = nullptr;
    bool fRead = false;
    std::vector<Arrival> fArrivals; ///< newest first, cMost of them
    QLabel* fEmpty;
    QTreeWidget* fList = nullptr; ///< none as long as there is nothing to show
    Subscription fObservation;
};

} // namespace kelvo
