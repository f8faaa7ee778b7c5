// ArrivalsView: the movies that have arrived, by day, with a search.
#pragma once

#include "ports/pass_store.h"

#include <QWidget>

#include <functional>
#include <memory>

namespace Ui {
class ArrivalsView;
}

namespace kelvo {

class ArrivalRows;
class BackgroundQueue;
class DispatchQueue;
class UserDefaults;
class Workspace;

/// What the Activity tab works with; the references outlive it.
struct ActivityParts {
    PassStore& store;
    Workspace& workspace;
    DispatchQueue& mainQueue;
    BackgroundQueue& bgQueue;             ///< looks whether a file is there
    UserDefaults& defaults;               ///< keeps how the tab is divided
    std::function<QString()> destination; ///< the folder whose path the names are shown without
};

/// Asks the store when it is first shown, and for as much as is looked at; one question at a time.
class ArrivalsView final : public QWidget {
    Q_OBJECT
public:
    explicit ArrivalsView(ActivityParts parts, QWidget* parent = nullptr);
    ~ArrivalsView() override;

    /// Something has arrived: it is asked for now, or when the view is shown again.
    void refresh();

    /// The search field takes the keyboard.
    void beginSearch();

protected:
    void showEvent(QShowEvent* event) override;

private:
    enum class Want { Nothing, Older, Newer, All }; ///< the greater one goes first

    void ask(Want want);
    void take(Want wanted, const std::vector<KeptArrival>& arrivals);
    void askOlder();
    void addAction(const QString& name, const QString& text,
                   std::function<void(const KeptArrival&)> action);
    void enableActions();
    void withFile(const KeptArrival& arrival, std::function<void()> use);
    void open(const KeptArrival& arrival);
    void reveal(const KeptArrival& arrival);

    const ActivityParts fParts;
    std::unique_ptr<Ui::ArrivalsView> fUi;
    ArrivalRows* fRows;
    Want fWant = Want::All; ///< to be asked next
    bool fAsking = false;
    bool fMore = false; ///< the store may have older ones
};

} // namespace kelvo
