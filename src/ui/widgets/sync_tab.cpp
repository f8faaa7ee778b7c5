#include "ui/widgets/sync_tab.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/attributed_string.h"
#include "support/pass_record.h"
#include "support/text.h"
#include "support/work_state.h"
#include "ui/pass_words.h"
#include "ui/widgets/accessible_factory.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/source_notice.h"
#include "ui_sync_tab.h"

#include <QDir>
#include <QEvent>

namespace kelvo {
namespace {

/// The stored folder, "~" taken for the home folder; empty when none is stored.
QString folder(const UserDefaults& defaults, QStringView key) {
    return expandingTilde(defaults.stringForKey(key).value_or(QString()), QDir::homePath());
}

} // namespace

SyncTab::SyncTab(Bindings& bindings, QWidget* parent)
    : QWidget(parent), fUi(std::make_unique<Ui::SyncTab>()) {
    installAccessibleFactory();
    fUi->setupUi(this);
    layOut();
    connect(fUi->ibSyncNow, &QPushButton::clicked, this, &SyncTab::awaitPass);
    connect(fUi->ibStartButton, &QPushButton::toggled, this, [this](bool on) {
        if (on)
            awaitPass();
    });
    UserDefaults& defaults = bindings.defaults();
    fUi->fNsPathControl1->setTextWhenEmpty(tr("No source folder chosen yet"));
    fUi->destinationPath->setTextWhenEmpty(tr("No destination folder chosen yet"));
    bindings.follow(*this,
                    {prefRsyncWithSSH, prefSampleRemoteFullPath, prefRemoteUsername,
                     prefRemoteBonjourName, prefRemotePath},
                    [this, &bindings] { showSource(bindings); });
    // A message takes the stored text away; what it shows stays.
    bindings.follow(*this, {prefStatusTextfieldString}, [this, &defaults] {
        if (const auto saved = defaults.stringForKey(prefStatusTextfieldString))
            fUi->ibStatusTextField->show(getAttributedString(*saved, StatusColor::Black, false));
    });
    bindings.follow(*this, {prefPath1}, [this, &defaults] {
        fUi->fNsPathControl1->setPath(folder(defaults, prefPath1));
    });
    bindings.follow(*this, {prefPath2}, [this, &defaults] {
        fUi->destinationPath->setPath(folder(defaults, prefPath2));
    });
}

SyncTab::~SyncTab() = default;

void SyncTab::layOut() {
    QSizePolicy keepsItsRoom = fUi->ibCancelPass->sizePolicy();
    keepsItsRoom.setRetainSizeWhenHidden(true);
    fUi->ibCancelPass->setSizePolicy(keepsItsRoom);
    fUi->ibCancelPass->hide();
    fitStartIcon();
    for (QWidget* row : {fUi->remoteSource, fUi->folderSource, fUi->sourceNow, fUi->destination,
                         fUi->buttons, fUi->arrivalsHead})
        new FlowLayout(*row);
    QWidget* before = fUi->ibCancelPass;
    for (QWidget* next : {&fUi->ibStatusTextField->focusPlace(), &fUi->health->focusPlace(),
                          &fUi->checklist->focusPlace()}) {
        setTabOrder(before, next);
        before = next;
    }
    setTabOrder(before, fUi->showAllArrivals);
}

PathControlView& SyncTab::fNsPathControl1() {
    return *fUi->fNsPathControl1;
}

PathControlView& SyncTab::destinationPath() {
    return *fUi->destinationPath;
}

StatusFieldView& SyncTab::ibStatusTextField() {
    return *fUi->ibStatusTextField;
}

ChecklistView& SyncTab::checklist() {
    return *fUi->checklist;
}

RecentArrivals& SyncTab::recentArrivals() {
    return *fUi->recentArrivals;
}

void SyncTab::setRemedyChosen(const std::function<void(Remedy)>& chosen) {
    fUi->health->setRemedyChosen([this, chosen](Remedy remedy) {
        if (remedy == Remedy::CheckAgain)
            awaitPass();
        chosen(remedy);
    });
    fUi->checklist->setRemedyChosen(chosen);
}

void SyncTab::showWork(const WorkState& work) {
    fFocus.keep([&] {
        fUi->progress->showWork(work);
        fUi->health->showHealth(work.health);
        fUi->remarks->setText(work.remarks.join(u'\n'));
        fUi->remarks->setVisible(!work.remarks.isEmpty());
        fUi->ibSyncNow->setEnabled(work.maySyncNow);
        fUi->ibCancelPass->setEnabled(work.mayCancel);
        fUi->ibCancelPass->setVisible(passRuns(work.phase));
    });
}

void SyncTab::passEnded(const PassRecord& pass) {
    const bool brought = !pass.arrivals.empty() || pass.transfer.files.value_or(0) > 0;
    if (saysNothing(pass.cause) || isTrouble(pass.cause) || !(brought || fPassAwaited))
        return;
    fPassAwaited = false;
    forgetSpoken(*this);
    announce(*this, tr("The pass went well: %1.").arg(filesText(pass)));
}

void SyncTab::awaitPass() {
    fPassAwaited = true;
    fUi->ibStatusTextField->forgetSpokenTexts();
    fUi->health->forgetSpokenText();
}

bool SyncTab::focusNextPrevChild(bool next) {
    return fFocus.handOn() || QWidget::focusNextPrevChild(next);
}

void SyncTab::changeEvent(QEvent* event) {
    if (event->type() == QEvent::FontChange)
        fitStartIcon();
    QWidget::changeEvent(event);
}

/// No higher than the letters: the button is as high as the others.
void SyncTab::fitStartIcon() {
    const int side = fontMetrics().height();
    fUi->ibStartButton->setIconSize({side, side});
}

void SyncTab::setNetworkStatus(const QString& text) {
    fUi->networkStatus->setText(text);
}

void SyncTab::showSource(Bindings& bindings) {
    const UserDefaults& defaults = bindings.defaults();
    const bool remote = defaults.boolForKey(prefRsyncWithSSH);
    fUi->remoteSource->setVisible(remote);
    fUi->folderSource->setVisible(!remote);
    const QString source = defaults.stringForKey(prefSampleRemoteFullPath).value_or(QString());
    fUi->sourceText->setFullText(source.isEmpty() ? tr("No remote Mac chosen yet") : source);
    const QString notice = remote ? sourceNotice(defaults) : QString();
    fUi->sourceNotice->setText(notice);
    fUi->sourceNotice->setVisible(!notice.isEmpty());
    fUi->sourceNow->setVisible(remote && sourceMayBeUsed(defaults));
}

} // namespace kelvo
