#include "ui/widgets/remote_tab.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/source_notice.h"
#include "ui_remote_tab.h"

namespace kelvo {

RemoteTab::RemoteTab(Bindings& bindings, QWidget* parent)
    : QWidget(parent), fUi(std::make_unique<Ui::RemoteTab>()) {
    fUi->setupUi(this);
    bindings.text(*fUi->remoteHost, prefRemoteBonjourName);
    bindings.text(*fUi->remoteUser, prefRemoteUsername);
    bindings.text(*fUi->remotePath, prefRemotePath);
    bindings.follow(
        *this,
        {prefSampleRemoteFullPath, prefRemoteUsername, prefRemoteBonjourName, prefRemotePath},
        [this, &bindings] { showRunningSource(bindings); });
    QSizePolicy keepsItsPlace = fUi->testBusySign->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    fUi->testBusySign->setSizePolicy(keepsItsPlace);
    setTesting(false);
    setKeyState({});
}

RemoteTab::~RemoteTab() = default;

void RemoteTab::setTesting(bool testing) {
    fUi->testBusySign->setVisible(testing);
}

void RemoteTab::setTask(RemoteTaskKind kind) {
    fUi->busyRow->setTask(kind);
}

void RemoteTab::setKeyState(const QString& text) {
    fUi->keyState->setText(text);
    fUi->keyState->setVisible(!text.isEmpty());
}

void RemoteTab::showRunningSource(Bindings& bindings) {
    const QString source =
        bindings.defaults().stringForKey(prefSampleRemoteFullPath).value_or(QString());
    fUi->runningSource->setFullText(source.isEmpty() ? tr("none yet") : source);
    const QString notice = sourceNotice(bindings.defaults());
    fUi->remoteNotice->setText(notice);
    fUi->remoteNotice->setVisible(!notice.isEmpty());
}

} // namespace kelvo
