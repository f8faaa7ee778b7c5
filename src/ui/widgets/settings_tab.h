// SettingsTab: the command template and how passes follow each other.
#pragma once

#include <QWidget>

#include <memory>

namespace Ui {
class SettingsTab;
}

namespace kelvo {

class Bindings;

class SettingsTab final : public QWidget {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit SettingsTab(Bindings& bindings, QWidget* parent = nullptr);
    ~SettingsTab() override;

protected:
    void showEvent(QShowEvent* event) override;

private:
    std::unique_ptr<Ui::SettingsTab> fUi;
};

} // namespace kelvo
