// SettingsTab: when passes run, which movies they take, and under Advanced the command they run.
#pragma once

#include "ui/login_item_setting.h"
#include "ui/template_setting.h"

#include <QWidget>

#include <memory>
#include <optional>

namespace Ui {
class SettingsTab;
}

namespace kelvo {

class AlertPresenter;
class Bindings;
class LoginItem;
class SshConfiguration;

/// Holds its controls from the first time it is shown on.
class SettingsTab final : public QWidget {
    Q_OBJECT
public:
    /// `bindings` outlives the tab.
    explicit SettingsTab(Bindings& bindings, QWidget* parent = nullptr);
    ~SettingsTab() override;

    /// From now on the box for the start at login is about `item`, which outlives the tab. It is
    /// read each time the tab comes up.
    void setLoginItem(LoginItem& item);

    /// Where a person is asked before a template of their own is replaced, from now on; without it
    /// nobody is asked. `alerts` calls nothing back once the tab is gone.
    void setAlerts(AlertPresenter& alerts) { fAlerts = &alerts; }

    /// From now on the tab says whether ssh knows of the connection that is kept, and offers to
    /// tell it. `configuration` outlives the tab and is read each time the tab comes up.
    void setSshConfiguration(SshConfiguration& configuration) { fSsh = &configuration; }

    void setVisible(bool visible) override;

Q_SIGNALS:
    /// The controls are there.
    void built();

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void build();
    void buildAdvanced();
    void bindBehaviour();
    void showLoginItem(const LoginItemSetting::Shown& shown);
    void showAdvanced(bool shown);
    void showKinds();
    void showTemplateButtons();
    void lookAtTemplateSoon();
    void lookAtTemplate();
    void showExample();
    void askAndChangeTemplate();
    void applyFonts();
    QString typedTemplate() const;

    Bindings& fBindings;
    TemplateSetting fTemplate;
    AlertPresenter* fAlerts = nullptr;
    SshConfiguration* fSsh = nullptr;
    std::optional<LoginItemSetting> fLoginItem;
    std::unique_ptr<Ui::SettingsTab> fUi; ///< null until the tab is built
    bool fLookPlanned = false;
};

} // namespace kelvo
