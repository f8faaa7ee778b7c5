#include "ui/widgets/main_window.h"

#include "ports/user_defaults.h"
#include "settings/preference_keys.h"
#include "support/fatal.h"
#include "ui/key_state_words.h"
#include "ui/widgets/activity_tab.h"
#include "ui/widgets/announcement.h"
#include "ui/widgets/diagnostics_tab.h"
#include "ui/widgets/icons.h"
#include "ui/widgets/remote_tab.h"
#include "ui/widgets/settings_tab.h"
#include "ui/widgets/sync_tab.h"
#include "ui/widgets/tab_view.h"
#include "ui_main_window.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace kelvo {
namespace {

/// The two whole numbers of "12x34"; nothing for any other text.
std::optional<QPoint> pairIn(const std::optional<QString>& text, QChar between) {
    const QStringList numbers = text.value_or(QString()).split(between);
    bool isFirst = false;
    bool isSecond = false;
    const QPoint pair(numbers.value(0).toInt(&isFirst), numbers.value(1).toInt(&isSecond));
    return numbers.size() == 2 && isFirst && isSecond ? std::optional(pair) : std::nullopt;
}

/// On Wayland the compositor alone knows where windows are.
bool placesItself() {
    return !QGuiApplication::platformName().startsWith(u"wayland");
}

} // namespace

MainWindow::MainWindow(UserDefaults& defaults, DispatchQueue& mainQueue)
    : fDefaults(defaults), fBindings(defaults, mainQueue), fUi(std::make_unique<Ui::MainWindow>()),
      fSyncTab(new SyncTab(fBindings)), fRemoteTab(new RemoteTab(fBindings)),
      fActivityTab(new ActivityTab), fSettingsTab(new SettingsTab(fBindings)) {
    fUi->setupUi(this);
    addTab(fSyncTab, "sync", QT_TR_NOOP("Sync"));
    addTab(fRemoteTab, "remote", QT_TR_NOOP("Remote Mac"));
    addTab(fSettingsTab, "prefs", QT_TR_NOOP("Settings"));
    addTab(fActivityTab, "activity", QT_TR_NOOP("Activity"));
    ibStartButton().setToolTip({}); // Its title says it all.
    setAction(QStringLiteral("showRemoteTab"), [this] {
        showTab(QStringLiteral("remote"));
        fRemoteTab->openNextStep();
    });
    setAction(QStringLiteral("showAllArrivals"), [this] {
        showTab(QStringLiteral("activity"));
        fActivityTab->showArrived();
    });
    connect(&ibStartButton(), &QPushButton::toggled, this, [this] { showStartIcon(); });
    showStartIcon();
    fBindings.follow(*this, {prefShowDiagnostics}, [this] { followDiagnostics(); });
    restoreLook();
    connect(fUi->tabView, &QTabWidget::currentChanged, this, [this](int index) {
        fDefaults.setObject(prefMainWindowTab, tabs()[static_cast<std::size_t>(index)].identifier);
        Q_EMIT tabShown(index);
    });
    connect(fUi->tabView, &TabView::willSelect, this, [this](int index) {
        if (fWillSelectTab)
            fWillSelectTab(tabs()[static_cast<std::size_t>(index)]);
    });
    ibStartButton().setFocus();
}

MainWindow::~MainWindow() {
    // The controls store what was half typed as they go, through bindings that must still be there.
    disconnect(fUi->tabView, nullptr, this, nullptr);
    delete takeCentralWidget();
}

void MainWindow::addTab(QWidget* tab, const char* identifier, const char* name) {
    tab->setProperty("identifier", QString::fromLatin1(identifier));
    tab->setProperty("name", QString::fromLatin1(name));
    fUi->tabView->addTab(tab, tr(name));
    if (auto* late = qobject_cast<LateTab*>(tab))
        late->whenBuilt([this, late] { prepareButtons(*late); });
    else
        prepareButtons(*tab);
}

// -- actions

void MainWindow::prepareButtons(const QWidget& parent) {
    for (QPushButton* button : parent.findChildren<QPushButton*>()) {
        button->setToolTip(button->accessibleDescription());
        button->installEventFilter(this);
    }
}

QPushButton& MainWindow::button(const QString& control) {
    auto* found = findChild<QPushButton*>(control);
    if (found == nullptr)
        stopProgram("There is no button " + control.toStdString() + " in the main window!");
    return *found;
}

void MainWindow::setAction(const QString& control, std::function<void()> action) {
    connect(&button(control), &QPushButton::clicked, this, std::move(action));
}

void MainWindow::showStartIcon() {
    ibStartButton().setIcon(startIcon(ibStartButton().isChecked(), palette()));
}

// -- tabs

std::vector<MainWindow::Tab> MainWindow::tabs() const {
    std::vector<Tab> all;
    all.reserve(static_cast<std::size_t>(fUi->tabView->count()));
    for (int i = 0; i < fUi->tabView->count() && fUi->tabView->isTabVisible(i); ++i) {
        const QWidget& tab = *fUi->tabView->widget(i);
        all.push_back({.identifier = tab.property("identifier").toString(),
                       .label = fUi->tabView->tabText(i),
                       .name = tab.property("name").toString()});
    }
    return all;
}

int MainWindow::currentTab() const {
    return fUi->tabView->currentIndex();
}

void MainWindow::showTab(int index) {
    if (fUi->tabView->isTabVisible(index))
        fUi->tabView->setCurrentIndex(index);
}

void MainWindow::showTab(const QString& identifier) {
    const std::vector<Tab> all = tabs();
    const auto found = std::ranges::find(all, identifier, &Tab::identifier);
    if (found != all.end())
        showTab(static_cast<int>(found - all.begin()));
}

void MainWindow::setDiagnosticsShown(bool shown) {
    fDefaults.setObject(prefShowDiagnostics, shown);
    followDiagnostics();
    if (shown)
        showTab(QStringLiteral("diagnostics"));
}

bool MainWindow::diagnosticsAreShown() const {
    return fDefaults.boolForKey(prefShowDiagnostics);
}

void MainWindow::whenDiagnosticsAreMade(const std::function<void(DiagnosticsTab&)>& made) {
    if (fDiagnosticsTab)
        made(*fDiagnosticsTab);
    else
        connect(this, &MainWindow::diagnosticsMade, this, made);
}

/// The page is the last one: the places of the others stay the same.
void MainWindow::followDiagnostics() {
    const bool shown = diagnosticsAreShown();
    if (shown && !fDiagnosticsTab) {
        fDiagnosticsTab = new DiagnosticsTab;
        addTab(fDiagnosticsTab, "diagnostics", QT_TR_NOOP("Diagnostics"));
        Q_EMIT diagnosticsMade(*fDiagnosticsTab);
    }
    const int place = fUi->tabView->indexOf(fDiagnosticsTab);
    if (place < 0)
        return;
    if (!shown && place == currentTab())
        showTab(QStringLiteral("sync"));
    fUi->tabView->setTabVisible(place, shown);
    Q_EMIT tabsChanged();
}

void MainWindow::setWillSelectTab(std::function<void(const Tab&)> willSelectTab) {
    fWillSelectTab = std::move(willSelectTab);
}

// -- the window itself

void MainWindow::bringToFront() {
    setWindowState(windowState() & ~Qt::WindowMinimized);
    show();
    raise();
    activateWindow();
}

void MainWindow::closeEvent(QCloseEvent* event) {
    if (fMayClose && !fMayClose()) {
        event->ignore();
        return;
    }
    keepLook();
    QMainWindow::closeEvent(event);
}

void MainWindow::changeEvent(QEvent* event) {
    QMainWindow::changeEvent(event);
    if (event->type() == QEvent::PaletteChange)
        showStartIcon();
    if (event->type() == QEvent::ActivationChange && isActiveWindow())
        Q_EMIT activated();
}

void MainWindow::hideEvent(QHideEvent* event) {
    keepLook();
    QMainWindow::hideEvent(event);
}

/// A button whose key is held down is pressed once.
bool MainWindow::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::KeyPress && static_cast<QKeyEvent*>(event)->isAutoRepeat()) {
        const int key = static_cast<QKeyEvent*>(event)->key();
        if (key == Qt::Key_Return || key == Qt::Key_Enter || key == Qt::Key_Space)
            return true;
    }
    return QMainWindow::eventFilter(watched, event);
}

void MainWindow::restoreLook() {
    const QPoint kept = pairIn(fDefaults.stringForKey(prefMainWindowSize), u'x').value_or(QPoint());
    const auto place = pairIn(fDefaults.stringForKey(prefMainWindowPlace), u',');
    // A screen that is gone, or smaller by now, shall not keep the window out of sight.
    const QScreen* known = place ? QGuiApplication::screenAt(*place) : nullptr;
    const QRect room = (known ? known : screen())->availableGeometry();
    const QSize wanted = std::min(kept.x(), kept.y()) > 0 ? QSize(kept.x(), kept.y()) : size();
    if (const QSize fitting = wanted.boundedTo(room.size()); fitting != size())
        resize(fitting.expandedTo(minimumSizeHint()));
    if (known && placesItself()) {
        const auto within = [](int at, int length, int from, int to) {
            return std::max(from, std::min(at, to + 1 - length));
        };
        move(within(place->x(), width(), room.left(), room.right()),
             within(place->y(), height(), room.top(), room.bottom()));
    }
    if (fDefaults.boolForKey(prefMainWindowMaximized))
        setWindowState(windowState() | Qt::WindowMaximized);
    showTab(fDefaults.stringForKey(prefMainWindowTab).value_or(QString()));
}

void MainWindow::keepLook() {
    const auto keep = [this](QStringView key, const QString& now) {
        if (fDefaults.stringForKey(key) != now)
            fDefaults.setObject(key, now);
    };
    if (isMaximized() != fDefaults.boolForKey(prefMainWindowMaximized))
        fDefaults.setObject(prefMainWindowMaximized, isMaximized());
    if (isMaximized() || isMinimized())
        return;
    keep(prefMainWindowSize, QStringLiteral("%1x%2").arg(width()).arg(height()));
    if (placesItself())
        keep(prefMainWindowPlace, QStringLiteral("%1,%2").arg(x()).arg(y()));
}

// -- what others look at

QPushButton& MainWindow::ibStartButton() {
    return button(QStringLiteral("ibStartButton"));
}

StatusFieldView& MainWindow::ibStatusTextField() {
    return fSyncTab->ibStatusTextField();
}

PathControlView& MainWindow::fNsPathControl1() {
    return fSyncTab->fNsPathControl1();
}

PathControlView& MainWindow::destinationPath() {
    return fSyncTab->destinationPath();
}

void MainWindow::showKeyState(KeyState state) {
    fKeyState = state;
    fRemoteTab->setKeyState(state);
    announce(*fRemoteTab, keyStateWords(state));
    Q_EMIT keyStateShown(state);
}

void MainWindow::showWork(const WorkState& work) {
    fWork = work;
    fSyncTab->showWork(work);
    fActivityTab->showWork(work);
    Q_EMIT workShown();
}

void MainWindow::showActivity(std::optional<qint64> pass) {
    showTab(QStringLiteral("activity"));
    bringToFront();
    if (pass)
        fActivityTab->showPass(*pass);
}

} // namespace kelvo
