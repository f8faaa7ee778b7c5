// SettingsTab: the command template and how passes follow each other.
#pragma once

#include "ui/login_item_setting.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class SettingsTab;
}

namespace kelvo {

class Bindings;
class LoginItem;

class SettingsTab final : public QWidget {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit SettingsTab(Bindings& bindings, QWidget* parent = nullptr);
    ~SettingsTab() override;

    /// From now on the box for the start at login is about `item`, which outlives the tab. It is
    /// read each time the tab comes up.
    void setLoginItem(LoginItem& item);

protected:
    void showEvent(QShowEvent* event) override;

private:
    void showLoginItem(const LoginItemSetting::Shown& shown);

    std::optional<LoginItemSetting> fLoginItem;
    std::unique_ptr<Ui::SettingsTab> fUi;
};

} // namespace kelvo
