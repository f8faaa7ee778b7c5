#include "ui/widgets/remote_tab.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/breakable_text.h"
#include "ui/widgets/flow_layout.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/source_notice.h"
#include "ui/widgets/step_head.h"
#include "ui_remote_tab.h"

#include <QApplication>
#include <QHideEvent>
#include <QScrollBar>

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

constexpr auto cSteps = {SetupStep::Mac, SetupStep::Account, SetupStep::Key, SetupStep::Connection};

std::size_t at(SetupStep step) {
    return static_cast<std::size_t>(step);
}

void showText(QLabel& label, const QString& text) {
    label.setText(breakable(text));
    label.setVisible(!text.isEmpty());
}

} // namespace

RemoteTab::RemoteTab(Bindings& bindings, QWidget* parent) : LateTab(parent), fBindings(bindings) {}

RemoteTab::~RemoteTab() = default;

void RemoteTab::makeControls() {
    fUi = std::make_unique<Ui::RemoteTab>();
    fUi->setupUi(this);
    fSteps = {Step{.head = fUi->macHead,
                   .body = fUi->macBody,
                   .main = fUi->ibSelectSourceByBonjor,
                   .fields = {}},
              Step{.head = fUi->accountHead,
                   .body = fUi->accountBody,
                   .main = fUi->useSourceNow,
                   .fields = {fUi->remoteUser, fUi->remotePath}},
              Step{.head = fUi->keyHead,
                   .body = fUi->keyBody,
                   .main = fUi->ibGenerateSSHKeyStuff,
                   .fields = {}},
              Step{.head = fUi->connectionHead,
                   .body = fUi->connectionBody,
                   .main = fUi->ibTestShellCommand,
                   .fields = {},
                   .folds = false}};
    for (QWidget* row : {fUi->hostRow, fUi->sourceRow, fUi->keyRow, fUi->testRow, fUi->moreRow})
        new FlowLayout(*row);
    for (QLineEdit* field : {fUi->remoteHost, fUi->remoteUser, fUi->remotePath})
        muteHints(*field);
    QSizePolicy keepsItsPlace = fUi->testBusySign->sizePolicy();
    keepsItsPlace.setRetainSizeWhenHidden(true);
    fUi->testBusySign->setSizePolicy(keepsItsPlace);
    fUi->testBusySign->setVisible(fTesting);
    fUi->busyRow->setTask(fTask);
    fBindings.text(*fUi->remoteHost, prefRemoteBonjourName);
    fBindings.text(*fUi->remoteUser, prefRemoteUsername);
    fBindings.text(*fUi->remotePath, prefRemotePath);
    for (const SetupStep number : cSteps)
        connectStep(number);
    // A button that loses the focus loses its look of a main button with it.
    connect(qApp, &QApplication::focusChanged, this, [this] { markMainButton(); });
    fBindings.follow(
        *this,
        {prefSampleRemoteFullPath, prefRemoteUsername, prefRemoteBonjourName, prefRemotePath},
        [this] { update(); });
}

/// What a person asks for in the step: to fold it, to fill it in, to do it.
void RemoteTab::connectStep(SetupStep number) {
    Step& step = stepAt(number);
    connect(&step.head->changeButton(), &QPushButton::clicked, this, [this, number] {
        if (isFolded(number))
            openStep(number);
        else
            finish(number);
    });
    connect(step.main, &QPushButton::clicked, this, [this, number] { fFinishing = number; });
    for (QLineEdit* field : step.body->findChildren<QLineEdit*>()) {
        connect(field, &QLineEdit::textEdited, this, [this] { fFinishing.reset(); });
        connect(field, &QLineEdit::returnPressed, this, [this, number] {
            fFinishing = number;
            // What was typed has been stored; what follows from that is not known yet.
            QMetaObject::invokeMethod(
                this, [this, number] { finish(number); }, Qt::QueuedConnection);
        });
    }
    if (number == SetupStep::Account)
        connect(
            step.main, &QPushButton::clicked, this, [this, number] { finish(number); },
            Qt::QueuedConnection);
}

// -- what is known

void RemoteTab::setTesting(bool testing) {
    fTesting = testing;
    if (isBuilt())
        fUi->testBusySign->setVisible(testing);
    update();
}

void RemoteTab::setTask(RemoteTaskKind kind) {
    fTask = kind;
    if (!isBuilt())
        return;
    // The row takes its room at the lower end of what scrolls. A bar that came with it would make
    // everything narrower under the pointer.
    QScrollBar& bar = *fUi->scrollArea->verticalScrollBar();
    if (fUi->busyRow->isHidden() && !bar.isVisible())
        fUi->scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    fUi->busyRow->setTask(kind);
    if (kind == RemoteTaskKind::None)
        fUi->scrollArea->setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
}

void RemoteTab::setKeyState(KeyState state) {
    fAskingForTheKey = state == KeyState::Asking;
    if (!fAskingForTheKey)
        fFacts.key = state;
    update();
}

void RemoteTab::setConnection(const Connection& connection) {
    const std::optional<HostAnswer> before = std::exchange(fFacts.connection, connection).answer;
    if (const std::optional<HostAnswer>& now = connection.answer)
        fVerdictIsNews = fVerdictIsNews || fTesting || (before && before->cause != now->cause);
    else
        fVerdictIsNews = false;
    update();
}

void RemoteTab::readSettings() {
    const auto text = [&defaults = fBindings.defaults()](QStringView key) {
        return defaults.stringForKey(key).value_or(QString());
    };
    fFacts.host = text(prefRemoteBonjourName);
    fFacts.user = text(prefRemoteUsername);
    fFacts.folder = text(prefRemotePath);
    fFacts.source = text(prefSampleRemoteFullPath);
    fFacts.asking = fTesting || fAskingForTheKey;
    fFacts.now = QDateTime::currentDateTimeUtc();
}

// -- how it is shown

void RemoteTab::update() {
    if (!isBuilt())
        return;
    readSettings();
    const SetupSteps before = std::exchange(fShown, setupSteps(fFacts));
    std::optional<SetupStep> left;
    for (const SetupStep number : cSteps) {
        Step& step = stepAt(number);
        const SetupLine& line = fShown[at(number)];
        const SetupLine& was = before[at(number)];
        const bool done = line.state == StepState::Done;
        const bool finished = fFinishing == number && done &&
                              (was.state != StepState::Done || was.summary != line.summary);
        if (!done || finished)
            step.opened = false;
        else if (was.state != StepState::Done && holdsTheFocus(step))
            step.opened = true; // Nobody has said that this is all.
        if (finished)
            fFinishing.reset();
        if ((finished || isFolded(number)) && holdsTheFocus(step))
            left = number;
    }
    for (const SetupStep number : cSteps)
        showStep(number);
    markMainButton();
    if (left)
        openNextStep();
    speakVerdict();
}

/// A check of the key has words of its own.
void RemoteTab::speakVerdict() {
    const QString& text = fShown[at(SetupStep::Connection)].text;
    if (fTesting) {
        announce(*fUi->connectionText, text);
    } else if (fVerdictIsNews && !fFacts.asking) {
        fVerdictIsNews = false;
        forgetSpoken(*fUi->connectionText);
        announce(*fUi->connectionText, text);
    }
}

void RemoteTab::showStep(SetupStep number) {
    const Step& step = stepAt(number);
    const SetupLine& line = fShown[at(number)];
    using enum StepHead::Fold;
    const bool done = line.state == StepState::Done && step.folds;
    step.head->showStep(line, isFolded(number) ? Folded : done ? Unfolded : Never);
    step.body->setVisible(!isFolded(number));
    switch (number) {
    case SetupStep::Mac:
        showText(*fUi->macText, line.text);
        break;
    case SetupStep::Account:
        showText(*fUi->accountText, line.text);
        showSource(line);
        break;
    case SetupStep::Key:
        showText(*fUi->keyState, line.summary);
        showText(*fUi->keyText, line.text);
        break;
    case SetupStep::Connection:
        showText(*fUi->connectionText, line.text);
        showText(*fUi->connectionRemark, line.remark);
        break;
    }
}

void RemoteTab::showSource(const SetupLine& account) {
    fUi->runningSource->setFullText(fFacts.source.isEmpty() ? tr("none yet") : fFacts.source);
    const bool mayDiffer =
        account.state != StepState::Done && sourceMayBeUsed(fBindings.defaults());
    showText(*fUi->remoteNotice, mayDiffer ? sourceNotice(fBindings.defaults()) : QString());
}

void RemoteTab::markMainButton() {
    for (const SetupStep number : cSteps) {
        QPushButton& main = *stepAt(number).main;
        if (!main.hasFocus())
            main.setDefault(fShown[at(number)].isNext);
    }
}

bool RemoteTab::isFolded(SetupStep number) const {
    const Step& step = fSteps[at(number)];
    return step.folds && !step.opened && fShown[at(number)].state == StepState::Done;
}

// -- the way of the keyboard

/// Also while another window has the focus: then it is where it will be again.
bool RemoteTab::holdsTheFocus(const Step& step) const {
    const QWidget* focused = window()->focusWidget();
    return focused && step.body->isAncestorOf(focused);
}

void RemoteTab::openStep(SetupStep number) {
    build();
    Step& step = stepAt(number);
    step.opened = fShown[at(number)].state == StepState::Done;
    update();
    focusOn(number);
}

/// Neither of the two is ever folded.
void RemoteTab::openNextStep() {
    build();
    const auto next = std::ranges::find_if(fShown, &SetupLine::isNext);
    if (next != fShown.end())
        focusOn(static_cast<SetupStep>(next - fShown.begin()));
    else
        focusOn(SetupStep::Connection);
}

/// The person thinks that the step is done: it folds, or the focus goes to what is still missing.
void RemoteTab::finish(SetupStep number) {
    Step& step = stepAt(number);
    fFinishing = number;
    update();
    if (fFinishing != number)
        return;
    if (fShown[at(number)].state != StepState::Done) {
        focusOn(number);
        return;
    }
    fFinishing.reset();
    step.opened = false;
    update();
    openNextStep();
}

void RemoteTab::focusOn(SetupStep number) {
    const Step& step = stepAt(number);
    QWidget* wanted = step.main;
    for (QLineEdit* field : step.fields) {
        if (field->text().isEmpty()) {
            wanted = field;
            break;
        }
    }
    wanted->setFocus(Qt::OtherFocusReason);
    fUi->scrollArea->ensureWidgetVisible(wanted);
}

void RemoteTab::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    if (!std::exchange(fWasShown, true))
        Q_EMIT shownFirst();
    update();
}

void RemoteTab::hideEvent(QHideEvent* event) {
    QWidget::hideEvent(event);
    if (event->spontaneous())
        return;
    fFinishing.reset();
    for (Step& step : fSteps)
        step.opened = false;
}

} // namespace kelvo
