#include "ui/widgets/settings_tab.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/widgets/bindings.h"
#include "ui_settings_tab.h"

#include <QFontDatabase>

namespace kelvo {
namespace {

constexpr int cTemplateLines = 4;

} // namespace

SettingsTab::SettingsTab(Bindings& bindings, QWidget* parent)
    : QWidget(parent), fUi(std::make_unique<Ui::SettingsTab>()) {
    fUi->setupUi(this);
    UserDefaults& defaults = bindings.defaults();
    bindings.flag(*fUi->remotePass, prefRsyncWithSSH);
    bindings.flag(*fUi->plainPass, prefRsyncWithSSH, true);

    bindings.text(*fUi->rsyncTemplate, prefRsyncCommandString1);

    fUi->optionTag->addItem(tr("Every file that differs"), 100);
    fUi->optionTag->addItem(tr("Only files newer than here (--update)"), 101);
    fUi->optionTag->addItem(tr("Only files not here yet (--ignore-existing)"), 102);
    bindings.choice(*fUi->optionTag, prefRsyncCommandOptionTag, [](int tag) {
        return tag == 105 ? tr("Every file that differs (stored as 105)")
                          : tr("Not a valid option (%1)").arg(tag);
    });
    bindings.follow(*this, {prefRsyncCommandStringExample}, [this, &defaults] {
        fUi->commandExample->setText(
            defaults.stringForKey(prefRsyncCommandStringExample).value_or(QString()));
    });

    bindings.number(*fUi->delayBetweenScans, prefDelayBetweenScans);
    bindings.flag(*fUi->autoStart, prefAutoStartScanOnLaunch);
    bindings.flag(*fUi->hideOnLaunch, prefHideOnLaunch);
    bindings.flag(*fUi->showNotices, prefShowNotices);
    bindings.flag(*fUi->showArrivals, prefShowArrivals);
    bindings.flag(*fUi->quitWithoutAsking, prefQuitWithoutAsking);
    bindings.text(*fUi->commandAfterArrivals, prefCommandAfterArrivals);
    bindings.follow(*this, {prefVersionDisplayString}, [this, &defaults] {
        const QString version = defaults.stringForKey(prefVersionDisplayString).value_or(QString());
        fUi->versionText->setFullText(version.isEmpty() ? QString()
                                                        : tr("Version %1").arg(version));
    });
}

SettingsTab::~SettingsTab() = default;

void SettingsTab::setLoginItem(LoginItem& item) {
    fLoginItem.emplace(item);
    connect(fUi->startAtLogin, &QCheckBox::clicked, this,
            [this](bool on) { showLoginItem(fLoginItem->choose(on)); });
    if (isVisible())
        showLoginItem(fLoginItem->look());
}

void SettingsTab::showLoginItem(const LoginItemSetting::Shown& shown) {
    fUi->startAtLogin->setChecked(shown.checked);
    fUi->startAtLogin->setEnabled(shown.enabled);
    fUi->loginTrouble->setText(shown.trouble);
    fUi->loginTrouble->setVisible(!shown.trouble.isEmpty());
}

/// Another font costs time and memory that a person who never comes here shall not pay.
void SettingsTab::showEvent(QShowEvent* event) {
    QFont fixed = QFontDatabase::systemFont(QFontDatabase::FixedFont);
    fixed.setPointSizeF(font().pointSizeF());
    fUi->rsyncTemplate->setFont(fixed);
    fUi->commandExample->setFont(fixed);
    fUi->rsyncTemplate->setMinimumHeight(fUi->rsyncTemplate->fontMetrics().lineSpacing() *
                                         cTemplateLines);
    if (fLoginItem)
        showLoginItem(fLoginItem->look());
    QWidget::showEvent(event);
}

} // namespace kelvo
