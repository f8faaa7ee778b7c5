// MainWindow: the program's one window, with four tabs and a fifth for finding faults.
#pragma once

#include "support/key_state.h"
#include "support/work_state.h"
#include "ui/widgets/bindings.h"

#include <QMainWindow>

#include <functional>
#include <memory>
#include <optional>

class QPushButton;

namespace Ui {
class MainWindow;
}

namespace kelvo {

/// For MainWindow::showActivity: no pass has this number, and the newest is taken.
inline constexpr qint64 cNewestPass = 0;

class ActivityTab;
class DiagnosticsTab;
class DispatchQueue;
class PathControlView;
class RemoteTab;
class SettingsTab;
class StatusFieldView;
class SyncTab;
class UserDefaults;

/// Follows the settings it shows, whichever thread changes them. The main queue must have ended
/// before the window is destroyed.
class MainWindow final : public QMainWindow {
    Q_OBJECT
public:
    struct Tab {
        QString identifier;
        QString label; ///< what a person reads
        QString name;  ///< the same in English
    };

    MainWindow(UserDefaults& defaults, DispatchQueue& mainQueue);
    ~MainWindow() override;

    /// Has the button named `control` call `action` at each click. A name without a button is a
    /// programming error and ends the program.
    void setAction(const QString& control, std::function<void()> action);

    /// A button by name, for whoever needs its state. As above for a name without a button.
    QPushButton& button(const QString& control);

    /// Asked before the window closes at a person's wish; true lets it go.
    void setMayClose(std::function<bool()> mayClose) { fMayClose = std::move(mayClose); }

    /// Told from now on of each tab that is about to be shown.
    void setWillSelectTab(std::function<void(const Tab&)> willSelectTab);

    /// Those that can be reached, in their order.
    std::vector<Tab> tabs() const;
    int currentTab() const;
    void showTab(int index);
    void showTab(const QString& identifier);
    void showKeyState(KeyState state);
    /// What was shown last; nothing before the first.
    std::optional<KeyState> keyState() const { return fKeyState; }
    void showWork(const WorkState& work);
    /// What was shown last.
    const WorkState& work() const { return fWork; }

    /// A person's wish for the Diagnostics tab, the last one, which is kept: comes to it, or takes
    /// it away.
    void setDiagnosticsShown(bool shown);
    bool diagnosticsAreShown() const;
    /// Has `made` called once that tab is there, at once if it is. It is made when it is first
    /// shown and stays from then on, out of reach or not.
    void whenDiagnosticsAreMade(const std::function<void(DiagnosticsTab&)>& made);

    /// Brings the window with the Activity tab to the front, there to the row of `pass` if one is
    /// given.
    void showActivity(std::optional<qint64> pass = {});

    /// Brings the window to the front, out of hiding and out of its minimised state.
    void bringToFront();

    QPushButton& ibStartButton();
    StatusFieldView& ibStatusTextField();
    PathControlView& fNsPathControl1();
    PathControlView& destinationPath();
    SyncTab& syncTab() { return *fSyncTab; }
    RemoteTab& remoteTab() { return *fRemoteTab; }
    ActivityTab& activityTab() { return *fActivityTab; }
    SettingsTab& settingsTab() { return *fSettingsTab; }
    Bindings& bindings() { return fBindings; }

Q_SIGNALS:
    void tabShown(int index);
    void diagnosticsMade(kelvo::DiagnosticsTab& tab);
    /// tabs() has another answer.
    void tabsChanged();
    /// The person has come to the window.
    void activated();
    void keyStateShown(KeyState state);
    void workShown();

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void addTab(QWidget* tab, const char* identifier, const char* name);
    void prepareButtons(const QWidget& parent);
    void followDiagnostics();
    void restoreLook();
    void keepLook();
    void showStartIcon();

    UserDefaults& fDefaults;
    WorkState fWork;
    std::optional<KeyState> fKeyState;
    Bindings fBindings;
    std::unique_ptr<Ui::MainWindow> fUi;
    SyncTab* fSyncTab;
    RemoteTab* fRemoteTab;
    ActivityTab* fActivityTab;
    SettingsTab* fSettingsTab;
    DiagnosticsTab* fDiagnosticsTab = nullptr;
    std::function<bool()> fMayClose;
    std::function<void(const Tab&)> fWillSelectTab;
};

} // namespace kelvo
