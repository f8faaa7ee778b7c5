// TrayIcon: the status menu in the desktop's tray.
#pragma once

#include "ports/desktop_notices.h"
#include "ports/status_menu.h"
#include "support/subscription.h"

#include <QMenu>
#include <QSystemTrayIcon>

#include <memory>
#include <optional>

namespace kelvo {

class TrayHost;

/// The toolkit decides once in a process which kind of tray it talks to, at the first icon made;
/// the icon is therefore made only when `host` knows of a tray.
class TrayIcon final : public QObject, public StatusMenu {
    Q_OBJECT
public:
    /// `host` outlives this.
    explicit TrayIcon(TrayHost& host);
    ~TrayIcon() override;

    void setActions(StatusMenuActions actions) override { fActions = std::move(actions); }
    void show(StatusMenuState state) override;
    void showWork(const WorkState& work) override;
    void setStartTitle(const QString& title) override;
    void hide() override;
    bool isReachable() const override;

    /// Shows a notice beside the icon; none while that is hidden.
    void showNotice(const Notice& notice);

    /// The icon in the tray; none while hidden or before the desktop has had a tray.
    const QSystemTrayIcon* shownIcon() const;
    QMenu& menu() { return fMenu; }

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    using Action = std::function<void()> StatusMenuActions::*;
    QAction* addEntry(const QString& name, const QString& title, Action action);
    void run(Action action);
    void update();
    void makeIcon();

    TrayHost& fHost;
    StatusMenuActions fActions;
    QMenu fMenu;
    QAction* fStartEntry;
    std::optional<StatusMenuState> fState; ///< nothing while hidden
    std::unique_ptr<QSystemTrayIcon> fIcon;
    Subscription fHostChanges;
};

} // namespace kelvo
