// DiagnosticsTab: actions for finding faults, each with a line that says what it does.
#pragma once

#include <QWidget>

#include <memory>

class QTableView;

namespace Ui {
class DiagnosticsTab;
}

namespace kelvo {

class DiagnosticsTab final : public QWidget {
    Q_OBJECT
public:
    explicit DiagnosticsTab(QWidget* parent = nullptr);
    ~DiagnosticsTab() override;

    /// The list of what the main view's own search found.
    QTableView& foundServices();

private:
    std::unique_ptr<Ui::DiagnosticsTab> fUi;
};

} // namespace kelvo
