#include "ui/widgets/settings_tab.h"

#include "ports/alert_presenter.h"
#include "ports/dispatch_queue.h"
#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "ui/command_example.h"
#include "ui/template_faults.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/bindings.h"
#include "ui/widgets/fixed_font.h"
#include "ui/widgets/muted_hints.h"
#include "ui/widgets/trouble_color.h"
#include "ui_settings_tab.h"

#include <QEvent>
#include <QPointer>
#include <QTextDocument>

#include <utility>

namespace kelvo {
namespace {

constexpr int cTemplateLines = 4;
/// How long typing rests before the template is looked at, in seconds.
constexpr double cPatience = 0.2;

QString wordsFor(TemplateFault fault) {
    switch (fault) {
    case TemplateFault::NoSource:
        return SettingsTab::tr("The template lacks %@1, the source: its command does not read the "
                               "source that is chosen.");
    case TemplateFault::NoDestination:
        return SettingsTab::tr("The template lacks %@2, the destination: its command does not fill "
                               "the folder that is chosen.");
    case TemplateFault::NoSsh:
        return SettingsTab::tr("The template lacks %@98, the options of ssh: its command does "
                               "not use the key that was set up.");
    case TemplateFault::NoOption:
        return SettingsTab::tr(
            "The template lacks %@99, the option: the option that is chosen changes nothing.");
    case TemplateFault::PartsWords:
        return SettingsTab::tr("The template has a folder where its name may fall apart: passes "
                               "are refused when the name holds blanks, quotes or the like.");
    }
    return {};
}

void showTrouble(QLabel& label, const QString& text) {
    QPalette palette = label.palette();
    palette.setColor(QPalette::WindowText, troubleColor(palette.color(QPalette::Window)));
    label.setPalette(palette);
    label.setText(text);
    label.setVisible(!text.isEmpty());
}

} // namespace

SettingsTab::SettingsTab(Bindings& bindings, QWidget* parent)
    : QWidget(parent), fBindings(bindings), fTemplate(bindings.defaults()) {}

SettingsTab::~SettingsTab() = default;

void SettingsTab::build() {
    fUi = std::make_unique<Ui::SettingsTab>();
    fUi->setupUi(this);
    bindBehaviour();
    connect(fUi->kinds, &KindBoxes::kindTicked, this,
            [this](std::size_t place, bool taken) { fTemplate.setKind(place, taken); });
    buildAdvanced();
    UserDefaults& defaults = fBindings.defaults();
    fBindings.follow(*this, {prefRsyncCommandString1, prefRsyncWithSSH}, [this] {
        showKinds();
        showTemplateButtons();
    });
    fBindings.follow(*this, {prefVersionDisplayString}, [this, &defaults] {
        const QString version = defaults.stringForKey(prefVersionDisplayString).value_or(QString());
        fUi->versionText->setFullText(version.isEmpty() ? QString()
                                                        : tr("Version %1").arg(version));
    });
    Q_EMIT built();
}

// -- what people change

void SettingsTab::bindBehaviour() {
    fBindings.flag(*fUi->remotePass, prefRsyncWithSSH);
    fBindings.flag(*fUi->plainPass, prefRsyncWithSSH, true);
    fBindings.number(*fUi->delayBetweenScans, prefDelayBetweenScans);
    fBindings.flag(*fUi->autoStart, prefAutoStartScanOnLaunch);
    fBindings.flag(*fUi->hideOnLaunch, prefHideOnLaunch);
    fBindings.flag(*fUi->showNotices, prefShowNotices);
    fBindings.flag(*fUi->showArrivals, prefShowArrivals);
    fBindings.flag(*fUi->quitWithoutAsking, prefQuitWithoutAsking);
    connect(fUi->startAtLogin, &QCheckBox::clicked, this, [this](bool on) {
        if (fLoginItem)
            showLoginItem(fLoginItem->choose(on));
    });
}

void SettingsTab::setLoginItem(LoginItem& item) {
    fLoginItem.emplace(item);
    if (isVisible())
        showLoginItem(fLoginItem->look());
}

void SettingsTab::showLoginItem(const LoginItemSetting::Shown& shown) {
    fUi->startAtLogin->setChecked(shown.checked);
    fUi->startAtLogin->setEnabled(shown.enabled);
    fUi->loginTrouble->setText(shown.trouble);
    fUi->loginTrouble->setVisible(!shown.trouble.isEmpty());
}

// -- kinds of movies

void SettingsTab::showKinds() {
    const bool overSsh = fBindings.defaults().boolForKey(prefRsyncWithSSH);
    const auto kinds = fTemplate.kinds();
    fUi->kinds->setKinds(kinds, overSsh);
    QString note;
    if (!kinds)
        note = tr("The template under Advanced is your own and is left alone: the kinds of movies "
                  "are written there.");
    else if (overSsh)
        note = tr("Movies of the kinds .mov and .mp4 always come from the remote Mac.");
    else if (kinds->none())
        note = tr("No kind is ticked: passes bring nothing.");
    fUi->kindsNote->setText(note);
    fUi->kindsNote->setVisible(!note.isEmpty());
    fUi->kindsBox->setAccessibleDescription(note);
}

// -- the template

void SettingsTab::buildAdvanced() {
    UserDefaults& defaults = fBindings.defaults();
    connect(fUi->advanced, &QToolButton::toggled, this, [this, &defaults](bool shown) {
        showAdvanced(shown);
        defaults.setObject(prefAdvancedShown, shown);
    });
    fBindings.follow(*this, {prefAdvancedShown}, [this, &defaults] {
        const QSignalBlocker blocker(fUi->advanced);
        fUi->advanced->setChecked(defaults.boolForKey(prefAdvancedShown));
        showAdvanced(fUi->advanced->isChecked());
    });

    fBindings.text(*fUi->rsyncTemplate, prefRsyncCommandString1);
    fBindings.text(*fUi->commandAfterArrivals, prefCommandAfterArrivals);
    muteHints(*fUi->commandAfterArrivals);
    fBindings.flag(*fUi->keepConnection, prefKeepConnection);
    fUi->keepConnection->setToolTip(fUi->keepConnection->accessibleDescription());
    fUi->optionTag->addItem(tr("Every file that differs"), 100);
    fUi->optionTag->addItem(tr("Only files newer than here (--update)"), 101);
    fUi->optionTag->addItem(tr("Only files not here yet (--ignore-existing)"), 102);
    fBindings.choice(*fUi->optionTag, prefRsyncCommandOptionTag, [](int tag) {
        return tag == 105 ? tr("Every file that differs (stored as 105)")
                          : tr("Not a valid option (%1)").arg(tag);
    });
    for (QPushButton* button : {fUi->factoryTemplate, fUi->factoryTemplateForKinds})
        connect(button, &QPushButton::clicked, this, [this] { askAndChangeTemplate(); });
    connect(fUi->rsyncTemplate, &QPlainTextEdit::textChanged, this,
            [this] { lookAtTemplateSoon(); });
    fBindings.follow(*this, {prefRsyncCommandOptionTag, prefRsyncWithSSH},
                     [this] { lookAtTemplate(); });
    fBindings.follow(*this, {prefRsyncCommandStringExample}, [this] { showExample(); });
}

void SettingsTab::showAdvanced(bool shown) {
    const auto closed = isLeftToRight() ? Qt::RightArrow : Qt::LeftArrow;
    fUi->advanced->setArrowType(shown ? Qt::DownArrow : closed);
    if (!shown && fUi->commandBox->isAncestorOf(window()->focusWidget()))
        fUi->advanced->setFocus();
    fUi->commandBox->setVisible(shown);
}

/// What is in the field. Nothing there is the factory's, as it will be once editing ends.
QString SettingsTab::typedTemplate() const {
    const QString typed = fUi->rsyncTemplate->toPlainText();
    return typed.isEmpty() ? factoryTemplate() : typed;
}

void SettingsTab::lookAtTemplateSoon() {
    if (std::exchange(fLookPlanned, true))
        return;
    fBindings.mainQueue().asyncAfter(cPatience, [this, guard = QPointer(this)] {
        if (!guard)
            return;
        fLookPlanned = false;
        lookAtTemplate();
    });
}

void SettingsTab::lookAtTemplate() {
    const UserDefaults& defaults = fBindings.defaults();
    QStringList troubles;
    for (const TemplateFault fault :
         templateFaults(typedTemplate(), defaults.boolForKey(prefRsyncWithSSH),
                        defaults.integerForKey(prefRsyncCommandOptionTag)))
        troubles.append(wordsFor(fault));
    showTrouble(*fUi->templateTrouble, troubles.join(u'\n'));
    if (troubles.isEmpty())
        forgetSpoken(*fUi->commandBox);
    else
        announce(*fUi->commandBox, troubles.join(u'\n'));
    QStringList description = troubles;
    description.prepend(tr("The rsync command with the places %@1 source, %@2 destination, %@3 "
                           "key, %@98 ssh, %@99 option"));
    fUi->rsyncTemplate->setAccessibleDescription(description.join(u'\n'));
    showExample();
}

/// Of what is being typed, else the one that is stored, if there is one.
void SettingsTab::showExample() {
    const UserDefaults& defaults = fBindings.defaults();
    const auto stored = defaults.stringForKey(prefRsyncCommandStringExample);
    const auto typed =
        exampleOf(typedTemplate(), defaults.integerForKey(prefRsyncCommandOptionTag));
    const bool isTyped = typed && (!stored || fUi->rsyncTemplate->document()->isModified());
    fUi->commandExample->setText(isTyped ? *typed : stored.value_or(QString()));
}

void SettingsTab::showTemplateButtons() {
    using Change = TemplateSetting::Change;
    const Change next = fTemplate.nextChange();
    const bool toOwn = next == Change::ToOwn;
    for (QPushButton* button : {fUi->factoryTemplate, fUi->factoryTemplateForKinds}) {
        button->setText(toOwn ? tr("Back to My Template") : tr("Back to the Factory Template"));
        button->setAccessibleDescription(
            toOwn ? tr("Brings back the template that the factory's took the place of")
                  : tr("Takes the template that Kelvo Mirror comes with; asks before it replaces "
                       "one that was changed by hand"));
        button->setToolTip(button->accessibleDescription());
        button->setEnabled(next != Change::None);
    }
    fUi->factoryTemplateForKinds->setVisible(toOwn || !fTemplate.kinds());
}

void SettingsTab::askAndChangeTemplate() {
    const bool losesOwn =
        fTemplate.nextChange() == TemplateSetting::Change::ToFactory && !fTemplate.kinds();
    if (!fAlerts || !losesOwn) {
        fTemplate.change();
        return;
    }
    fAlerts->beginSheet({.messageText = tr("Go back to the factory template?"),
                         .informativeText = tr("Your own template is replaced. “Back to My "
                                               "Template” brings it back until the program ends."),
                         .style = AlertStyle::Informational,
                         .buttons = {tr("Back to the Factory Template"), tr("Keep My Template")}},
                        [this](ModalResponse response) {
                            if (response == cAlertFirstButtonReturn)
                                fTemplate.change();
                        });
}

// -- coming up

/// Not in the event: children that come to a widget in sight are shown a turn later.
void SettingsTab::setVisible(bool visible) {
    if (visible && !fUi)
        build();
    QWidget::setVisible(visible);
}

void SettingsTab::showEvent(QShowEvent* event) {
    applyFonts();
    if (fLoginItem)
        showLoginItem(fLoginItem->look());
    fUi->sshLineBox->setConfiguration(fSsh, fAlerts);
    fUi->sshLineBox->look();
    QWidget::showEvent(event);
}

void SettingsTab::applyFonts() {
    const QFont fixed = fixedFont(font());
    fUi->rsyncTemplate->setFont(fixed);
    fUi->commandExample->setFont(fixed);
    fUi->rsyncTemplate->setMinimumHeight(fUi->rsyncTemplate->fontMetrics().lineSpacing() *
                                         cTemplateLines);
}

void SettingsTab::changeEvent(QEvent* event) {
    if (fUi && event->type() == QEvent::LayoutDirectionChange)
        showAdvanced(fUi->advanced->isChecked());
    if (fUi && event->type() == QEvent::FontChange)
        applyFonts();
    if (fUi && event->type() == QEvent::PaletteChange)
        showTrouble(*fUi->templateTrouble, fUi->templateTrouble->text());
    QWidget::changeEvent(event);
}

} // namespace kelvo
